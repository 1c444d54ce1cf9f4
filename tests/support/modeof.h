#pragma once

#include <QByteArray>
#include <QFile>

#include <sys/stat.h>

/// Who may do what with a file or folder, as "0600"; "none" where there is nothing.
inline QByteArray modeOf(const QString& path)
{
    struct stat facts { };
    return ::lstat(QFile::encodeName(path).constData(), &facts) == 0
        ? '0' + QByteArray::number(facts.st_mode & 0777, 8)
        : QByteArray("none");
}
