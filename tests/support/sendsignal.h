#pragma once

#include <QtGlobal>

#include <csignal>

/// To a program that runs: the number of one that does not would mean everything around the test.
inline void sendSignal(qint64 process, int signal)
{
    if (process <= 0) {
        qFatal("no program is there to have signal %d", signal);
    }
    ::kill(static_cast<pid_t>(process), signal);
}
