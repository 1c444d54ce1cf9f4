#pragma once

#include "app/shell/panelhost.h"

namespace quib {

/// The panel as our own dialogs see it, which are windows of another program.
class LinuxPanelHost : public PanelHost {
    Q_OBJECT

public:
    /// Where clicks stay with the open panel, in global points.
    virtual QRect cardFrame() const = 0;
    /// Lets a dialog lie above the panel until that is ordered front again. `window` is the number
    /// that the X server knows it by; others need none.
    virtual void placeBelow(quint32 window) = 0;
};

} // namespace quib
