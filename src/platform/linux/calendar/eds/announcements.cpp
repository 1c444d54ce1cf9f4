#include "platform/linux/calendar/eds/announcements.h"

#include <algorithm>
#include <utility>

namespace quib {

namespace {

using namespace std::chrono_literals;

constexpr auto Pause = 50ms; ///< Changes come in bursts.
constexpr int MostDoublings = 10; ///< Of the pause before a service that crashes is tried again.

} // namespace

Announcements::Announcements(std::function<void()> announce)
    : m_announce(std::move(announce))
{
}

void Announcements::tellOfChange()
{
    announceIn(Pause);
}

void Announcements::tellOfDeath()
{
    if (!std::exchange(m_tellsOfDeath, true)) {
        announceIn(Pause * (1 << std::min(m_deaths++, MostDoublings)));
    }
}

/// Unless one is due sooner anyway.
void Announcements::announceIn(std::chrono::milliseconds delay)
{
    const auto due = std::chrono::steady_clock::now() + delay;
    if (m_next.isDue() && m_due <= due) {
        return;
    }
    m_due = due;
    m_next.start(delay, [this] {
        m_tellsOfDeath = false;
        m_announce();
    });
}

} // namespace quib
