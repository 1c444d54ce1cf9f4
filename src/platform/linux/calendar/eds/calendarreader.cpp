#include "platform/linux/calendar/eds/calendarreader.h"

#include <array>
#include <system_error>
#include <utility>

namespace quib {

namespace {

using namespace std::chrono_literals;

constexpr auto Patience = 1s; ///< With calendars that do not answer, once one has.
constexpr auto LongestPatience = 5s; ///< Before any has: their service may have to start.
constexpr auto LongestGoodbye = 800ms; ///< To all of them together.

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

CalendarReader::CalendarReader(Post post, GCancellable* cancellable, std::function<void()> changed)
    : m_post(std::move(post))
    , m_cancellable(cancellable)
    , m_announcements(std::move(changed))
{
}

CalendarReader::~CalendarReader()
{
    m_isHere.reset();
    close();
}

void CalendarReader::read(const Span& span, Answer answer)
{
    finish();
    watch(span);
    m_answer = std::move(answer);
    if (open()) {
        list();
    }
    m_awaited = 0;
    for (auto& [id, calendar] : m_calendars) {
        const bool hangs = calendar.isAsked; // Or it would have answered.
        ask(id, calendar);
        calendar.isAwaited = calendar.isAsked && !hangs;
        m_awaited += calendar.isAwaited ? 1 : 0;
    }
    if (m_awaited == 0) {
        finish();
        return;
    }
    m_isFirstAwaited = true;
    m_patience.start(LongestPatience, [this] { finish(); });
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
        m_announcements.tellOfDeath();
        return false;
    }
    m_registry.reset(e_source_registry_new_sync(m_cancellable, nullptr));
    if (!m_registry) {
        return false;
    }
    // Of any source, not only calendars: an account is none, and switches off those in it.
    const auto changed = [](ESourceRegistry*, ESource*, gpointer reader) {
        static_cast<CalendarReader*>(reader)->m_announcements.tellOfChange();
    };
    for (const auto* signal : RegistrySignals) {
        g_signal_connect(m_registry.get(), signal, G_CALLBACK(+changed), this);
    }
    return true;
}

/// Whoever holds on to a bus that is lost gets no other one.
void CalendarReader::close()
{
    for (const auto& [id, calendar] : m_calendars) {
        if (calendar.worker) {
            calendar.worker->end();
        }
    }
    const auto latest = std::chrono::steady_clock::now() + LongestGoodbye;
    for (auto& [id, calendar] : m_calendars) {
        if (const auto worker = std::exchange(calendar.worker, nullptr)) {
            worker->leaveBy(latest);
        }
        calendar.isAsked = false;
    }
    if (m_registry) {
        g_signal_handlers_disconnect_by_data(m_registry.get(), this);
    }
    m_registry.reset();
    m_bus.reset();
}

/// The calendars that there are now. Those that stay keep their threads and what was read of them.
void CalendarReader::list()
{
    Calendars listed;
    m_order.clear();
    auto* const sources
        = e_source_registry_list_enabled(m_registry.get(), E_SOURCE_EXTENSION_CALENDAR);
    for (auto* link = sources; link != nullptr; link = link->next) {
        auto* source = static_cast<ESource*>(link->data);
        const QByteArray id(e_source_get_uid(source));
        auto& calendar = listed[id];
        calendar = std::move(m_calendars[id]);
        if (!calendar.worker) {
            calendar.worker = makeWorker(source);
        }
        m_order.push_back(id);
    }
    g_list_free_full(sources, g_object_unref);
    m_calendars = std::move(listed);
}

void CalendarReader::watch(const Span& span)
{
    if (m_span != span) {
        m_calendars.clear();
        m_span = span;
        m_announcements.forgetDeaths();
    }
}

/// One question at a time: a thread that hangs is not to be left with a thousand of them.
void CalendarReader::ask(const QByteArray& id, Calendar& calendar)
{
    if (!calendar.worker) {
        return;
    }
    calendar.isAskedAgain = calendar.isAsked;
    if (std::exchange(calendar.isAsked, true)) {
        return;
    }
    const std::weak_ptr worker = calendar.worker;
    calendar.worker->read([post = m_post, here = std::weak_ptr(m_isHere), this, id,
                           worker](const std::optional<QList<CalendarEntry>>& entries) {
        post([here, this, id, worker, entries] {
            if (!here.expired()) {
                take(id, worker.lock(), entries);
            }
        });
    });
}

/// The worker may be one that was left meanwhile.
void CalendarReader::take(const QByteArray& id, const std::shared_ptr<CalendarWorker>& worker,
                          const std::optional<QList<CalendarEntry>>& entries)
{
    const auto found = m_calendars.find(id);
    if (!worker || found == m_calendars.end() || found->second.worker != worker) {
        return;
    }
    auto& calendar = found->second;
    const bool isNews = entries && calendar.entries != *entries;
    calendar.entries = entries.value_or(calendar.entries);
    calendar.isAsked = false;
    if (std::exchange(calendar.isAskedAgain, false)) {
        ask(id, calendar);
    }
    if (std::exchange(calendar.isAwaited, false)) {
        countAnswer(entries.has_value());
    } else if (isNews && !m_answer) {
        m_announcements.tellOfChange(); // Who asked has been answered without it.
    }
}

/// To the question of now.
void CalendarReader::countAnswer(bool isRead)
{
    if (--m_awaited == 0) {
        finish();
    } else if (isRead && std::exchange(m_isFirstAwaited, false)) {
        m_patience.start(Patience, [this] { finish(); });
    }
}

std::shared_ptr<CalendarWorker> CalendarReader::makeWorker(ESource* source)
{
    try {
        return std::make_shared<CalendarWorker>(
            source, m_span,
            CalendarClient::Listener{.changed = posting([this] { m_announcements.tellOfChange(); }),
                                     .died = posting([this] { m_announcements.tellOfDeath(); })});
    } catch (const std::system_error&) {
        return nullptr;
    }
}

std::function<void()> CalendarReader::posting(std::function<void()> work) const
{
    return [post = m_post, here = std::weak_ptr(m_isHere), work = std::move(work)] {
        post([here, work] {
            if (!here.expired()) {
                work();
            }
        });
    };
}

/// Answers with what there is.
void CalendarReader::finish()
{
    m_patience.stop();
    QList<CalendarEntry> entries;
    for (const auto& id : m_order) {
        auto& calendar = m_calendars[id];
        calendar.isAwaited = false;
        entries += calendar.entries;
    }
    if (const auto answer = std::exchange(m_answer, nullptr)) {
        answer(entries);
    }
}

} // namespace quib
