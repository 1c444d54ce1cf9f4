#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>

class QScreen;

namespace quib {

/// The screen in the X server's pixels. Qt keeps the corner of a screen and scales its size.
QRect nativeGeometry(const QScreen& screen);

/// A place in the X server's pixels, in global points.
QPointF toPoints(QPoint native);

} // namespace quib
