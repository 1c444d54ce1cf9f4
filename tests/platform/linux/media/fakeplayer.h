#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QVariantMap>

/// A player on the session bus, on a connection of its own, that says whatever a test wants.
class FakePlayer final : public QDBusVirtualObject {
public:
    QVariantMap properties{
        {QStringLiteral("PlaybackStatus"), QStringLiteral("Playing")},
        {QStringLiteral("Metadata"),
         QVariantMap{{QStringLiteral("xesam:title"), QStringLiteral("So What")},
                     {QStringLiteral("xesam:artist"),
                      QStringList{QStringLiteral("Miles Davis"), QStringLiteral("Bill Evans")}}}}};
    bool refuses = false;
    QStringList calls; ///< Methods of all interfaces, in order.

    /// The name is what follows the common start of all players' names.
    explicit FakePlayer(const QString& name)
        : m_connectionName(QStringLiteral("player ") + name)
        , m_name(QStringLiteral("org.mpris.MediaPlayer2.") + name)
    {
    }

    ~FakePlayer() override { QDBusConnection::disconnectFromBus(m_connectionName); }
    Q_DISABLE_COPY_MOVE(FakePlayer)

    bool start()
    {
        auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_connectionName);
        return bus.registerVirtualObject(QStringLiteral("/org/mpris/MediaPlayer2"), this)
            && bus.registerService(m_name);
    }

    void setTitle(const QString& title)
    {
        properties[QStringLiteral("Metadata")]
            = QVariantMap{{QStringLiteral("xesam:title"), title}};
    }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        calls << message.member();
        if (refuses) {
            return bus.send(message.createErrorReply(QDBusError::AccessDenied, m_name));
        }
        const bool isQuestion = message.member() == QStringLiteral("GetAll");
        return bus.send(isQuestion ? message.createReply(properties) : message.createReply());
    }

private:
    QString m_connectionName;
    QString m_name;
};
