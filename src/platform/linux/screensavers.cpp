#include "platform/linux/screensavers.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// The interface is called like the name on the bus; so is the object, with slashes.
const QStringList& saverNames()
{
    static const QStringList names{u"org.freedesktop.ScreenSaver"_s, u"org.gnome.ScreenSaver"_s,
                                   u"org.mate.ScreenSaver"_s, u"org.cinnamon.ScreenSaver"_s,
                                   u"org.xfce.ScreenSaver"_s};
    return names;
}

QString pathOf(QString name)
{
    return u'/' + name.replace(u'.', u'/');
}

} // namespace

ScreenSavers::ScreenSavers(std::shared_ptr<SessionBus> bus)
    : m_bus(std::move(bus))
{
    connect(m_bus.get(), &SessionBus::connected, this, &ScreenSavers::enterBus);
    connect(m_bus.get(), &SessionBus::lost, this, &ScreenSavers::leaveBus);
    if (m_bus->isConnected()) {
        enterBus();
    }
}

ScreenSavers::~ScreenSavers() = default;

void ScreenSavers::enterBus()
{
    auto bus = m_bus->connection();
    m_owners = std::make_unique<QDBusServiceWatcher>();
    m_owners->setConnection(bus);
    m_owners->setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_owners->setWatchedServices(saverNames());
    connect(m_owners.get(), &QDBusServiceWatcher::serviceUnregistered, this,
            [this](const QString& name) { setActive(name, false); });
    connect(m_owners.get(), &QDBusServiceWatcher::serviceRegistered, this, &ScreenSavers::ask);
    for (const auto& name : saverNames()) {
        // From any object, as they have it in several places.
        bus.connect({}, {}, name, u"ActiveChanged"_s, this, SLOT(takeActive(bool)));
        ask(name);
    }
}

void ScreenSavers::leaveBus()
{
    m_owners.reset();
    for (const auto& name : saverNames()) {
        setActive(name, false);
    }
}

void ScreenSavers::ask(const QString& name)
{
    auto message = QDBusMessage::createMethodCall(name, pathOf(name), name, u"GetActive"_s);
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(m_bus->connection().asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, name] {
        watcher->deleteLater();
        const QDBusPendingReply<bool> reply = *watcher;
        if (!reply.isError()) {
            setActive(name, reply.value());
        }
    });
}

void ScreenSavers::takeActive(bool isActive)
{
    setActive(message().interface(), isActive);
}

void ScreenSavers::setActive(const QString& name, bool isActive)
{
    const bool wasActive = this->isActive();
    if (isActive) {
        m_active.insert(name);
    } else {
        m_active.remove(name);
    }
    if (this->isActive() != wasActive) {
        Q_EMIT isActiveChanged();
    }
}

} // namespace quib
