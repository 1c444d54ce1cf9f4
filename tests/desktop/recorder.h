#pragma once

#include "desk.h"
#include "support/writefile.h"

#include <QFile>

/// An application that writes down what it is asked to open, as the user's own for those types. The
/// file that it writes to.
inline QString recorder(Desk& desk, const QString& types)
{
    const auto record = desk.folder(QStringLiteral("record"));
    const auto target = QFile::encodeName(record);
    const auto program = writeFile(desk.folder(QStringLiteral("recorder")),
                                   "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + target + ".new'\nmv '"
                                       + target + ".new' '" + target + "'\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    writeFile(desk.folder(QStringLiteral(".local/share/applications/recorder.desktop")),
              "[Desktop Entry]\nType=Application\nName=Recorder\nExec=" + QFile::encodeName(program)
                  + " %f\nMimeType=" + types.toUtf8() + "\n");
    writeFile(desk.folder(QStringLiteral(".config/mimeapps.list")),
              "[Default Applications]\n" + types.chopped(1).toUtf8() + "=recorder.desktop\n");
    return record;
}

inline QString recorded(const QString& record)
{
    QFile file(record);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}
