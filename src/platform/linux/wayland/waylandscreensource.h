#pragma once

#include "app/shell/screensource.h"

#include <QTimer>

namespace quib {

/// Qt's screens. Which of them is the main one, and what docks leave free, Wayland does not tell.
class WaylandScreenSource final : public ScreenSource {
    Q_OBJECT

public:
    WaylandScreenSource();

    QList<Screen> screens() const override;

private:
    QTimer m_settle; ///< One turn of the loop: a rearrangement comes as many signals.
};

} // namespace quib
