#include "platform/linux/session/portaldesktop.h"

#include "platform/linux/base/busanswer.h"
#include "platform/linux/base/log.h"
#include "platform/linux/x11/base/xserver.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

using Settings = QMap<QString, QVariantMap>; ///< By namespace, then key.

constexpr auto PortalName = "org.freedesktop.portal.Desktop"_L1;
constexpr auto PortalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto SettingsInterface = "org.freedesktop.portal.Settings"_L1;

constexpr auto AppearanceSpace = "org.freedesktop.appearance"_L1;
constexpr auto ReducedMotionKey = "reduced-motion"_L1;
constexpr auto InterfaceSpace = "org.gnome.desktop.interface"_L1;
constexpr auto AnimationsKey = "enable-animations"_L1;
constexpr auto IconThemeKey = "icon-theme"_L1;

} // namespace

PortalDesktop::PortalDesktop(std::shared_ptr<SessionBus> bus)
    : m_bus(std::move(bus))
{
    qDBusRegisterMetaType<Settings>();
    connect(m_bus.get(), &SessionBus::connected, this, &PortalDesktop::followPortal);
    connect(m_bus.get(), &SessionBus::lost, this, [this] { m_portal.reset(); });
    if (m_bus->isConnected()) {
        followPortal();
    }
}

PortalDesktop::~PortalDesktop() = default;

QString PortalDesktop::fontFamily() const
{
    const auto family = QGuiApplication::font().family();
    const auto inter = u"Inter"_s;
    const auto isChosen
        = family != "Sans Serif"_L1 && QGuiApplication::platformName() != "offscreen"_L1;
    return isChosen || !QFontDatabase::hasFamily(inter) ? family : inter;
}

void PortalDesktop::beep()
{
    ringBell();
}

void PortalDesktop::followPortal()
{
    auto bus = m_bus->connection();
    m_portal = std::make_unique<QDBusServiceWatcher>(PortalName, bus,
                                                     QDBusServiceWatcher::WatchForRegistration);
    connect(m_portal.get(), &QDBusServiceWatcher::serviceRegistered, this,
            &PortalDesktop::readSettings);
    // Without the name of the sender, which Qt would ask the bus for and wait.
    bus.connect({}, PortalPath, SettingsInterface, u"SettingChanged"_s, this,
                SLOT(takeSetting(QString, QString, QDBusVariant)));
    readSettings();
}

void PortalDesktop::readSettings()
{
    auto message
        = QDBusMessage::createMethodCall(PortalName, PortalPath, SettingsInterface, u"ReadAll"_s);
    message.setAutoStartService(false);
    message << QStringList{AppearanceSpace, InterfaceSpace};
    whenAnswered(m_bus->connection().asyncCall(message), this, sessionLog(),
                 "the portal's settings", [this](const QDBusPendingReply<Settings>& reply) {
                     takeSettings(reply.isError() ? Settings() : reply.value());
                 });
}

void PortalDesktop::takeSettings(const QMap<QString, QVariantMap>& settings)
{
    for (const auto& [space, values] : settings.asKeyValueRange()) {
        for (const auto& [key, value] : values.asKeyValueRange()) {
            takeSetting(space, key, QDBusVariant(value));
        }
    }
}

void PortalDesktop::takeSetting(const QString& space, const QString& key, const QDBusVariant& value)
{
    const auto wasReduced = isMotionReduced();
    if (space == AppearanceSpace && key == ReducedMotionKey) {
        m_wantsLessMotion = value.variant().toUInt() == 1;
    } else if (space == InterfaceSpace && key == AnimationsKey) {
        m_allowsAnimations = value.variant().toBool();
    } else if (space == InterfaceSpace && key == IconThemeKey) {
        Q_EMIT iconThemeNamed(value.variant().toString());
    }
    if (isMotionReduced() != wasReduced) {
        Q_EMIT isMotionReducedChanged();
    }
}

} // namespace quib
