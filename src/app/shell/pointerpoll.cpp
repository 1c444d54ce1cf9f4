#include "app/shell/pointerpoll.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto FastTick = 16ms; // The whole milliseconds next to a sixtieth of a second.
constexpr auto SlowTick = 500ms; // For pointers that are moved without an event.
constexpr int TicksToSleep = 1s / FastTick;
/// So that a hand that pauses is told of at once when it goes on, and one that moves need not be.
constexpr int TicksToAnnounce = 3;

} // namespace

PointerPoll::PointerPoll(PointerSource* pointer, Scheduler schedule)
    : m_pointer(pointer)
    , m_schedule(std::move(schedule))
{
}

PointerState PointerPoll::look()
{
    const auto now = m_pointer->state();
    if (std::exchange(m_last, now) != now || now.leftHeld) {
        m_quietTicks = 0;
    }
    return now;
}

void PointerPoll::begin()
{
    connect(m_pointer, &PointerSource::changed, this, &PointerPoll::wake);
    if (m_pointer->needsPolling()) {
        m_next = m_schedule(FastTick, [this] { tick(); });
    }
}

void PointerPoll::wake()
{
    m_quietTicks = 0;
    tick();
}

void PointerPoll::tick()
{
    m_quietTicks = std::min(m_quietTicks + 1, TicksToSleep);
    Q_EMIT due();
    if (m_isKeptAwake) {
        m_quietTicks = 0;
    }
    if (m_pointer->needsPolling()) {
        m_next = m_schedule(pause(), [this] { tick(); });
    }
}

/// What moves before the announcement counts is seen by the ticks between it and the sleep.
std::chrono::milliseconds PointerPoll::pause() const
{
    const bool isAnnounced = m_quietTicks >= TicksToAnnounce && m_pointer->announceNextChange();
    return isAnnounced && m_quietTicks >= TicksToSleep ? SlowTick : FastTick;
}

} // namespace quib
