#pragma once

#include "support/writefile.h"

#include <QTemporaryDir>

/// A user whose downloads go to a folder of the test's own, for as long as this lives.
class DownloadsForTest {
public:
    DownloadsForTest()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.path()));
        QDir(m_home.path()).mkdir(QStringLiteral("Downloads"));
        writeFile(m_home.filePath(QStringLiteral("user-dirs.dirs")),
                  "XDG_DOWNLOAD_DIR=\"" + QFile::encodeName(path()) + "\"\n");
    }
    ~DownloadsForTest() { qunsetenv("XDG_CONFIG_HOME"); }
    Q_DISABLE_COPY_MOVE(DownloadsForTest)

    QString path() const { return m_home.filePath(QStringLiteral("Downloads")); }
    void remove() const { QDir(path()).removeRecursively(); }

    /// The full paths of what was downloaded.
    QStringList files() const
    {
        QStringList found;
        for (const auto& file : QDir(path()).entryInfoList(QDir::Files)) {
            found << file.absoluteFilePath();
        }
        return found;
    }

private:
    QTemporaryDir m_home;
};
