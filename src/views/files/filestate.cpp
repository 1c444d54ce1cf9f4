#include "views/files/filestate.h"

namespace quib {

void FileState::setProbe(FileProbe* probe)
{
    if (m_probe != probe) {
        m_probe = probe;
        Q_EMIT probeChanged();
        ask();
    }
}

void FileState::setPath(const QString& path)
{
    if (m_path == path) {
        return;
    }
    m_path = path;
    Q_EMIT pathChanged();
    take(std::nullopt);
    ask();
}

void FileState::ask()
{
    if (!m_probe || m_path.isEmpty()) {
        return;
    }
    m_probe->ask(m_path, [self = QPointer(this), question = ++m_question](FilePresence presence) {
        if (self && self->m_question == question) {
            self->take(presence);
        }
    });
}

void FileState::take(std::optional<FilePresence> presence)
{
    if (m_presence != presence) {
        m_presence = presence;
        Q_EMIT changed();
    }
}

} // namespace quib
