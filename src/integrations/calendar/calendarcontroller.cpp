#include "integrations/calendar/calendarcontroller.h"

#include "brand/brand.h"
#include "model/texts/beginning.h"

#include <QPointer>
#include <QUuid>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr qsizetype MostUnitsOfATitle = 500; ///< More than any line shows.

struct Day {
    QDateTime start;
    QDateTime end;
};

Day dayAround(const QDateTime& now, const QTimeZone& zone)
{
    if (!zone.isValid()) {
        const auto today = now.toLocalTime().date();
        return {.start = today.startOfDay(), .end = today.addDays(1).startOfDay()};
    }
    const auto today = now.toTimeZone(zone).date();
    return {.start = today.startOfDay(zone), .end = today.addDays(1).startOfDay(zone)};
}

CalendarController::Event eventOf(const CalendarEntry& entry)
{
    return {.id = entry.id.value_or(QUuid::createUuid().toString(QUuid::WithoutBraces)),
            .title = beginningOf(entry.title.value_or(u"Untitled"_s), MostUnitsOfATitle),
            .start = entry.start,
            .end = entry.end,
            .allDay = entry.isAllDay,
            .color = entry.color.value_or(Brand::systemPurple())};
}

} // namespace

CalendarController::CalendarController(CalendarStore* store, Clock clock, TimeZone timeZone,
                                       QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_clock(std::move(clock))
    , m_timeZone(std::move(timeZone))
{
    if (m_store == nullptr) {
        return;
    }
    connect(m_store, &CalendarStore::changed, this, &CalendarController::readAgain);
    readAuthorization();
}

void CalendarController::readAuthorization()
{
    m_isAsking = true;
    m_store->readAuthorization([self = QPointer(this)](CalendarAuthorization authorization) {
        if (self) {
            self->m_isAsking = false;
        }
        if (self && !self->m_wasAnswered) {
            self->takeAuthorization(authorization);
        }
    });
}

void CalendarController::setAsleep(bool isAsleep)
{
    m_isAsleep = isAsleep;
    if (!isAsleep && std::exchange(m_readsOnWaking, false)) {
        readAgain();
    }
}

void CalendarController::readAgain()
{
    if (m_isAsleep) {
        m_readsOnWaking = true;
        return;
    }
    if (m_access == Access::Unknown && !m_wasAnswered) {
        readAuthorization();
    } else {
        reload();
    }
}

void CalendarController::requestAccess()
{
    if (m_store == nullptr) {
        return;
    }
    m_store->requestFullAccess([self = QPointer(this)](bool isGranted) {
        if (self) {
            self->m_wasAnswered = true;
            self->takeAuthorization(isGranted ? CalendarAuthorization::FullAccess
                                              : CalendarAuthorization::Denied);
        }
    });
}

void CalendarController::reload()
{
    if (m_access != Access::Granted) {
        return;
    }
    if (m_isAsleep) {
        m_readsOnWaking = true;
        return;
    }
    if (std::exchange(m_isReloading, true)) {
        m_reloadsAgain = true;
        return;
    }
    const auto [from, to] = dayAround(m_clock(), m_timeZone());
    m_store->readEntries(from, to,
                         [self = QPointer(this), access = m_accesses](const auto& entries) {
                             if (self && self->m_accesses == access) {
                                 self->takeEntries(entries);
                             }
                         });
}

void CalendarController::takeAuthorization(CalendarAuthorization authorization)
{
    switch (authorization) {
    case CalendarAuthorization::NotDetermined:
    case CalendarAuthorization::WriteOnly: return; // The card offers to connect.
    case CalendarAuthorization::Restricted:
    case CalendarAuthorization::Denied: setAccess(Access::Denied); return;
    case CalendarAuthorization::FullAccess: setAccess(Access::Granted); return;
    }
    Q_UNREACHABLE();
}

void CalendarController::setAccess(Access access)
{
    m_isReloading = m_reloadsAgain = false;
    ++m_accesses;
    if (std::exchange(m_access, access) != access) {
        Q_EMIT accessChanged();
    }
    reload();
}

void CalendarController::takeEntries(const QList<CalendarEntry>& entries)
{
    m_isReloading = false;
    show(entries);
    if (std::exchange(m_reloadsAgain, false)) {
        reload();
    }
}

void CalendarController::show(QList<CalendarEntry> entries)
{
    entries.removeIf([now = m_clock()](const CalendarEntry& entry) {
        return entry.end <= now && !entry.isAllDay;
    });
    std::ranges::stable_sort(entries, {}, &CalendarEntry::start);
    QList<Event> events;
    std::ranges::transform(std::as_const(entries), std::back_inserter(events), eventOf);
    if (std::exchange(m_events, events) != events) {
        Q_EMIT eventsChanged();
    }
}

} // namespace quib
