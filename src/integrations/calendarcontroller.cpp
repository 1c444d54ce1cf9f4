#include "integrations/calendarcontroller.h"

#include "brand/brand.h"

#include <QPointer>
#include <QUuid>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr qsizetype MostUnitsOfATitle = 500; ///< More than any line shows.

/// Never half of a surrogate pair.
QString beginning(const QString& text)
{
    if (text.size() <= MostUnitsOfATitle) {
        return text;
    }
    const bool splits = text.at(MostUnitsOfATitle - 1).isHighSurrogate();
    return text.first(splits ? MostUnitsOfATitle - 1 : MostUnitsOfATitle);
}

CalendarController::Event eventOf(const CalendarEntry& entry)
{
    return {.id = entry.id.value_or(QUuid::createUuid().toString(QUuid::WithoutBraces)),
            .title = beginning(entry.title.value_or(u"Untitled"_s)),
            .start = entry.start,
            .end = entry.end,
            .allDay = entry.isAllDay,
            .color = entry.color.value_or(Brand::systemPurple())};
}

} // namespace

CalendarController::CalendarController(CalendarStore* store, Clock clock, const QTimeZone& timeZone,
                                       QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_clock(std::move(clock))
    , m_timeZone(timeZone)
{
    if (m_store == nullptr) {
        return;
    }
    connect(m_store, &CalendarStore::changed, this, &CalendarController::reload);
    m_isAsking = true;
    m_store->readAuthorization([self = QPointer(this)](CalendarAuthorization authorization) {
        if (self) {
            self->m_isAsking = false;
        }
        if (self && !self->m_wasAnswered) {
            self->take(authorization);
        }
    });
}

void CalendarController::requestAccess()
{
    if (m_store == nullptr) {
        return;
    }
    m_store->requestFullAccess([self = QPointer(this)](bool isGranted) {
        if (self) {
            self->m_wasAnswered = true;
            self->take(isGranted ? CalendarAuthorization::FullAccess
                                 : CalendarAuthorization::Denied);
        }
    });
}

void CalendarController::reload()
{
    if (m_access != Access::Granted) {
        return;
    }
    const auto today = m_clock().toTimeZone(m_timeZone).date();
    const auto tomorrow = today.addDays(1);
    m_isReloading = true;
    m_store->readEntries(today.startOfDay(m_timeZone), tomorrow.startOfDay(m_timeZone),
                         [self = QPointer(this), reload = ++m_reloads](const auto& entries) {
                             if (self && self->m_reloads == reload) {
                                 self->show(entries);
                             }
                         });
}

void CalendarController::take(CalendarAuthorization authorization)
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
    m_isReloading = false;
    ++m_reloads; // What was asked with the access of before comes too late.
    if (std::exchange(m_access, access) != access) {
        Q_EMIT accessChanged();
    }
    reload();
}

void CalendarController::show(QList<CalendarEntry> entries)
{
    m_isReloading = false;
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
