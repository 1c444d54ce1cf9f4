#include "views/symboldrawings.h"

#include "views/symbolsvg.h"

#include <QHash>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr double Line = 1.0 / 16; ///< Thickness of the icons' own lines.

QPainterPath disc(QPointF centre, double radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

/// A hole by parity, so that discs must not overlap.
QPainterPath ring(QPointF centre, double radius, double line)
{
    auto path = disc(centre, radius);
    path.addPath(disc(centre, radius - line));
    return path;
}

/// Seven places: two, three and two in a row.
std::array<QPointF, 7> hexagonPlaces(int pixels, int pitch)
{
    const double middle = (pixels - (pixels - pitch + 1) % 2) / 2.0;
    const double half = pitch / 2.0;
    const int rise = static_cast<int>(std::lround(pitch * 0.9));
    const auto place = [&](double x, int y) { return QPointF(middle + x, middle + y); };
    return {place(-half, -rise), place(half, -rise), place(-pitch, 0), place(0, 0),
            place(pitch, 0),     place(-half, rise), place(half, rise)};
}

/// Rings with a gap between them of a pixel at least.
QPainterPath hexagonGrid(int pixels, double line)
{
    const int pitch = std::max(1, pixels / 3);
    const int gap = std::max(1, pixels / 16);
    const double radius = (pitch - gap) / 2.0;
    QPainterPath path;
    for (const auto& place : hexagonPlaces(pixels, pitch)) {
        path.addPath(ring(place, radius, std::clamp(line, 1.0, std::max(1.0, radius * 0.6))));
    }
    return path;
}

QPainterPath filledHexagonGrid(int pixels, double /*line*/)
{
    const int pitch = std::max(1, pixels / 3);
    const int gap = std::max(1, pixels / 16);
    QPainterPath path;
    for (const auto& place : hexagonPlaces(pixels, pitch)) {
        path.addPath(disc(place, (pitch - gap) / 2.0));
    }
    return path;
}

/// Bars of whole pixels; fewer where there is no room for seven.
QPainterPath waveform(int pixels, double line)
{
    static constexpr std::array Heights{0.25, 0.55, 0.8, 1.0, 0.65, 0.85, 0.35};
    const int bar = std::max(1, static_cast<int>(std::lround(line)));
    const int pitch = std::max(bar + 1, pixels / 7);
    const int count = std::min(7, (pixels - bar) / pitch + 1);
    const int left = (pixels - ((count - 1) * pitch + bar)) / 2;
    QPainterPath path;
    for (int i = 0; i < count; ++i) {
        const auto height = Heights.at(static_cast<std::size_t>(i + (7 - count) / 2));
        const double tall = pixels - 2 * std::round(pixels * (1 - height) / 2);
        const QRectF box(left + i * pitch, (pixels - tall) / 2, bar, tall);
        path.addRoundedRect(box, bar / 2.0, bar / 2.0);
    }
    return path;
}

QPainterPath frameOutline(Frame frame, double inset)
{
    const QRectF box(inset, inset, 1 - 2 * inset, 1 - 2 * inset);
    QPainterPath path;
    switch (frame) {
    case Frame::Circle: path.addEllipse(box); break;
    case Frame::Square: path.addRoundedRect(box, 0.14 - inset, 0.14 - inset); break;
    }
    return path;
}

/// In the middle, at a bit more than half the size.
QPainterPath made(const QPainterPath& shape, double extent)
{
    const QRectF box = shape.boundingRect();
    const double factor = extent / std::max(box.width(), box.height());
    QTransform transform;
    transform.translate(0.5, 0.5);
    transform.scale(factor, factor);
    transform.translate(-box.center().x(), -box.center().y());
    return transform.map(shape);
}

} // namespace

PixelDrawing pixelDrawing(const QString& name)
{
    static const QHash<QString, PixelDrawing> drawings{
        {u"circle.hexagongrid"_s, hexagonGrid},
        {u"circle.hexagongrid.fill"_s, filledHexagonGrid},
        {u"waveform"_s, waveform},
    };
    return drawings.value(name, nullptr);
}

QPainterPath withBadge(const QPainterPath& shape)
{
    const QPointF corner(0.84, 0.16);
    return joined(without(shape, disc(corner, 0.25)), disc(corner, 0.17));
}

QPainterPath withPlus(const QPainterPath& shape)
{
    QTransform smaller;
    smaller.translate(0, 0.12);
    smaller.scale(0.88, 0.88);
    QPainterPath plus;
    plus.addRoundedRect(QRectF(0.62, 0.165, 0.38, 0.07), 0.035, 0.035);
    QPainterPath upright;
    upright.addRoundedRect(QRectF(0.775, 0.01, 0.07, 0.38), 0.035, 0.035);
    const auto rest = without(smaller.map(shape), disc({0.81, 0.2}, 0.26));
    return joined(rest, joined(plus, upright));
}

QPainterPath framed(const QPainterPath& shape, Frame frame)
{
    const auto line = without(frameOutline(frame, 0), frameOutline(frame, Line));
    return joined(line, made(shape, 0.56));
}

QPainterPath cutOutOf(Frame frame, const QPainterPath& shape)
{
    return without(frameOutline(frame, 0), made(shape, 0.56));
}

} // namespace quib
