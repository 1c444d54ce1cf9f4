#pragma once

#include <QDBusConnection>
#include <QProcess>

/// A bus beside the test's own, which may die.
class PrivateBus {
public:
    PrivateBus()
    {
        m_process.start(QStringLiteral("dbus-daemon"),
                        {QStringLiteral("--session"), QStringLiteral("--nofork"),
                         QStringLiteral("--print-address")});
        m_process.waitForReadyRead();
        m_address = QString::fromUtf8(m_process.readLine()).trimmed();
    }

    ~PrivateBus() { die(); }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    const QString& address() const { return m_address; }
    QDBusConnection connect(const QString& name) const
    {
        return QDBusConnection::connectToBus(m_address, name);
    }

    void die()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QString m_address;
};
