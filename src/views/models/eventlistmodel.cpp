#include "views/models/eventlistmodel.h"

#include "views/core/followsource.h"

namespace quib {

EventListModel::EventListModel(QObject* parent)
    : RecordListModel(parent)
{
    using Event = CalendarController::Event;
    setRoles(m_events,
             {{"title", &Event::title},
              {"start", &Event::start},
              {"allDay", &Event::allDay},
              {"eventColor", &Event::color}});
}

void EventListModel::setCalendar(CalendarController* calendar)
{
    if (followSource(m_calendar, calendar, this, &EventListModel::follow,
                     {&CalendarController::eventsChanged})) {
        Q_EMIT calendarChanged();
    }
}

void EventListModel::follow()
{
    show(m_events, m_calendar ? m_calendar->events() : QList<CalendarController::Event>(),
         &CalendarController::Event::id);
}

} // namespace quib
