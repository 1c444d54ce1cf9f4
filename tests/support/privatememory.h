#pragma once

#include <QFile>

/// What this process has of the memory for itself, in bytes.
inline qint64 privateMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        qFatal("the system does not tell of the process");
    }
    const auto text = status.readAll();
    const auto start = text.indexOf("RssAnon:") + 8;
    return text.mid(start, text.indexOf("kB", start) - start).trimmed().toLongLong() * 1024;
}
