#pragma once

#include "app/shell/sessionlock.h"
#include "platform/linux/session/loginsession.h"
#include "platform/linux/session/screensavers.h"

namespace quib {

/// Locked where the login service or a screen saver says so: lockers tell one of them, or both.
class DesktopLock final : public SessionLock {
    Q_OBJECT

public:
    DesktopLock(std::shared_ptr<SessionBus> sessionBus, std::shared_ptr<Bus> systemBus);

    bool isLocked() const override { return m_session.isLocked() || m_savers.isActive(); }

private:
    void follow();

    LoginSession m_session;
    ScreenSavers m_savers;
    bool m_wasLocked = false; ///< When it was told last.
};

} // namespace quib
