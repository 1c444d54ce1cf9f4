#include "platform/linux/calendar/eds/calendarreader.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quib {

namespace {

using namespace std::chrono_literals;

constexpr auto Pause = 50ms; ///< Changes come in bursts.
constexpr int MostDoublings = 10; ///< Of the pause before a service that crashes is tried again.

constexpr std::array RegistrySignals{"source-added", "source-removed", "source-changed",
                                     "source-enabled", "source-disabled"};

/// The connection that the service is reached by, which else would end us together with the bus.
/// Null while there is none.
GOwned<GDBusConnection> connectToBus(GCancellable* cancellable)
{
    GOwned<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, cancellable, nullptr));
    if (bus) {
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    }
    return bus;
}

} // namespace

CalendarReader::CalendarReader(GCancellable* cancellable, std::function<void()> changed)
    : m_cancellable(cancellable)
    , m_changed(std::move(changed))
{
}

CalendarReader::~CalendarReader()
{
    close();
}

QList<CalendarEntry> CalendarReader::read(const Span& span)
{
    watch(span);
    if (!open()) {
        return entriesReadLast();
    }
    QList<CalendarEntry> entries;
    Calendars kept;
    auto* const sources
        = e_source_registry_list_enabled(m_registry.get(), E_SOURCE_EXTENSION_CALENDAR);
    for (auto* link = sources; link != nullptr; link = link->next) {
        auto* source = static_cast<ESource*>(link->data);
        const QByteArray id(e_source_get_uid(source));
        auto& calendar = m_calendars[id];
        refresh(calendar, source);
        entries += calendar.entries;
        kept.insert(m_calendars.extract(id));
    }
    g_list_free_full(sources, g_object_unref);
    m_calendars = std::move(kept);
    return entries;
}

bool CalendarReader::open()
{
    if (m_registry && g_dbus_connection_is_closed(m_bus.get()) == FALSE) {
        return true;
    }
    close();
    m_bus = connectToBus(m_cancellable);
    if (!m_bus) {
        return false;
    }
    if (g_dbus_connection_is_closed(m_bus.get()) != FALSE) {
        m_bus.reset(); // The library's threads take a moment to let go of the one that is lost.
        announceDeath();
        return false;
    }
    m_registry.reset(e_source_registry_new_sync(m_cancellable, nullptr));
    if (!m_registry) {
        return false;
    }
    // Of any source, not only calendars: an account is none, and switches off those in it.
    const auto changed = [](ESourceRegistry*, ESource*, gpointer reader) {
        static_cast<CalendarReader*>(reader)->announceIn(Pause);
    };
    for (const auto* signal : RegistrySignals) {
        g_signal_connect(m_registry.get(), signal, G_CALLBACK(+changed), this);
    }
    return true;
}

/// Whoever holds on to a bus that is lost gets no other one.
void CalendarReader::close()
{
    for (auto& [id, calendar] : m_calendars) {
        calendar.client.reset();
    }
    if (m_registry) {
        g_signal_handlers_disconnect_by_data(m_registry.get(), this);
    }
    m_registry.reset();
    m_bus.reset();
}

QList<CalendarEntry> CalendarReader::entriesReadLast() const
{
    QList<CalendarEntry> entries;
    for (const auto& [id, calendar] : m_calendars) {
        entries += calendar.entries;
    }
    return entries;
}

void CalendarReader::watch(const Span& span)
{
    if (m_span != span) {
        m_calendars.clear();
        m_span = span;
        m_deaths = 0;
    }
}

void CalendarReader::refresh(Calendar& calendar, ESource* source)
{
    auto& client = calendar.client;
    if (!client || client->isDead()) {
        client = CalendarClient::connect(
            source, m_span, m_cancellable,
            {.changed = [this] { announceIn(Pause); }, .died = [this] { announceDeath(); }});
    }
    if (auto entries = client ? client->read() : std::nullopt) {
        calendar.entries = std::move(*entries);
    }
}

void CalendarReader::announceIn(std::chrono::milliseconds delay)
{
    const auto due = std::chrono::steady_clock::now() + delay;
    if (m_announcement && m_due <= due) {
        return;
    }
    m_due = due;
    m_announcement.reset(g_timeout_source_new(static_cast<guint>(delay.count())));
    const auto announce = [](gpointer data) -> gboolean {
        auto* reader = static_cast<CalendarReader*>(data);
        reader->m_announcement.reset();
        reader->m_announcesDeath = false;
        reader->m_changed();
        return G_SOURCE_REMOVE;
    };
    g_source_set_callback(m_announcement.get(), announce, this, nullptr);
    g_source_attach(m_announcement.get(), g_main_context_get_thread_default());
}

void CalendarReader::announceDeath()
{
    if (!std::exchange(m_announcesDeath, true)) {
        announceIn(Pause * (1 << std::min(m_deaths++, MostDoublings)));
    }
}

} // namespace quib
