#pragma once

#include "integrations/calendar/calendarstore.h"
#include "model/time/clock.h"
#include "model/time/systemtimezone.h"

#include <functional>

namespace quib {

/// Today's events, and whether the program may read them. The authorisation is read at the start,
/// and again with the calendars' changes until it is known; afterwards only requestAccess() changes
/// it. There is no timer: an event that ends stays listed until the calendars change.
class CalendarController : public QObject {
    Q_OBJECT
    Q_PROPERTY(Access access READ access NOTIFY accessChanged)

public:
    enum class Access { Unknown, Granted, Denied };
    Q_ENUM(Access)

    struct Event {
        QString id;
        QString title;
        QDateTime start;
        QDateTime end;
        bool allDay = false;
        QColor color;

        bool operator==(const Event&) const = default;
    };

    /// Tells where the user is, which may change. Invalid where only the system's C library knows.
    using TimeZone = std::function<QTimeZone()>;

    /// The store is borrowed and outlives this; null where there are no calendars to ask for.
    explicit CalendarController(CalendarStore* store, Clock clock = systemClock,
                                TimeZone timeZone = systemTimeZone, QObject* parent = nullptr);

    /// By start. All of today's that have not ended, and those of the whole day.
    const QList<Event>& events() const { return m_events; }
    Access access() const { return m_access; }
    /// While the calendars have yet to say whether we may read them, or to answer the last reload.
    bool isWaiting() const { return m_isAsking || m_isReloading; }

    Q_INVOKABLE void requestAccess();
    /// Does nothing without access. The events stay as they are until the calendars have answered.
    /// Wanted while an answer is due, it follows that.
    void reload();
    /// While asleep it asks the calendars nothing; what was wanted meanwhile follows on waking.
    void setAsleep(bool isAsleep);

Q_SIGNALS:
    void eventsChanged();
    void accessChanged();

private:
    void readAuthorization();
    void readAgain();
    void takeAuthorization(CalendarAuthorization authorization);
    void setAccess(Access access);
    void takeEntries(const QList<CalendarEntry>& entries);
    void show(QList<CalendarEntry> entries);

    CalendarStore* m_store;
    Clock m_clock;
    TimeZone m_timeZone;
    QList<Event> m_events;
    Access m_access = Access::Unknown;
    bool m_wasAnswered = false; ///< By the user, which counts more than what was read.
    bool m_isAsking = false; ///< What access there is; the user is not asked.
    bool m_isReloading = false;
    bool m_reloadsAgain = false; ///< Another was wanted meanwhile.
    bool m_isAsleep = false;
    bool m_readsOnWaking = false;
    int m_accesses = 0; ///< Counts its changes: answers to what was asked before one are dropped.
};

} // namespace quib
