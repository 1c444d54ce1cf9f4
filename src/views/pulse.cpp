#include "views/pulse.h"

#include <cmath>
#include <numbers>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr double Lowest = 0.35;

} // namespace

double pulseLevel(std::chrono::nanoseconds sinceBegin)
{
    const double seconds = std::chrono::duration<double>(sinceBegin).count();
    const double eased = (1 - std::cos(std::numbers::pi * seconds)) / 2;
    return 1 - (1 - Lowest) * eased;
}

Pulse::Pulse(QObject* parent)
    : QObject(parent)
{
    m_timer.setInterval(50ms);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        setLevel(pulseLevel(std::chrono::nanoseconds(m_sinceBegin.nsecsElapsed())));
    });
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
        m_timer.start();
    }
}

void Pulse::setLevel(double level)
{
    if (m_level != level) {
        m_level = level;
        Q_EMIT levelChanged();
    }
}

} // namespace quib
