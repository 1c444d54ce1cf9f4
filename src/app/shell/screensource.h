#pragma once

#include "app/notch/geometry.h"

#include <QObject>

namespace quib {

/// The screens of the desktop. Implemented once per platform; everything on the main thread.
class ScreenSource : public QObject {
    Q_OBJECT

public:
    /// In the desktop's order; empty for a moment while screens are being rearranged.
    virtual QList<Screen> screens() const = 0;

Q_SIGNALS:
    /// Once for each rearrangement, after it has settled.
    void changed();
};

} // namespace quib
