#include "views/motion/pulse.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace quib {

namespace {

using Seconds = std::chrono::duration<double>;

constexpr double Lowest = 0.35;
constexpr std::size_t StepsDown = 8;
constexpr std::size_t Steps = 2 * StepsDown; ///< As many up again.
constexpr Seconds Cycle{2};

/// When the level is half way between two steps, since the cycle's begin.
std::array<double, Steps> momentsOfSteps()
{
    std::array<double, Steps> moments{};
    for (std::size_t step = 0; step < StepsDown; ++step) {
        const auto eased = (double(step) + 0.5) / StepsDown;
        const auto moment = std::acos(1 - 2 * eased) / std::numbers::pi;
        moments.at(step) = moment;
        moments.at(Steps - 1 - step) = Cycle.count() - moment;
    }
    return moments;
}

} // namespace

double pulseLevel(std::chrono::nanoseconds sinceBegin)
{
    const double seconds = std::chrono::duration<double>(sinceBegin).count();
    const double eased = (1 - std::cos(std::numbers::pi * seconds)) / 2;
    return 1 - (1 - Lowest) * eased;
}

PulseStep pulseStep(std::chrono::nanoseconds sinceBegin)
{
    static const auto moments = momentsOfSteps();
    const auto now = std::fmod(Seconds(sinceBegin).count(), Cycle.count());
    const auto next = std::ranges::upper_bound(moments, now);
    const auto taken = std::size_t(next - moments.begin());
    const auto isLast = next == moments.end();
    const Seconds untilNext(isLast ? Cycle.count() + moments.front() - now : *next - now);
    const auto down = double(std::min(taken, Steps - taken));
    return {.level = 1 - (1 - Lowest) * down / StepsDown,
            .untilNext = std::chrono::ceil<std::chrono::nanoseconds>(untilNext)};
}

Pulse::Pulse(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Pulse::beat);
}

void Pulse::setRunning(bool isRunning)
{
    if (m_isWanted == isRunning) {
        return;
    }
    m_isWanted = isRunning;
    Q_EMIT runningChanged();
    restart();
}

void Pulse::componentComplete()
{
    m_item = qobject_cast<QQuickItem*>(parent());
    Q_ASSERT(m_item);
    connect(m_item, &QQuickItem::visibleChanged, this, &Pulse::restart);
    restart();
}

void Pulse::restart()
{
    m_timer.stop();
    setLevel(1);
    if (m_isWanted && m_item && m_item->isVisible()) {
        m_sinceBegin.start();
        beat();
    }
}

void Pulse::beat()
{
    const auto step = pulseStep(std::chrono::nanoseconds(m_sinceBegin.nsecsElapsed()));
    m_timer.start(std::chrono::ceil<std::chrono::milliseconds>(step.untilNext));
    setLevel(step.level);
}

void Pulse::setLevel(double level)
{
    if (m_level != level) {
        m_level = level;
        Q_EMIT levelChanged();
    }
}

} // namespace quib
