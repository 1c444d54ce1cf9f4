#pragma once

#include <QProcess>
#include <QStringList>

namespace quib {

/// A program that runs for as long as this lives.
class RunningProgram {
public:
    explicit RunningProgram(const QStringList& command)
    {
        m_process.start(command.first(), command.mid(1));
    }

    ~RunningProgram()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

private:
    QProcess m_process;
};

} // namespace quib
