#pragma once

#include <QRect>

namespace quib {

/// A place for a window of at most that size, margins of a window manager included: below the card
/// where that leaves it room, else in the middle of what is available. Global points.
QRect placeClearOf(const QRect& card, const QRect& available, QSize wanted);

} // namespace quib
