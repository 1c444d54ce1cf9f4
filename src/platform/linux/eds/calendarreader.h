#pragma once

#include "platform/linux/eds/calendarclient.h"

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

/// All of the user's calendars, on a thread with a loop of its own. What can't be reached has no
/// events.
class CalendarReader {
public:
    CalendarReader(GCancellable* cancellable, std::function<void()> changed);
    ~CalendarReader();
    CalendarReader(const CalendarReader&) = delete;
    CalendarReader& operator=(const CalendarReader&) = delete;

    /// Calendar by calendar. Watches that span from now on.
    QList<CalendarEntry> read(const Span& span);

private:
    using Clients = std::map<QByteArray, std::unique_ptr<CalendarClient>>;

    bool open();
    void watch(const Span& span);
    CalendarClient* clientOf(ESource* source);
    void announceIn(std::chrono::milliseconds delay);
    void announceDeath();

    GCancellable* m_cancellable;
    std::function<void()> m_changed;
    GOwned<ESourceRegistry> m_registry;
    Span m_span;
    Clients m_clients; ///< By the calendar's id.
    std::unique_ptr<GSource, GSourceEnded> m_announcement; ///< Null when none is due.
    int m_deaths = 0; ///< Of the service, since another span is watched.
};

} // namespace quib
