#include "views/symbols/symbolimage.h"

#include "views/symbols/symbollibrary.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace quib {

namespace {

constexpr float DimmedOpacity = 0.4F;
constexpr double RegularLine = 1.0 / 16; ///< Of the icons, in a unit square.

/// The pen that makes an outline of the regular weight a heavier one, in a unit square.
double penFor(int weight)
{
    if (weight >= 700) {
        return 0.05;
    }
    if (weight >= 600) {
        return 0.04;
    }
    return weight >= 500 ? 0.02 : 0;
}

QPainterPath drawnFor(const SymbolShape& shape, const SymbolLook& look, int pixels)
{
    return shape.drawing ? shape.drawing(pixels, (RegularLine + penFor(look.weight)) * pixels)
                         : QPainterPath();
}

/// The pen grows outwards too: shrunk by its width, the shape keeps its outer size.
void paintOutline(QPainter& painter, const SymbolShape& shape, const SymbolLook& look, double side)
{
    const double pen = shape.isFilled ? 0 : penFor(look.weight);
    const double scale = shape.scale * (1 - pen);
    painter.scale(side, side);
    painter.translate(0.5, 0.5);
    painter.scale(scale, scale);
    painter.translate(-0.5, -0.5);
    if (pen > 0) {
        painter.setPen(QPen(Qt::white, pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter.drawPath(ownCopy(shape.path)); // Or the one that is kept would grow by its outline.
}

/// Dims all from the first bar on that is not lit. Bars stand apart: none is cut.
void dimTheRest(QPainter& painter, const QPainterPath& bars, double value)
{
    const auto parts = bars.toSubpathPolygons();
    const auto lit = static_cast<qsizetype>(std::lround(value * static_cast<double>(parts.size())));
    if (lit >= parts.size()) {
        return;
    }
    const auto rest = bars.boundingRect();
    const auto from = parts.at(std::max<qsizetype>(0, lit)).boundingRect().left();
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(QRectF(QPointF(from, rest.top()), rest.bottomRight()),
                     QColor::fromRgbF(0, 0, 0, DimmedOpacity));
}

} // namespace

QImage symbolImage(const SymbolLook& look, double pixelsPerPoint)
{
    const auto shape = findSymbol(look.name);
    const double side = look.size * pixelsPerPoint;
    const int pixels = static_cast<int>(std::ceil(side));
    if (!shape || pixels <= 0) {
        return {};
    }
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    const auto drawn = drawnFor(*shape, look, pixels);
    if (drawn.isEmpty()) {
        paintOutline(painter, *shape, look, side);
    } else {
        painter.drawPath(drawn);
        dimTheRest(painter, drawn, look.value);
    }
    // Tinted last: where fill and pen overlap, a colour that is not opaque would show it.
    painter.resetTransform();
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), look.color);
    return image;
}

} // namespace quib
