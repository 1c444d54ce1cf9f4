#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// A file system of its own with little room, for as long as this lives. Anyone may write there.
class SmallDisk {
public:
    SmallDisk()
    {
        QProcess mount;
        mount.start(QStringLiteral("mount"),
                    {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                     QStringLiteral("size=256k"), QStringLiteral("quib-test"), m_dir.path()});
        mount.waitForFinished();
        m_mounted = mount.exitStatus() == QProcess::NormalExit && mount.exitCode() == 0;
        m_hindrance = mount.readAllStandardError().trimmed();
    }
    ~SmallDisk()
    {
        if (m_mounted) {
            QProcess::execute(QStringLiteral("umount"), {m_dir.path()});
        }
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    bool isMounted() const { return m_mounted; }
    QByteArray hindrance() const { return "no file system can be mounted here: " + m_hindrance; }
    QString path(const QString& name) const { return m_dir.filePath(name); }

    bool setReadOnly(bool isReadOnly) const
    {
        const auto how = isReadOnly ? QStringLiteral("remount,ro") : QStringLiteral("remount,rw");
        return QProcess::execute(QStringLiteral("mount"), {QStringLiteral("-o"), how, m_dir.path()})
            == 0;
    }

private:
    QTemporaryDir m_dir;
    bool m_mounted = false;
    QByteArray m_hindrance;
};
