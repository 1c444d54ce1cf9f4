#include "desktop/desk/recorder.h"

#include "support/writefile.h"

#include <QUrl>

using namespace Qt::StringLiterals;

Recorder::Recorder(Desk& desk, const QStringList& types)
    : m_record(desk.folder(u"record"_s))
{
    const auto program
        = writeFile(desk.folder(u"recorder"_s),
                    "#!/bin/sh\nprintf '%s\\n' \"$1\" >> '" + QFile::encodeName(m_record) + "'\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    writeFile(desk.folder(u".local/share/applications/recorder.desktop"_s),
              "[Desktop Entry]\nType=Application\nName=Recorder\nExec=" + QFile::encodeName(program)
                  + " %u\nMimeType=" + types.join(u';').toUtf8() + ";\n");
    QByteArray defaults = "[Default Applications]\n";
    for (const auto& type : types) {
        defaults += type.toUtf8() + "=recorder.desktop\n";
    }
    writeFile(desk.folder(u".config/mimeapps.list"_s), defaults);
}

QStringList Recorder::opened() const
{
    QFile file(m_record);
    QStringList found;
    if (file.open(QIODevice::ReadOnly)) {
        const auto lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (const auto& line : lines) {
            const QUrl url(line);
            found << (url.isLocalFile() ? url.toLocalFile() : line);
        }
    }
    return found;
}

QString Recorder::openedLast() const
{
    const auto all = opened();
    return all.isEmpty() ? QString() : all.last();
}
