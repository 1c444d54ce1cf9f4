#pragma once

#include "views/motion/spring.h"

#include <QElapsedTimer>
#include <QObject>
#include <QQmlParserStatus>

#include <qqmlintegration.h>

#include <memory>
#include <optional>

class QAbstractAnimation;

namespace quib {

/// A number that follows its target like a spring, on a real clock. A new target on the way keeps
/// the velocity; from rest the first step of one frame is taken at once. At rest nothing runs.
class SpringValue : public QObject, public QQmlParserStatus {
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(double value READ value NOTIFY valueChanged)
    Q_PROPERTY(double velocity READ velocity NOTIFY valueChanged)
    Q_PROPERTY(double target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(double response READ response WRITE setResponse NOTIFY shapeChanged)
    Q_PROPERTY(double damping READ damping WRITE setDamping NOTIFY shapeChanged)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(bool isSnapping READ isSnapping WRITE setSnapping NOTIFY isSnappingChanged)

public:
    explicit SpringValue(QObject* parent = nullptr);
    ~SpringValue() override;

    double value() const { return m_state.value; }
    double velocity() const { return m_state.velocity; }
    double target() const { return m_target; }
    double response() const { return m_shape.response; }
    double damping() const { return m_shape.damping; }
    bool isRunning() const { return m_isRunning; }
    /// True where nothing may move: each new target is reached at once.
    bool isSnapping() const { return m_isSnapping; }

    void setTarget(double target);
    void setResponse(double seconds);
    void setDamping(double fraction);
    void setSnapping(bool isSnapping);
    /// Ends the movement: the value is the target from now on.
    Q_INVOKABLE void snap();

    void classBegin() override { m_isComplete = false; }
    void componentComplete() override;

Q_SIGNALS:
    void valueChanged();
    void targetChanged();
    void shapeChanged();
    void isRunningChanged();
    void isSnappingChanged();

private:
    void setShape(SpringShape shape);
    void start();
    void tick();
    void advance(double seconds);
    void setRunning(bool isRunning);

    SpringState m_state;
    /// The state before the first step, until the second: a shape that is set in the same breath as
    /// the target counts from there.
    std::optional<SpringState> m_rest;
    double m_target = 0;
    SpringShape m_shape;
    bool m_isRunning = false;
    bool m_isSnapping = false;
    bool m_isComplete = true;
    QElapsedTimer m_sinceStep;
    std::unique_ptr<QAbstractAnimation> m_frames;
};

} // namespace quib
