#pragma once

#include "platform/linux/calendar/eds/delayedcall.h"

namespace quib {

/// Tells of what happens to the calendars: of a burst of changes once, and of a service that
/// crashes again and again later each time. Lives on a thread with a loop of GLib's own.
class Announcements {
public:
    explicit Announcements(std::function<void()> announce);

    void tellOfChange();
    /// Of the service, of which each of its calendars tells.
    void tellOfDeath();
    /// The next one is the first.
    void forgetDeaths() { m_deaths = 0; }

private:
    void announceIn(std::chrono::milliseconds delay);

    std::function<void()> m_announce;
    DelayedCall m_next;
    std::chrono::steady_clock::time_point m_due; ///< Of the next one.
    bool m_tellsOfDeath = false; ///< The next one.
    int m_deaths = 0;
};

} // namespace quib
