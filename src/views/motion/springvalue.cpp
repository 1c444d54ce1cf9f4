#include "views/motion/springvalue.h"

#include <QAbstractAnimation>

#include <functional>
#include <utility>

namespace quib {

namespace {

constexpr double FirstStep = 1.0 / 60;

/// Calls back once a frame until stopped. Says nothing of time: render loops may turn the time of
/// animations faster than the clock.
class Frames final : public QAbstractAnimation {
public:
    explicit Frames(std::function<void()> tick)
        : m_tick(std::move(tick))
    {
    }

    int duration() const override { return -1; }

protected:
    void updateCurrentTime(int currentTime) override
    {
        if (currentTime > 0) {
            m_tick();
        }
    }

private:
    std::function<void()> m_tick;
};

} // namespace

SpringValue::SpringValue(QObject* parent)
    : QObject(parent)
    , m_frames(std::make_unique<Frames>([this] { tick(); }))
{
}

SpringValue::~SpringValue() = default;

void SpringValue::setTarget(double target)
{
    if (m_target == target) {
        return;
    }
    m_shape = target > m_target ? rising : falling;
    m_target = target;
    Q_EMIT targetChanged();
    if (m_isSnapping || !m_isComplete) {
        snap();
    } else if (!m_isRunning) {
        start();
    }
}

void SpringValue::setSnapping(bool isSnapping)
{
    if (m_isSnapping == isSnapping) {
        return;
    }
    m_isSnapping = isSnapping;
    Q_EMIT isSnappingChanged();
    if (m_isSnapping) {
        snap();
    }
}

void SpringValue::snap()
{
    m_frames->stop();
    const bool moves = m_isRunning || m_state.value != m_target || m_state.velocity != 0;
    m_state = {.value = m_target};
    if (moves) {
        Q_EMIT valueChanged();
    }
    setRunning(false);
}

void SpringValue::componentComplete()
{
    m_isComplete = true;
}

void SpringValue::start()
{
    m_sinceStep.start();
    setRunning(true);
    m_frames->start();
    advance(FirstStep);
}

void SpringValue::tick()
{
    advance(static_cast<double>(m_sinceStep.nsecsElapsed()) / 1e9);
}

void SpringValue::advance(double seconds)
{
    m_sinceStep.start();
    m_state = stepSpring(m_state, m_target, m_shape, seconds);
    if (hasSettled(m_state, m_target, m_shape)) {
        snap();
    } else {
        Q_EMIT valueChanged();
    }
}

void SpringValue::setRunning(bool isRunning)
{
    if (m_isRunning == isRunning) {
        return;
    }
    m_isRunning = isRunning;
    Q_EMIT isRunningChanged();
}

} // namespace quib
