#pragma once

#include <QObject>

namespace quib {

/// Finds presses of a button whose state is only looked at now and then.
class PressEdge final : public QObject {
    Q_OBJECT

public:
    void see(bool isHeld)
    {
        if (isHeld && !m_wasHeld) {
            Q_EMIT pressed();
        }
        m_wasHeld = isHeld;
    }

Q_SIGNALS:
    void pressed();

private:
    bool m_wasHeld = false;
};

} // namespace quib
