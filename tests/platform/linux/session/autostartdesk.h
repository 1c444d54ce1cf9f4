#pragma once

#include "platform/linux/session/autostartentry.h"
#include "support/writefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// An account of a test's own whose session starts entries: the user's in "config", installed ones
/// in "first" and "second".
class AutostartDesk {
public:
    AutostartDesk()
    {
        qputenv("XDG_CURRENT_DESKTOP", "KDE");
        qputenv("HOME", QFile::encodeName(path(QStringLiteral("home"))));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(path(QStringLiteral("config"))));
        qputenv("XDG_CONFIG_DIRS",
                QFile::encodeName(path(QStringLiteral("first")) + QLatin1Char(':')
                                  + path(QStringLiteral("second"))));
        qputenv("QUIB_RECORDS", QFile::encodeName(path({})));
        qunsetenv("APPIMAGE");
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString userFile() const { return entryIn(QStringLiteral("config")); }
    QString entryIn(const QString& folder) const { return path(folder + entryName()); }

    QString makeFile(const QString& name, const QByteArray& bytes) const
    {
        return writeFile(path(name), bytes);
    }

    void putEntry(const QString& folder, const QByteArray& bytes) const
    {
        makeFile(folder + entryName(), bytes);
    }

    /// A program that records how it was started.
    QString install(const QString& name) const
    {
        auto program = path(name);
        QDir().mkpath(QFileInfo(program).path());
        QFile::copy(QStringLiteral(RECORD_PROGRAM), program);
        return program;
    }

    /// Without the system's own reader there is nothing to compare with.
    void compareWithTheDesktop() const
    {
        if (QFile::exists(generator())) {
            QCOMPARE(quib::AutostartEntry().isEnabled(), !unit().isEmpty());
        }
    }

private:
    static QString entryName() { return QStringLiteral("/autostart/org.korvel.Quib.desktop"); }

    static QString generator()
    {
        return QStringLiteral("/usr/lib/systemd/user-generators/systemd-xdg-autostart-generator");
    }

    /// What systemd would start; empty for nothing.
    QString unit() const
    {
        const auto folder = path(QStringLiteral("units"));
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
        QProcess reader;
        reader.start(generator(), {folder, folder, folder});
        reader.waitForFinished();
        QFile file(folder + QStringLiteral("/app-org.korvel.Quib@autostart.service"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    QTemporaryDir m_folder;
};
