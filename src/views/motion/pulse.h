#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QTimer>

#include <qqmlintegration.h>

#include <chrono>

namespace quib {

/// From 1 down to 0.35 in a second and back up in another, easing in and out.
double pulseLevel(std::chrono::nanoseconds sinceBegin);

/// What is shown of a pulse from one moment until another.
struct PulseStep {
    double level = 1; ///< Never far from pulseLevel().
    std::chrono::nanoseconds untilNext{0};
};

PulseStep pulseStep(std::chrono::nanoseconds sinceBegin);

/// A level that goes up and down for the item it stands in, in steps of one size: each frame wakes
/// us and the window system several times, so there is none where little would change. It rests at
/// 1 while not running or while out of sight.
class Pulse : public QObject, public QQmlParserStatus {
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(bool running READ isWanted WRITE setRunning NOTIFY runningChanged)
    Q_PROPERTY(double level READ level NOTIFY levelChanged)

public:
    explicit Pulse(QObject* parent = nullptr);

    bool isWanted() const { return m_isWanted; }
    bool isBeating() const { return m_timer.isActive(); }
    double level() const { return m_level; }

    void setRunning(bool isRunning);

    void classBegin() override { }
    void componentComplete() override;

Q_SIGNALS:
    void runningChanged();
    void levelChanged();

private:
    void restart();
    void beat();
    void setLevel(double level);

    bool m_isWanted = false;
    double m_level = 1;
    QPointer<QQuickItem> m_item;
    QElapsedTimer m_sinceBegin;
    QTimer m_timer;
};

} // namespace quib
