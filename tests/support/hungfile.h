#pragma once

#include <QFile>
#include <QString>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

/// While it lives, whoever opens the file waits as for a disk that is gone: for as long as the
/// kernel gives a holder of a lease to give it back, 45 seconds.
class HungFile {
public:
    explicit HungFile(const QString& path)
        : m_file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC))
    {
        std::signal(SIGIO, SIG_IGN); // The kernel asks for the lease with it.
        m_isHung = fcntl(m_file, F_SETLEASE, F_WRLCK) == 0;
    }
    ~HungFile() { answerAtLast(); }
    Q_DISABLE_COPY_MOVE(HungFile)

    bool isHung() const { return m_isHung && fcntl(m_file, F_GETLEASE) != F_UNLCK; }
    /// That somebody waits to open it.
    bool isWaitedFor() const { return fcntl(m_file, F_GETLEASE) != F_WRLCK; }

    void answerAtLast()
    {
        if (m_file >= 0) {
            close(m_file); // The lease goes with it.
        }
        m_file = -1;
        m_isHung = false;
    }

private:
    int m_file;
    bool m_isHung = false;
};
