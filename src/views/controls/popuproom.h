#pragma once

#include <QObject>

#include <qqmlintegration.h>

namespace quib {

/// How far popups stay from the edges of the window, in points. The body of the card, of which
/// nothing is seen outside, begins 38 points from the sides, at the top of the window, and ends 40
/// points above its bottom in round corners: so there is a gap to each edge.
class PopupRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(double left READ side CONSTANT)
    Q_PROPERTY(double right READ side CONSTANT)
    Q_PROPERTY(double top READ top CONSTANT)
    Q_PROPERTY(double bottom READ bottom CONSTANT)

public:
    using QObject::QObject;

    static constexpr double side() { return 46; }
    static constexpr double top() { return 4; }
    static constexpr double bottom() { return 48; }
};

} // namespace quib
