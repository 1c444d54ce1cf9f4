#pragma once

#include <QPainterPath>
#include <QString>

namespace quib {

/// An outline made for so many device pixels to its side, its lines that many pixels thick, its
/// edges on whole pixels. Empty at sizes at which the symbol needs no drawing of its own.
using PixelDrawing = QPainterPath (*)(int pixels, double line);

/// Symbols of several small parts, which scaling would smear: drawn for each size.
PixelDrawing pixelDrawing(const QString& name);

/// In a unit square, as all that follow: the shape with a round mark at its top right corner.
QPainterPath withBadge(const QPainterPath& shape);
QPainterPath withPlus(const QPainterPath& shape);

enum class Frame { Circle, Square };

/// The shape made small within a frame, as lines or cut out of a filled one.
QPainterPath framed(const QPainterPath& shape, Frame frame);
QPainterPath cutOutOf(Frame frame, const QPainterPath& shape);

} // namespace quib
