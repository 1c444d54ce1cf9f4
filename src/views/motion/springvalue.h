#pragma once

#include "views/motion/spring.h"

#include <QElapsedTimer>
#include <QObject>
#include <QQmlParserStatus>

#include <qqmlintegration.h>

#include <memory>

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
    Q_PROPERTY(quib::SpringShape rising MEMBER rising)
    Q_PROPERTY(quib::SpringShape falling MEMBER falling)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(bool isSnapping READ isSnapping WRITE setSnapping NOTIFY isSnappingChanged)

public:
    SpringShape rising; ///< For targets above the one before.
    SpringShape falling; ///< And below.

    explicit SpringValue(QObject* parent = nullptr);
    ~SpringValue() override;

    double value() const { return m_state.value; }
    double velocity() const { return m_state.velocity; }
    double target() const { return m_target; }
    bool isRunning() const { return m_isRunning; }
    /// True where nothing may move: each new target is reached at once.
    bool isSnapping() const { return m_isSnapping; }

    void setTarget(double target);
    void setSnapping(bool isSnapping);
    /// Ends the movement: the value is the target from now on.
    Q_INVOKABLE void snap();

    void classBegin() override { m_isComplete = false; }
    void componentComplete() override;

Q_SIGNALS:
    void valueChanged();
    void targetChanged();
    void isRunningChanged();
    void isSnappingChanged();

private:
    void start();
    void tick();
    void advance(double seconds);
    void setRunning(bool isRunning);

    SpringState m_state;
    double m_target = 0;
    SpringShape m_shape; ///< Of the present movement.
    bool m_isRunning = false;
    bool m_isSnapping = false;
    bool m_isComplete = true;
    QElapsedTimer m_sinceStep;
    std::unique_ptr<QAbstractAnimation> m_frames;
};

} // namespace quib
