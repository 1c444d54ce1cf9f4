#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QVariantMap>

/// A service on a bus, on a connection of its own.
class LockService : public QDBusVirtualObject {
public:
    ~LockService() override { die(); }
    LockService(const LockService&) = delete;
    LockService& operator=(const LockService&) = delete;

    void die()
    {
        QDBusConnection::disconnectFromBus(m_bus.name());
        m_bus = QDBusConnection(QString()); // It lives as long as somebody holds it.
    }

    QString introspect(const QString& /*path*/) const override { return {}; }

protected:
    LockService(const QString& address, const QString& name, const QString& path)
        : m_bus(QDBusConnection::connectToBus(address, name))
    {
        m_bus.registerVirtualObject(path, this, QDBusConnection::SubPath);
        m_bus.registerService(name);
    }

    void send(const QDBusMessage& message) const { m_bus.send(message); }

private:
    QDBusConnection m_bus;
};

/// What tells whether sessions are locked, of which it knows one: by its id, and as the user's own.
class LoginService : public LockService {
public:
    static constexpr auto SessionId = "c7";

    explicit LoginService(const QString& address)
        : LockService(address, QStringLiteral("org.freedesktop.login1"),
                      QStringLiteral("/org/freedesktop/login1"))
    {
    }

    void setLocked(bool isLocked)
    {
        m_isLocked = isLocked;
        send(announcement(isLocked));
    }

    /// What any program on the bus can say.
    static QDBusMessage announcement(bool isLocked)
    {
        auto message
            = QDBusMessage::createSignal(path(), QStringLiteral("org.freedesktop.DBus.Properties"),
                                         QStringLiteral("PropertiesChanged"));
        message << QStringLiteral("org.freedesktop.login1.Session")
                << QVariantMap{{QStringLiteral("LockedHint"), isLocked}} << QStringList();
        return message;
    }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        const auto argument = call.arguments().value(0).toString();
        if (call.member() == QLatin1String("Get") && call.path() == path()) {
            return bus.send(call.createReply(QVariant::fromValue(QDBusVariant(m_isLocked))));
        }
        if (argument == QLatin1String(SessionId) || argument == QLatin1String("auto")) {
            return bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(path()))));
        }
        return bus.send(call.createErrorReply(
            QStringLiteral("org.freedesktop.login1.NoSuchSession"), QString()));
    }

private:
    static QString path() { return QStringLiteral("/org/freedesktop/login1/session/c7"); }

    bool m_isLocked = false;
};

/// A screen saver under one of the names that they have.
class SaverService : public LockService {
public:
    SaverService(const QString& address, const QString& name)
        : LockService(address, name, pathOf(name))
        , m_name(name)
    {
    }

    void setActive(bool isActive)
    {
        m_isActive = isActive;
        auto message
            = QDBusMessage::createSignal(pathOf(m_name), m_name, QStringLiteral("ActiveChanged"));
        message << isActive;
        send(message);
    }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override
    {
        return bus.send(call.createReply(m_isActive));
    }

private:
    static QString pathOf(QString name)
    {
        return QLatin1Char('/') + name.replace(QLatin1Char('.'), QLatin1Char('/'));
    }

    QString m_name;
    bool m_isActive = false;
};
