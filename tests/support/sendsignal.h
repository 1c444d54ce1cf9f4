#pragma once

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <csignal>

/// Whether none of its threads goes on; also where there is no such process.
inline bool isStopped(qint64 process)
{
    const QDir threads(QStringLiteral("/proc/%1/task").arg(process));
    const auto names = threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::ranges::all_of(names, [&threads](const QString& name) {
        QFile file(threads.filePath(name + QStringLiteral("/stat")));
        const auto facts = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const auto state = facts.mid(facts.lastIndexOf(')') + 2, 1); // Behind the program's name.
        return state != "R" && state != "S" && state != "D";
    });
}

/// To a program that runs: the number of one that does not would mean everything around the test.
/// One that is told to stop has stopped when this returns.
inline void sendSignal(qint64 process, int signal)
{
    if (process <= 0) {
        qFatal("no program is there to have signal %d", signal);
    }
    ::kill(static_cast<pid_t>(process), signal);
    // The kernel tells nobody but the parent. No events meanwhile: they are not this one's to
    // handle.
    for (QDeadlineTimer end(10'000); signal == SIGSTOP && !isStopped(process);) {
        if (end.hasExpired()) {
            qFatal("program %lld has not stopped", process);
        }
        QThread::msleep(1);
    }
}
