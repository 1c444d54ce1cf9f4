#include "platform/linux/session/screensavers.h"

#include "platform/linux/base/busanswer.h"
#include "platform/linux/base/log.h"

#include <QDBusMessage>
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

bool meansNobody(const QDBusError& error)
{
    return error.type() == QDBusError::ServiceUnknown
        || error.name() == "org.freedesktop.DBus.Error.NameHasNoOwner"_L1;
}

} // namespace

ScreenSavers::ScreenSavers(std::shared_ptr<SessionBus> bus)
    : m_bus(std::move(bus))
{
    connect(m_bus.get(), &SessionBus::connected, this, &ScreenSavers::enterBus);
    connect(m_bus.get(), &SessionBus::lost, this, [this] { m_owners.reset(); });
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
    connect(m_owners.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            &ScreenSavers::followOwner);
    for (const auto& name : saverNames()) {
        // From any object, as they have it in several places.
        bus.connect({}, {}, name, u"ActiveChanged"_s, this, SLOT(askAgain(bool)));
        ask(name);
    }
}

void ScreenSavers::followOwner(const QString& name, const QString& /*before*/, const QString& now)
{
    if (now.isEmpty()) {
        setActive(name, false);
    } else {
        ask(name);
    }
}

void ScreenSavers::ask(const QString& name)
{
    auto message = QDBusMessage::createMethodCall(name, pathOf(name), name, u"GetActive"_s);
    message.setAutoStartService(false);
    whenAnswered(m_bus->connection().asyncCall(message), this, sessionLog(), "the screen saver",
                 [this, name](const QDBusPendingReply<bool>& reply) {
                     if (!reply.isError()) {
                         setActive(name, reply.value());
                     } else if (meansNobody(reply.error())) {
                         setActive(name, false);
                     }
                 });
}

/// Anybody can say so: the saver itself is asked.
void ScreenSavers::askAgain(bool /*isActive*/)
{
    ask(message().interface());
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
