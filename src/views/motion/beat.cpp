#include "views/motion/beat.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quib {

std::chrono::milliseconds untilNextBeat(std::chrono::milliseconds elapsed,
                                        std::chrono::milliseconds interval)
{
    const auto sinceTurn = elapsed % interval; // below zero before the moment
    return sinceTurn.count() < 0 ? -sinceTurn : interval - sinceTurn;
}

void Beat::setSince(const QDateTime& since)
{
    if (m_since == since) {
        return;
    }
    m_since = since.toUTC(); // In local time it would be another moment once the time zone changes.
    Q_EMIT sinceChanged();
    restart();
}

void Beat::setInterval(double seconds)
{
    const std::chrono::milliseconds interval(std::max(1L, std::lround(seconds * 1000)));
    if (m_interval == interval) {
        return;
    }
    m_interval = interval;
    Q_EMIT intervalChanged();
    restart();
}

void Beat::setClock(Clock clock)
{
    m_clock = std::move(clock);
    restart();
}

void Beat::componentComplete()
{
    m_item = qobject_cast<QQuickItem*>(parent());
    Q_ASSERT(m_item);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Beat::restart);
    connect(m_item, &QQuickItem::visibleChanged, this, &Beat::restart);
    restart();
}

/// Armed anew from the clock each time, so that being late once makes nothing drift.
void Beat::restart()
{
    m_timer.stop();
    if (!m_item || !m_item->isVisible() || !m_since.isValid()) {
        return;
    }
    m_now = m_clock();
    m_elapsed = std::chrono::milliseconds(m_since.msecsTo(m_now));
    m_timer.start(untilNextBeat(m_elapsed, m_interval));
    Q_EMIT beat();
}

} // namespace quib
