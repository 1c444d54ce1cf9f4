#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

/// A bus that can start the programs a test names, and that can die.
class PrivateBus {
public:
    explicit PrivateBus(const QString& connectionName)
        : m_connectionName(connectionName)
    {
    }

    ~PrivateBus()
    {
        QDBusConnection::disconnectFromBus(m_connectionName);
        die();
    }
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
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
        return connection().isConnected();
    }

    QString address() const { return m_address; }
    QDBusConnection connection() const { return connect(m_connectionName); }
    QDBusConnection connect(const QString& name) const
    {
        return QDBusConnection::connectToBus(m_address, name);
    }

    void die()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

private:
    static QString rules()
    {
        return QStringLiteral("<busconfig><type>session</type><listen>unix:dir=%1</listen>"
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
    QString m_address;
};
