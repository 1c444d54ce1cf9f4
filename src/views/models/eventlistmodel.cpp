#include "views/models/eventlistmodel.h"

#include "views/core/followsource.h"

namespace quib {

namespace {

/// For ids of our own that are made of others.
constexpr QUuid Events(0x5f0c3c1e, 0x8a57, 0x4a5b, 0x9c, 0x1d, 0x2f, 0x6b, 0x1e, 0x7a, 0x90, 0x44);

QList<EventRecord> recordsOf(const QList<CalendarController::Event>& events)
{
    QList<EventRecord> records;
    records.reserve(events.size());
    for (const auto& event : events) {
        records.append({.id = QUuid::createUuidV5(Events, event.id), .event = event});
    }
    return records;
}

} // namespace

void EventListModel::setCalendar(CalendarController* calendar)
{
    if (followSource(m_calendar, calendar, this, &EventListModel::follow,
                     &CalendarController::eventsChanged)) {
        Q_EMIT calendarChanged();
    }
}

int EventListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_events.size());
}

QVariant EventListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto& event = m_events.at(index.row()).event;
    switch (role) {
    case TitleRole: return event.title;
    case StartRole: return event.start;
    case AllDayRole: return event.allDay;
    case ColorRole: return event.color;
    }
    return {};
}

QHash<int, QByteArray> EventListModel::roleNames() const
{
    return {{TitleRole, "title"},
            {StartRole, "start"},
            {AllDayRole, "allDay"},
            {ColorRole, "eventColor"}};
}

void EventListModel::follow()
{
    show(m_events, m_calendar ? recordsOf(m_calendar->events()) : QList<EventRecord>());
}

} // namespace quib
