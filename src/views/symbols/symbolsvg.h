#pragma once

#include <QByteArray>
#include <QPainterPath>

namespace quib {

/// All that an SVG picture fills and strokes, as one outline in a unit square; empty when it cannot
/// be read.
QPainterPath svgOutline(const QByteArray& svg);

/// Both outlines together, and the first without the second. In a unit square the path operations
/// of Qt flatten circles to octagons; these do not.
QPainterPath joined(const QPainterPath& one, const QPainterPath& other);
QPainterPath without(const QPainterPath& one, const QPainterPath& other);

} // namespace quib
