#pragma once

#include "support/sendsignal.h"
#include "support/writefile.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

/// A disk with one file, "file", that does not answer: a file system whose program is stopped.
class HungDisk {
public:
    HungDisk()
    {
        writeFile(m_folder.filePath(QStringLiteral("there/file")), "x");
        QDir(m_folder.path()).mkdir(QStringLiteral("disk"));
        m_program.start(QStringLiteral("bindfs"),
                        {QStringLiteral("-f"), QStringLiteral("-o"),
                         QStringLiteral("attr_timeout=0,entry_timeout=0"),
                         m_folder.filePath(QStringLiteral("there")),
                         m_folder.filePath(QStringLiteral("disk"))});
        const auto isThere = [this] { return QFile::exists(path(QStringLiteral("file"))); };
        m_isHung
            = m_program.waitForStarted()
            && QTest::qWaitFor(
                  [&] { return isThere() || m_program.state() == QProcess::NotRunning; }, 10'000);
        m_isHung = m_isHung && m_program.state() == QProcess::Running;
        tell(SIGSTOP);
    }

    ~HungDisk()
    {
        answerAtLast();
        m_program.terminate(); // It takes its disk away.
        m_program.waitForFinished(10'000);
    }
    Q_DISABLE_COPY_MOVE(HungDisk)

    /// False too where none can be had.
    bool isHung() const { return m_isHung; }
    /// Why none can be had.
    QByteArray hindrance()
    {
        const auto complaint = m_program.readAllStandardError().trimmed();
        return "no file system can be mounted here: "
            + (complaint.isEmpty() ? m_program.errorString().toLocal8Bit() : complaint);
    }
    QString path(const QString& name) const
    {
        return m_folder.filePath(QStringLiteral("disk/")) + name;
    }

    void answerAtLast()
    {
        tell(SIGCONT);
        m_isHung = false;
    }

private:
    void tell(int signal)
    {
        if (m_isHung) {
            sendSignal(m_program.processId(), signal);
        }
    }

    QTemporaryDir m_folder;
    QProcess m_program;
    bool m_isHung = false;
};
