#include "packaging/installed.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

Installed::Installed()
    : m_problem(complaintOf(QStringLiteral(CMAKE),
                            {u"--install"_s, QStringLiteral(BUILD_FOLDER), u"--prefix"_s, path()}))
{
}

QStringList Installed::files() const
{
    QStringList files;
    for (QDirIterator it(path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        files << it.next().sliced(path().size() + 1);
    }
    files.sort();
    return files;
}

QByteArray complaintOf(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(tool, arguments);
    if (!process.waitForFinished(60'000)) {
        return "can't run " + tool.toUtf8();
    }
    const bool isContent = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isContent ? QByteArray() : "complains: " + process.readAll();
}

QString sourceFile(const QString& name)
{
    return QStringLiteral(SOURCE_FOLDER "/") + name;
}
