#include "platform/linux/session/loginsession.h"

#include "platform/linux/base/busanswer.h"
#include "platform/linux/base/log.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto ServiceName = "org.freedesktop.login1"_L1;
constexpr auto ManagerPath = "/org/freedesktop/login1"_L1;
constexpr auto ManagerInterface = "org.freedesktop.login1.Manager"_L1;
constexpr auto SessionInterface = "org.freedesktop.login1.Session"_L1;
constexpr auto PropertiesInterface = "org.freedesktop.DBus.Properties"_L1;

/// Of the environment, else that of the user's screen: services of the user are in no session.
QStringList sessionNames()
{
    const auto own = qEnvironmentVariable("XDG_SESSION_ID");
    QStringList names;
    if (!own.isEmpty()) {
        names << own;
    }
    return names << u"auto"_s;
}

} // namespace

LoginSession::LoginSession(std::shared_ptr<Bus> systemBus)
    : m_bus(std::move(systemBus))
{
    connect(m_bus.get(), &Bus::connected, this, &LoginSession::enterBus);
    connect(m_bus.get(), &Bus::lost, this, &LoginSession::leaveBus);
    if (m_bus->isConnected()) {
        enterBus();
    }
}

LoginSession::~LoginSession() = default;

void LoginSession::enterBus()
{
    m_service = std::make_unique<QDBusServiceWatcher>(ServiceName, m_bus->connection(),
                                                      QDBusServiceWatcher::WatchForRegistration);
    connect(m_service.get(), &QDBusServiceWatcher::serviceRegistered, this,
            [this] { findSession(sessionNames()); });
    findSession(sessionNames());
}

/// What the service said last holds until it can be asked again.
void LoginSession::leaveBus()
{
    m_service.reset();
    m_path.clear();
}

void LoginSession::findSession(QStringList names)
{
    if (names.isEmpty()) {
        setLocked(false); // There is no such session, or nobody who knows of any.
        return;
    }
    auto message = QDBusMessage::createMethodCall(ServiceName, ManagerPath, ManagerInterface,
                                                  u"GetSession"_s);
    message << names.takeFirst();
    send(message, [this, names](const QDBusPendingCall& call) {
        const QDBusPendingReply<QDBusObjectPath> reply = call;
        if (reply.isError()) {
            findSession(names);
        } else {
            follow(reply.value().path());
        }
    });
}

void LoginSession::follow(const QString& path)
{
    if (std::exchange(m_path, path) != path) {
        // Without the name of the sender, which Qt would ask the bus for and wait.
        auto bus = m_bus->connection();
        bus.connect({}, path, PropertiesInterface, u"PropertiesChanged"_s, this, SLOT(readHint()));
    }
    readHint();
}

/// Of the service itself: any program can say that something has changed.
void LoginSession::readHint()
{
    if (m_path.isEmpty()) {
        return;
    }
    auto message
        = QDBusMessage::createMethodCall(ServiceName, m_path, PropertiesInterface, u"Get"_s);
    message << QString(SessionInterface) << u"LockedHint"_s;
    send(message, [this](const QDBusPendingCall& call) {
        const QDBusPendingReply<QDBusVariant> reply = call;
        if (!reply.isError()) {
            setLocked(reply.value().variant().toBool());
        }
    });
}

void LoginSession::send(const QDBusMessage& message, Then then)
{
    whenAnswered(m_bus->connection().asyncCall(message), this, sessionLog(), "the login session",
                 std::move(then));
}

void LoginSession::setLocked(bool isLocked)
{
    if (std::exchange(m_isLocked, isLocked) != isLocked) {
        Q_EMIT isLockedChanged();
    }
}

} // namespace quib
