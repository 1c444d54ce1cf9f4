#include "platform/linux/session/desktoplock.h"

#include "platform/linux/base/log.h"

#include <utility>

namespace quib {

DesktopLock::DesktopLock(std::shared_ptr<SessionBus> sessionBus, std::shared_ptr<Bus> systemBus)
    : m_session(std::move(systemBus))
    , m_savers(std::move(sessionBus))
{
    connect(&m_session, &LoginSession::isLockedChanged, this, &DesktopLock::follow);
    connect(&m_savers, &ScreenSavers::isActiveChanged, this, &DesktopLock::follow);
}

void DesktopLock::follow()
{
    if (std::exchange(m_wasLocked, isLocked()) != isLocked()) {
        qCDebug(sessionLog) << (isLocked() ? "is locked" : "is not locked");
        Q_EMIT isLockedChanged();
    }
}

} // namespace quib
