#pragma once

#include "support/sendsignal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>

#include <csignal>
#include <utility>

#include <unistd.h>

/// A watcher of status items, in a process that can hang and die.
class WatcherProcess {
public:
    /// On the test's own bus unless another one's address is given.
    explicit WatcherProcess(const QString& bus = {})
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        if (!bus.isEmpty()) {
            environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
        }
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(WATCHER_PROGRAM), QStringList());
        m_process.waitForReadyRead();
    }

    ~WatcherProcess() { die(); }
    WatcherProcess(const WatcherProcess&) = delete;
    WatcherProcess& operator=(const WatcherProcess&) = delete;

    void hang() const { sendSignal(m_process.processId(), SIGSTOP); }
    void goOn() const { sendSignal(m_process.processId(), SIGCONT); }

    void die()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    qsizetype questions() { return told("asked"); }

    qsizetype registrations(const QString& item) { return told("registered " + item.toLatin1()); }

private:
    qsizetype told(const QByteArray& line)
    {
        m_told += m_process.readAllStandardOutput();
        return m_told.split('\n').count(line);
    }

    QProcess m_process;
    QByteArray m_told;
};

/// A status bar, which shows what the watcher knows for as long as it lives.
class Host {
public:
    explicit Host(const QString& name)
        : Host(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name))
    {
    }

    /// On a connection that nobody else uses.
    explicit Host(QDBusConnection bus)
        : m_bus(std::move(bus))
    {
        const auto watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
        auto message
            = QDBusMessage::createMethodCall(watcher, QStringLiteral("/StatusNotifierWatcher"),
                                             watcher, QStringLiteral("RegisterStatusNotifierHost"));
        message << m_bus.baseService();
        m_bus.call(message);
    }

    ~Host() { QDBusConnection::disconnectFromBus(m_bus.name()); }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

private:
    QDBusConnection m_bus;
};
