#pragma once

#include <QFile>

/// All of a file; nothing where it can't be read.
inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
