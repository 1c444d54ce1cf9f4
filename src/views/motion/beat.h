#pragma once

#include "model/time/clock.h"
#include "model/time/utc.h"

#include <QObject>
#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QTimer>

#include <qqmlintegration.h>

#include <chrono>

namespace quib {

/// How long until `elapsed` fills its next whole interval; never zero.
std::chrono::milliseconds untilNextBeat(std::chrono::milliseconds elapsed,
                                        std::chrono::milliseconds interval);

/// Beats for the item it stands in: at once when the item comes into sight, then each time another
/// whole interval since a moment is full, which is when a shown duration turns. Without a moment of
/// its own it beats with the wall clock. Out of sight, or with an invalid moment, nothing runs.
class Beat : public QObject, public QQmlParserStatus {
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QDateTime since READ since WRITE setSince NOTIFY sinceChanged)
    /// In seconds.
    Q_PROPERTY(double interval READ interval WRITE setInterval NOTIFY intervalChanged)
    /// Seconds from `since` to the last beat.
    Q_PROPERTY(double elapsed READ elapsed NOTIFY beat)
    /// The moment of the last beat.
    Q_PROPERTY(QDateTime now READ now NOTIFY beat)

public:
    using QObject::QObject;

    QDateTime since() const { return m_since; }
    double interval() const { return std::chrono::duration<double>(m_interval).count(); }
    double elapsed() const { return std::chrono::duration<double>(m_elapsed).count(); }
    QDateTime now() const { return m_now; }
    bool isRunning() const { return m_timer.isActive(); }
    std::chrono::milliseconds untilNext() const { return m_timer.intervalAsDuration(); }

    void setSince(const QDateTime& since);
    void setInterval(double seconds);
    void setClock(Clock clock);

    void classBegin() override { }
    void componentComplete() override;

Q_SIGNALS:
    void sinceChanged();
    void intervalChanged();
    void beat();

private:
    void restart();

    Clock m_clock = systemClock;
    QDateTime m_since = QDateTime::fromMSecsSinceEpoch(0, Utc);
    QDateTime m_now = m_clock(); ///< So that a first look reads no empty time.
    std::chrono::milliseconds m_interval{1000};
    std::chrono::milliseconds m_elapsed{0};
    QPointer<QQuickItem> m_item;
    QTimer m_timer;
};

} // namespace quib
