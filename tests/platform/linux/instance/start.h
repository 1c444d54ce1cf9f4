#pragma once

#include "support/sendsignal.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QProcess>
#include <QString>

#include <csignal>

/// One start of a program that keeps to one instance.
class Start {
public:
    Start(const QString& folder, const QProcessEnvironment& environment)
    {
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(INSTANCE_PROGRAM), {folder});
        m_process.waitForReadyRead(5000);
        m_answer = QString::fromUtf8(m_process.readLine()).trimmed();
    }

    ~Start() { crash(); }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    QString answer() const { return m_answer; }

    qsizetype activations() { return count("activated"); }

    qsizetype count(const QByteArray& word)
    {
        m_told += m_process.readAllStandardOutput();
        return m_told.count(word);
    }

    void hang() const { sendSignal(m_process.processId(), SIGSTOP); }

    void crash()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QString m_answer;
    QByteArray m_told;
};

inline bool isOnBus(const QString& name)
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(name);
}
