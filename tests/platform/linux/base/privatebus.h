#pragma once

#include "support/sendsignal.h"

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

/// A bus that can start the programs a test names, and that can hang, die and come back.
class PrivateBus {
public:
    explicit PrivateBus(const QString& connectionName)
        : m_connectionName(connectionName)
    {
    }

    ~PrivateBus() { die(); }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    /// Whoever calls the name while nobody owns it has the program started.
    bool canStart(const QString& name, const QString& command) const
    {
        return write(name + QStringLiteral(".service"),
                     QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n").arg(name, command));
    }

    bool start()
    {
        const auto settings = m_folder.filePath(QStringLiteral("bus.conf"));
        if (!write(QStringLiteral("bus.conf"), rules().arg(m_folder.path()))) {
            return false;
        }
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=") + settings});
        m_daemon.waitForReadyRead();
        m_printed = QString::fromUtf8(m_daemon.readAll()).trimmed();
        return connection().isConnected();
    }

    /// The same each time that it starts.
    QString address() const { return QStringLiteral("unix:path=") + socket(); }
    /// The same with the id of the bus that was started last.
    QString addressWithId() const { return m_printed; }
    QString socket() const { return m_folder.filePath(QStringLiteral("bus")); }
    QDBusConnection connection() const { return connect(m_connectionName); }
    QDBusConnection connect(const QString& name) const
    {
        return QDBusConnection::connectToBus(address(), name);
    }

    void hang() const { sendSignal(m_daemon.processId(), SIGSTOP); }
    void goOn() const { sendSignal(m_daemon.processId(), SIGCONT); }

    void die()
    {
        QDBusConnection::disconnectFromBus(m_connectionName);
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

private:
    static QString rules()
    {
        return QStringLiteral("<busconfig><type>session</type><listen>unix:path=%1/bus</listen>"
                              "<servicedir>%1</servicedir><policy context=\"default\">"
                              "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/><allow "
                              "own=\"*\"/></policy>"
                              "</busconfig>");
    }

    bool write(const QString& name, const QString& text) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) == text.toUtf8().size();
    }

    QString m_connectionName;
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_printed;
};
