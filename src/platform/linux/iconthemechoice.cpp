#include "platform/linux/iconthemechoice.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

using Settings = QMap<QString, QVariantMap>; ///< By namespace, then key.

constexpr auto PortalName = "org.freedesktop.portal.Desktop"_L1;
constexpr auto PortalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto SettingsInterface = "org.freedesktop.portal.Settings"_L1;
constexpr auto InterfaceSpace = "org.gnome.desktop.interface"_L1;
constexpr auto ThemeKey = "icon-theme"_L1;

} // namespace

IconThemeChoice::IconThemeChoice(QDBusConnection bus, QObject* parent)
    : QObject(parent)
    , m_bus(std::move(bus))
{
    if (!m_bus.isConnected()) {
        return;
    }
    qDBusRegisterMetaType<Settings>();
    auto* watcher = new QDBusServiceWatcher(PortalName, m_bus,
                                            QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &IconThemeChoice::ask);
    // Without the name of the sender, which Qt would ask the bus for and wait.
    m_bus.connect({}, PortalPath, SettingsInterface, u"SettingChanged"_s, this,
                  SLOT(takeSetting(QString, QString, QDBusVariant)));
    ask();
}

void IconThemeChoice::ask()
{
    auto message
        = QDBusMessage::createMethodCall(PortalName, PortalPath, SettingsInterface, u"ReadAll"_s);
    message.setAutoStartService(false);
    message << QStringList{InterfaceSpace};
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<Settings> reply = *watcher;
        const auto values = reply.isError() ? QVariantMap() : reply.value().value(InterfaceSpace);
        if (values.contains(ThemeKey)) {
            takeSetting(InterfaceSpace, ThemeKey, QDBusVariant(values.value(ThemeKey)));
        }
    });
}

void IconThemeChoice::takeSetting(const QString& space, const QString& key,
                                  const QDBusVariant& value)
{
    if (space == InterfaceSpace && key == ThemeKey) {
        Q_EMIT told(value.variant().toString());
    }
}

} // namespace quib
