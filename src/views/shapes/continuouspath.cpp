#include "views/shapes/continuouspath.h"

#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace quib {

namespace {

constexpr int StepsOfACorner = 20; ///< Off by less than a thirtieth of a pixel at 80 pixels.

/// How far the corner reaches along its edges: half as far again as a circle, where there is room.
double cornerExtent(const QSizeF& size, double radius)
{
    return std::min({1.5 * radius, size.width() / 2, size.height() / 2});
}

/// Of the curve x^n + y^n = 1 that passes its corner as near as a circle of the radius does.
double cornerExponent(double radius, double extent)
{
    const double gap = (1 - std::numbers::sqrt2 / 2) * radius / extent;
    return std::numbers::ln2 / -std::log(1 - gap);
}

/// From (0, 1) to (1, 0), as shares of the extent, measured from the rectangle's corner.
std::array<QPointF, StepsOfACorner + 1> cornerCurve(double exponent)
{
    std::array<QPointF, StepsOfACorner + 1> curve;
    for (int i = 0; i <= StepsOfACorner; ++i) {
        const double angle = std::numbers::pi / 2 * i / StepsOfACorner;
        const double x = std::pow(std::max(0.0, std::cos(angle)), 2 / exponent);
        const double y = std::pow(std::max(0.0, std::sin(angle)), 2 / exponent);
        curve.at(static_cast<std::size_t>(i)) = QPointF(1 - x, 1 - y);
    }
    return curve;
}

} // namespace

QPainterPath continuousPath(const QRectF& rect, double radius)
{
    QPainterPath path;
    const double fitting = std::min({radius, rect.width() / 2, rect.height() / 2});
    if (fitting <= 0) {
        path.addRect(rect);
        return path;
    }
    const double extent = cornerExtent(rect.size(), fitting);
    const auto curve = cornerCurve(cornerExponent(fitting, extent));
    QPolygonF outline;
    const auto add = [&](QPointF corner, double right, double down, bool isReversed) {
        for (std::size_t i = 0; i < curve.size(); ++i) {
            const auto point = curve.at(isReversed ? curve.size() - 1 - i : i) * extent;
            outline << corner + QPointF(point.x() * right, point.y() * down);
        }
    };
    add(rect.topLeft(), 1, 1, false);
    add(rect.topRight(), -1, 1, true);
    add(rect.bottomRight(), -1, -1, false);
    add(rect.bottomLeft(), 1, -1, true);
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

} // namespace quib
