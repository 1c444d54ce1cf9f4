#pragma once

#include <QFile>
#include <QString>

/// Makes the file so many bytes large, with holes. What hinders it, as a reason to skip a test;
/// empty when it is done.
inline QByteArray enlarge(const QString& path, qint64 size)
{
    QFile file(path);
    if (file.open(QIODevice::ReadWrite) && file.resize(size)) {
        return {};
    }
    return "no file can be as large in the folder of the test: " + file.errorString().toLocal8Bit();
}
