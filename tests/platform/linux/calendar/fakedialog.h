#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// A desktop's dialog, on a connection of its own.
class FakeDialog : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Access")

public:
    uint response = 0;
    QString failure; ///< The name of the error that is answered instead.
    bool staysOpen = false;
    QStringList shownFor; ///< The applications.

    bool start(const QString& address, const QString& backend = QStringLiteral("gtk"))
    {
        m_bus = QDBusConnection::connectToBus(address, QStringLiteral("dialog ") + backend);
        m_connection = m_bus.name();
        return m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                    QDBusConnection::ExportScriptableSlots)
            && m_bus.registerService(QStringLiteral("org.freedesktop.impl.portal.desktop.")
                                     + backend);
    }

    ~FakeDialog() override { crash(); }
    FakeDialog() = default;
    Q_DISABLE_COPY_MOVE(FakeDialog)

    void crash() const { QDBusConnection::disconnectFromBus(m_connection); }
    void close(uint with) { m_bus.send(m_open.createReply({with, QVariantMap()})); }

public Q_SLOTS:
    Q_SCRIPTABLE uint AccessDialog(const QDBusObjectPath& /*handle*/, const QString& application,
                                   const QString& /*parent*/, const QString& /*title*/,
                                   const QString& /*subtitle*/, const QString& /*body*/,
                                   const QVariantMap& /*options*/, const QDBusMessage& message,
                                   QVariantMap& results)
    {
        shownFor << application;
        m_open = message;
        message.setDelayedReply(staysOpen || !failure.isEmpty());
        if (!failure.isEmpty()) {
            m_bus.send(message.createErrorReply(failure, QStringLiteral("As the bus says it.")));
        }
        results.clear();
        return response;
    }

private:
    QDBusConnection m_bus{QString()};
    QString m_connection;
    QDBusMessage m_open;
};
