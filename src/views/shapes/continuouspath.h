#pragma once

#include <QPainterPath>

namespace quib {

/// A rectangle whose corners bend smoothly out of the straight edges. The corner passes where a
/// circle of that radius would; with half the height or more the ends are whole circles.
QPainterPath continuousPath(const QRectF& rect, double radius);

} // namespace quib
