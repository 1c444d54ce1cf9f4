#pragma once

#include <QtGlobal>

#include <sys/stat.h>

/// The umask of the process, for as long as this lives.
class Umask {
public:
    explicit Umask(mode_t mask)
        : m_before(::umask(mask))
    {
    }
    ~Umask() { ::umask(m_before); }
    Q_DISABLE_COPY_MOVE(Umask)

private:
    mode_t m_before;
};
