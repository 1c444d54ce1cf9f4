#include "views/symbols/symboldrawings.h"

#include "views/symbols/symbolsvg.h"

#include <QHash>
#include <QPainterPathStroker>
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
        path.addPath(ring(place, radius, std::max(1.0, line * 0.7)));
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
        const int which = i + (7 - count) / 2;
        const auto height = Heights.at(static_cast<std::size_t>(which));
        const double tall = pixels - 2 * std::round(pixels * (1 - height) / 2);
        const QRectF box(left + i * pitch, (pixels - tall) / 2, bar, tall);
        path.addRoundedRect(box, bar / 2.0, bar / 2.0);
    }
    return path;
}

/// A half-round shape on its flat side, as a line along its edge.
QPainterPath dome(const QRectF& box, double line)
{
    const auto solid = [](const QRectF& rect) {
        const double radius = std::min(rect.width() / 2, rect.height());
        QPainterPath path;
        path.addRoundedRect(rect.adjusted(0, 0, 0, rect.height()), radius, radius);
        QPainterPath upper;
        upper.addRect(rect);
        return path.intersected(upper);
    };
    return solid(box).subtracted(solid(box.adjusted(line, line, -line, -line)));
}

/// Two heads and shoulders, the left one behind the other. At larger sizes the icon is as clear.
QPainterPath twoPersons(int pixels, double line)
{
    if (pixels > 17) {
        return {};
    }
    const double pen = std::max(1.0, std::round(line));
    const auto at = [pixels](double twelfths) { return std::round(twelfths * pixels / 12); };
    const double head = at(4);
    const QRectF shoulders(at(4), at(6), pixels - at(4), at(11) - at(6));
    QPainterPath behind = dome(shoulders.translated(-at(4), 0), pen);
    QPainterPath hidden;
    hidden.addRect(shoulders.adjusted(-pen, -pen, 0, pen));
    QPainterPath path = behind.subtracted(hidden);
    path.addPath(dome(shoulders, pen));
    path.addPath(ring({at(6) + head / 2, at(1) + head / 2}, head / 2, pen));
    path.addPath(ring({at(6) - pen - head / 2, at(1) + head / 2}, head / 2, pen));
    return path;
}

/// A page with three lines of a pixel each. Smaller there is no room, larger no need.
QPainterPath noteText(int pixels, double /*line*/)
{
    if (pixels < 11 || pixels > 15) {
        return {};
    }
    constexpr int Height = 10;
    const int top = (pixels - Height) / 2;
    QPainterPath path;
    path.addRoundedRect(QRectF(0, top, pixels, Height), 2, 2);
    path.addRoundedRect(QRectF(1, top + 1, pixels - 2, Height - 2), 1, 1);
    for (const int line : {3, 5, 7}) {
        path.addRect(QRectF(3, top + line, pixels - (line == 7 ? 8 : 6), 1));
    }
    return path;
}

/// Two angles with room between their feet, or they would be a ring. Larger the icon has it.
QPainterPath upAndDown(int pixels, double /*line*/)
{
    if (pixels > 13) {
        return {};
    }
    const double part = pixels / 8.0;
    QPainterPath up(QPointF(part, 2.4 * part));
    up.lineTo(4 * part, 0.6 * part);
    up.lineTo(7 * part, 2.4 * part);
    QPainterPath both = up;
    both.addPath(QTransform(1, 0, 0, -1, 0, pixels).map(up));
    QPainterPathStroker pen;
    pen.setWidth(1.2 * part);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen.createStroke(both);
}

QPainterPath rectangle(const QRectF& box)
{
    QPainterPath path;
    path.addRect(box);
    return path;
}

/// A plus above two links of a chain that lies level: slanting, they would run into one another.
/// Larger the icon is as clear.
QPainterPath linkAndPlus(int pixels, double line)
{
    if (pixels < 11 || pixels > 20) {
        return {};
    }
    const double pen = std::max(1.0, std::floor(line)); // Or the links would close up.
    const double side = pen + 2 * std::floor((pixels * 0.42 - pen) / 2);
    const double edge = (side - pen) / 2; // From there to the line in the middle.
    const QRectF chain(0, pixels - 1 - side, pixels, side);
    const QRectF plus(pixels - side, 0, side, side);
    QPainterPath path;
    path.addRoundedRect(chain, side / 2, side / 2);
    path.addRoundedRect(chain.adjusted(pen, pen, -pen, -pen), edge, edge);
    const double half = pixels / 2.0;
    path = without(path, rectangle(chain.adjusted(half - pen, 0, pen - half, 0)));
    path = joined(path, rectangle(chain.adjusted(edge + pen, edge, -edge - pen, -edge)));
    path = joined(path, rectangle(plus.adjusted(0, edge, 0, -edge)));
    return joined(path, rectangle(plus.adjusted(edge, 0, -edge, 0)));
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
        {u"chevron.up.chevron.down"_s, upAndDown},
        {u"circle.hexagongrid"_s, hexagonGrid},
        {u"circle.hexagongrid.fill"_s, filledHexagonGrid},
        {u"link.badge.plus"_s, linkAndPlus},
        {u"note.text"_s, noteText},
        {u"person.2"_s, twoPersons},
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
