#pragma once

#include "integrations/calendar/calendarcontroller.h"
#include "views/models/recordlistmodel.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// An event of the day, as its row shows it.
struct EventRecord {
    QUuid id; ///< Made of the event's own.
    CalendarController::Event event;

    bool operator==(const EventRecord&) const = default;
};

/// What is left of the day's events as rows, in the calendar's order.
class EventListModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::CalendarController* calendar READ calendar WRITE setCalendar NOTIFY
                   calendarChanged REQUIRED)

public:
    enum Role { TitleRole = Qt::UserRole, StartRole, AllDayRole, ColorRole };

    using RecordListModel::RecordListModel;

    CalendarController* calendar() const { return m_calendar; }
    /// Borrowed: the rows are empty once the calendar is gone.
    void setCalendar(CalendarController* calendar);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void calendarChanged();

private:
    void follow();

    QPointer<CalendarController> m_calendar;
    QList<EventRecord> m_events;
};

} // namespace quib
