#pragma once

#include "integrations/calendar/calendarcontroller.h"
#include "views/models/recordlistmodel.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// What is left of the day's events as rows, in the calendar's order.
class EventListModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::CalendarController* calendar READ calendar WRITE setCalendar NOTIFY
                   calendarChanged REQUIRED)

public:
    explicit EventListModel(QObject* parent = nullptr);

    CalendarController* calendar() const { return m_calendar; }
    /// Borrowed: the rows are empty once the calendar is gone.
    void setCalendar(CalendarController* calendar);

Q_SIGNALS:
    void calendarChanged();

private:
    void follow();

    QPointer<CalendarController> m_calendar;
    QList<CalendarController::Event> m_events;
};

} // namespace quib
