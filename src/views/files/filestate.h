#pragma once

#include "integrations/opening/fileprobe.h"

#include <QPointer>

#include <optional>

#include <qqmlintegration.h>

namespace quib {

/// Whether the file at a path is there, as of the last look at the disk.
class FileState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::FileProbe* probe READ probe WRITE setProbe NOTIFY probeChanged REQUIRED)
    Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged)
    Q_PROPERTY(bool isThere READ isThere NOTIFY changed)
    Q_PROPERTY(bool isUnknown READ isUnknown NOTIFY changed)

public:
    using QObject::QObject;

    FileProbe* probe() const { return m_probe; }
    QString path() const { return m_path; } ///< Full.
    /// Believed until somebody has looked.
    bool isThere() const { return !m_presence || *m_presence == FilePresence::There; }
    /// Nobody has looked yet, or the disk did not answer.
    bool isUnknown() const { return !m_presence || *m_presence == FilePresence::Unknown; }

    /// Borrowed: without one nobody looks.
    void setProbe(FileProbe* probe);
    void setPath(const QString& path);

    /// Has somebody look anew. What is known stays until the answer comes.
    Q_INVOKABLE void ask();

Q_SIGNALS:
    void probeChanged();
    void pathChanged();
    void changed();

private:
    void take(std::optional<FilePresence> presence);

    QPointer<FileProbe> m_probe;
    QString m_path;
    std::optional<FilePresence> m_presence; ///< Absent until somebody has looked.
    int m_question = 0; ///< Counts them: only the last one's answer is taken.
};

} // namespace quib
