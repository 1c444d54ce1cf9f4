#pragma once

#include <QProcess>

/// Why strace can not trace a program here, as in some containers; empty where it can.
inline QByteArray hindranceOfStrace()
{
    QProcess strace;
    strace.start(QStringLiteral("strace"),
                 {QStringLiteral("-o"), QStringLiteral("/dev/null"), QStringLiteral("true")});
    if (!strace.waitForStarted()) {
        qFatal("strace is not installed");
    }
    strace.waitForFinished();
    const bool traces = strace.exitStatus() == QProcess::NormalExit && strace.exitCode() == 0;
    return traces ? QByteArray()
                  : "strace may not trace here: " + strace.readAllStandardError().trimmed();
}
