#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Writes a file over what was there, and makes the folders that it needs. Gives its path back.
inline QString writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s can't be written", qPrintable(path));
    }
    return path;
}
