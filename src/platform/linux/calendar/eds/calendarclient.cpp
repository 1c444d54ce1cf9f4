#include "platform/linux/calendar/eds/calendarclient.h"

#include "platform/linux/calendar/eds/occurrence.h"

#include <QTimeZone>

#include <array>
#include <cstdlib>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto NoEvents = "(uid? \"\")"; ///< A query.
constexpr std::array ViewSignals{"objects-added", "objects-modified", "objects-removed"};

/// Waiting for calendars elsewhere to be reached would take all of the given time without a
/// network.
constexpr auto NoWaiting = std::numeric_limits<guint32>::max();

QByteArray queryFor(const Span& span)
{
    const auto moment
        = [](const QDateTime& time) { return time.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_s); };
    return u"(occur-in-time-range? (make-time \"%1\") (make-time \"%2\"))"_s
        .arg(moment(span.from), moment(span.to))
        .toLatin1();
}

/// What the callback of libecal collects into.
struct Collection {
    CalendarFacts facts;
    Span span;
    QList<CalendarEntry> entries;
};

gboolean collect(ICalComponent* event, ICalTime* start, ICalTime* end, gpointer data,
                 GCancellable* cancellable, GError** /*error*/)
{
    auto* collection = static_cast<Collection*>(data);
    const auto entry = entryOf({.event = event, .start = start, .end = end}, collection->facts);
    if (entry && collection->span.has(*entry)) {
        collection->entries.append(*entry);
    }
    return !g_cancellable_is_cancelled(cancellable);
}

struct GErrorFreed {
    void operator()(GError* error) const { g_error_free(error); }
};

/// What the service itself refuses is another matter.
bool isOfALostService(const GError* error)
{
    return error != nullptr
        && (error->domain == G_IO_ERROR
            || g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY)
            || g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN)
            || g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_NAME_HAS_NO_OWNER)
            || g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_DISCONNECTED));
}

/// With the difference from UTC that the moment has.
GOwned<ICalTimezone> fixedZone(const QDateTime& moment)
{
    const int offset = moment.offsetFromUtc();
    const auto digits = QTime(0, 0).addSecs(std::abs(offset)).toString(u"HHmmss"_s);
    const auto text = u"BEGIN:VTIMEZONE\nTZID:Quib local time\nBEGIN:STANDARD\n"
                      "DTSTART:19700101T000000\nTZOFFSETFROM:%1\nTZOFFSETTO:%1\nEND:STANDARD\n"
                      "END:VTIMEZONE\n"_s.arg((offset < 0 ? u'-' : u'+') + digits);
    GOwned<ICalTimezone> zone(i_cal_timezone_new());
    const GOwned<ICalComponent> component(
        i_cal_component_new_from_string(text.toLatin1().constData()));
    const bool isMade
        = component && i_cal_timezone_set_component(zone.get(), component.get()) != FALSE;
    return isMade ? std::move(zone) : nullptr;
}

/// Where times without a zone of their own are. The service may not know the system's.
GOwned<ICalTimezone> systemZone(const QDateTime& moment)
{
    auto* const known = i_cal_timezone_get_builtin_timezone(moment.timeZone().id().constData());
    return known == nullptr ? fixedZone(moment)
                            : GOwned<ICalTimezone>(I_CAL_TIMEZONE(g_object_ref(known)));
}

} // namespace

std::unique_ptr<CalendarClient> CalendarClient::connect(ESource* source, const Span& span,
                                                        GCancellable* cancellable,
                                                        Listener listener)
{
    auto* client = e_cal_client_connect_sync(source, E_CAL_CLIENT_SOURCE_TYPE_EVENTS, NoWaiting,
                                             cancellable, nullptr);
    if (client == nullptr) {
        return nullptr;
    }
    return std::unique_ptr<CalendarClient>(new CalendarClient(
        GOwned<ECalClient>(E_CAL_CLIENT(client)), span, cancellable, std::move(listener)));
}

CalendarClient::CalendarClient(GOwned<ECalClient> client, Span span, GCancellable* cancellable,
                               Listener listener)
    : m_client(std::move(client))
    , m_span(std::move(span))
    , m_cancellable(cancellable)
    , m_listener(std::move(listener))
{
    g_signal_connect(m_client.get(), "backend-died", G_CALLBACK(die), this);
}

CalendarClient::~CalendarClient()
{
    if (m_view) {
        g_signal_handlers_disconnect_by_data(m_view.get(), this);
    }
    g_signal_handlers_disconnect_by_data(m_client.get(), this);
}

std::optional<QList<CalendarEntry>> CalendarClient::read()
{
    if (!m_view) {
        watch();
    }
    const auto zone = systemZone(m_span.from);
    if (zone) {
        e_cal_client_set_default_timezone(m_client.get(), zone.get());
    }
    Collection collection{.facts
                          = factsOf(e_client_get_source(E_CLIENT(m_client.get())), zone.get()),
                          .span = m_span,
                          .entries = {}};
    const auto searched = m_span.widened();
    e_cal_client_generate_instances_sync(m_client.get(), searched.from.toSecsSinceEpoch(),
                                         searched.to.toSecsSinceEpoch(), m_cancellable, collect,
                                         &collection);
    return isReached() ? std::optional(collection.entries) : std::nullopt;
}

void CalendarClient::watch()
{
    ECalClientView* view = nullptr;
    if (!e_cal_client_get_view_sync(m_client.get(), queryFor(m_span.widened()).constData(), &view,
                                    m_cancellable, nullptr)) {
        return;
    }
    m_view.reset(view);
    const auto changed = [](ECalClientView*, gpointer, gpointer self) {
        static_cast<CalendarClient*>(self)->m_listener.changed();
    };
    for (const auto* signal : ViewSignals) {
        g_signal_connect(view, signal, G_CALLBACK(+changed), this);
    }
    // Without what is there already, which is read anyway.
    e_cal_client_view_set_flags(view, E_CAL_CLIENT_VIEW_FLAGS_NONE, nullptr);
    e_cal_client_view_start(view, nullptr);
}

/// Asks for something small: libecal does not tell that it could not read the events.
bool CalendarClient::isReached() const
{
    GSList* none = nullptr;
    GError* failure = nullptr;
    e_cal_client_get_object_list_sync(m_client.get(), NoEvents, &none, m_cancellable, &failure);
    g_slist_free_full(none, g_object_unref);
    const std::unique_ptr<GError, GErrorFreed> error(failure);
    return !isOfALostService(error.get());
}

void CalendarClient::die(EClient* /*client*/, gpointer self)
{
    auto* client = static_cast<CalendarClient*>(self);
    client->m_isDead = true;
    client->m_listener.died();
}

} // namespace quib
