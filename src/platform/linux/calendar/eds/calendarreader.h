#pragma once

#include "platform/linux/calendar/eds/calendarclient.h"

#include <QByteArray>
#include <QList>

#include <chrono>
#include <functional>
#include <map>
#include <memory>

namespace quib {

struct GSourceEnded {
    void operator()(GSource* source) const
    {
        g_source_destroy(source);
        g_source_unref(source);
    }
};

/// All of the user's calendars, on a thread with a loop of its own. What can't be reached has the
/// events that were read last.
class CalendarReader {
public:
    CalendarReader(GCancellable* cancellable, std::function<void()> changed);
    ~CalendarReader();
    CalendarReader(const CalendarReader&) = delete;
    CalendarReader& operator=(const CalendarReader&) = delete;

    /// Calendar by calendar. Watches that span from now on.
    QList<CalendarEntry> read(const Span& span);

private:
    struct Calendar {
        std::unique_ptr<CalendarClient> client; ///< Null where it can't be opened.
        QList<CalendarEntry> entries; ///< As read last.
    };

    using Calendars = std::map<QByteArray, Calendar>;

    bool open();
    void close();
    QList<CalendarEntry> entriesReadLast() const;
    void watch(const Span& span);
    void refresh(Calendar& calendar, ESource* source);
    /// Unless that happens sooner anyway.
    void announceIn(std::chrono::milliseconds delay);
    void announceDeath();

    GCancellable* m_cancellable;
    std::function<void()> m_changed;
    GOwned<GDBusConnection> m_bus; ///< Null unless open.
    GOwned<ESourceRegistry> m_registry;
    Span m_span;
    Calendars m_calendars; ///< By id.
    std::unique_ptr<GSource, GSourceEnded> m_announcement; ///< Null when none is due.
    std::chrono::steady_clock::time_point m_due; ///< Of the announcement.
    bool m_announcesDeath = false; ///< Of which every calendar tells.
    int m_deaths = 0; ///< Of the service, since another span is watched.
};

} // namespace quib
