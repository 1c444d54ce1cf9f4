#include "platform/linux/media/mprisplayerlink.h"

#include "platform/linux/base/busanswer.h"
#include "platform/linux/base/log.h"
#include "platform/linux/launch/launchinstalled.h"
#include "platform/linux/media/mprisreply.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto PlayerPath = "/org/mpris/MediaPlayer2"_L1;
constexpr auto PlayerInterface = "org.mpris.MediaPlayer2.Player"_L1;
constexpr auto AnyPlayer = "org.mpris.MediaPlayer2*"_L1;
constexpr auto PropertiesInterface = "org.freedesktop.DBus.Properties"_L1;
constexpr auto BusName = "org.freedesktop.DBus"_L1;
constexpr auto BusPath = "/org/freedesktop/DBus"_L1;

constexpr int PatienceMs = 1000;

/// Of its own package, of Flatpak's and of Snap's.
const QStringList& spotifyEntries()
{
    static const QStringList entries{u"spotify.desktop"_s, u"com.spotify.Client.desktop"_s,
                                     u"spotify_spotify.desktop"_s};
    return entries;
}

QDBusMessage callOf(const QString& name, const QString& interface, const QString& method)
{
    auto message = QDBusMessage::createMethodCall(name, PlayerPath, interface, method);
    message.setAutoStartService(false);
    return message;
}

/// Empty for a verb that players have no word for.
QString methodOf(const QString& verb)
{
    if (verb == "playpause"_L1) {
        return u"PlayPause"_s;
    }
    if (verb == "next track"_L1) {
        return u"Next"_s;
    }
    return verb == "previous track"_L1 ? u"Previous"_s : QString();
}

} // namespace

MprisPlayerLink::MprisPlayerLink(std::shared_ptr<SessionBus> bus)
    : m_bus(std::move(bus))
{
    connect(m_bus.get(), &SessionBus::connected, this, &MprisPlayerLink::followPlayers);
    connect(m_bus.get(), &SessionBus::lost, this, &MprisPlayerLink::forgetPlayers);
    if (m_bus->isConnected()) {
        followPlayers();
    }
}

MprisPlayerLink::~MprisPlayerLink() = default;

bool MprisPlayerLink::isRunning(Player player) const
{
    return !m_players.nameOf(player).isEmpty();
}

void MprisPlayerLink::query(Player player, Reply reply)
{
    whenAnswered(ask(m_players.nameOf(player)), this, mediaLog(), "the player's properties",
                 [reply = std::move(reply)](const QDBusPendingReply<QVariantMap>& properties) {
                     reply(properties.isError() ? QString() : replyText(properties.value()));
                 });
}

/// Everything about the player at once; an error where there is none to ask.
QDBusPendingCall MprisPlayerLink::ask(const QString& name) const
{
    if (name.isEmpty()) {
        return QDBusPendingCall::fromError(QDBusError(QDBusError::ServiceUnknown, {}));
    }
    auto message = callOf(name, PropertiesInterface, u"GetAll"_s);
    message << QString(PlayerInterface);
    return m_bus->connection().asyncCall(message, PatienceMs);
}

void MprisPlayerLink::send(Player player, const QString& verb)
{
    const auto name = m_players.nameOf(player);
    const auto method = methodOf(verb);
    if (!name.isEmpty() && !method.isEmpty()) {
        m_bus->connection().asyncCall(callOf(name, PlayerInterface, method), PatienceMs);
    }
}

void MprisPlayerLink::launchSpotify()
{
    launchFirstInstalled(spotifyEntries());
}

void MprisPlayerLink::followPlayers()
{
    followNames();
    listNames();
}

void MprisPlayerLink::forgetPlayers()
{
    m_names.reset();
    m_players = {};
}

/// Before they are listed, so that no coming or going is missed.
void MprisPlayerLink::followNames()
{
    m_names = std::make_unique<QDBusServiceWatcher>(AnyPlayer, m_bus->connection(),
                                                    QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_names.get(), &QDBusServiceWatcher::serviceRegistered, this,
            [this](const QString& name) { m_players.add({name}); });
    connect(m_names.get(), &QDBusServiceWatcher::serviceUnregistered, this,
            [this](const QString& name) { m_players.remove(name); });
}

void MprisPlayerLink::listNames()
{
    const auto message = QDBusMessage::createMethodCall(BusName, BusPath, BusName, u"ListNames"_s);
    whenAnswered(m_bus->connection().asyncCall(message), this, mediaLog(), "the names on the bus",
                 [this](const QDBusPendingReply<QStringList>& names) {
                     if (!names.isError()) {
                         m_players.add(names.value());
                         Q_EMIT playersNamed();
                     }
                 });
}

} // namespace quib
