#pragma once

#include "platform/linux/base/connectedbus.h"
#include "platform/linux/statusitem/statusfixture.h"
#include "platform/linux/statusitem/statusnotifier.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QTest>

namespace quib {

/// A status item on the test's bus, and the connection of a status bar that asks it.
class ItemOnBus {
public:
    ItemOnBus()
        : ItemOnBus(connectedBus())
    {
    }

    ~ItemOnBus() { QDBusConnection::disconnectFromBus(m_host.name()); }
    ItemOnBus(const ItemOnBus&) = delete;
    ItemOnBus& operator=(const ItemOnBus&) = delete;

    StatusNotifier* operator->() { return &m_item; }
    StatusNotifier* get() { return &m_item; }
    QDBusConnection& host() { return m_host; }
    const QString& name() const { return m_name; }

    QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments) const
    {
        auto message = QDBusMessage::createMethodCall(m_name, path, interface, method);
        message.setArguments(arguments);
        const auto call = m_host.asyncCall(message);
        const auto isAnswered = QTest::qWaitFor([&call] { return call.isFinished(); });
        return isAnswered ? call.reply() : QDBusMessage();
    }

    QDBusMessage callMenu(const QString& method, const QVariantList& arguments = {}) const
    {
        return call(QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu"), method,
                    arguments);
    }

    QDBusMessage callItem(const QString& method, const QVariantList& arguments = {}) const
    {
        return call(QStringLiteral("/StatusNotifierItem"),
                    QStringLiteral("org.kde.StatusNotifierItem"), method, arguments);
    }

    /// Returns when the item has taken all that the bus had for it.
    void finishReading() const { callItem(QStringLiteral("Scroll"), {1, QStringLiteral("")}); }

    QVariantMap properties(const QString& path, const QString& interface) const
    {
        const auto reply = call(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                QStringLiteral("GetAll"), {interface});
        return qdbus_cast<QVariantMap>(reply.arguments().value(0));
    }

private:
    explicit ItemOnBus(const std::shared_ptr<SessionBus>& bus)
        : m_name(bus->connection().baseService())
        , m_item(bus)
    {
        m_item.install(squareIcon());
        m_item.setMenu(quibMenu());
    }

    QDBusConnection m_host
        = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("host"));
    QString m_name;
    StatusNotifier m_item;
};

} // namespace quib
