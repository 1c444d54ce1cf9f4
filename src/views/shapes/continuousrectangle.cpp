#include "views/shapes/continuousrectangle.h"

#include "views/shapes/continuouspath.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quib {

void ContinuousRectangle::setRadius(double points)
{
    if (m_radius != points) {
        m_radius = points;
        Q_EMIT radiusChanged();
        redraw();
    }
}

void ContinuousRectangle::setColor(const QColor& color)
{
    if (m_color != color) {
        m_color = color;
        Q_EMIT colorChanged();
        redraw();
    }
}

void ContinuousRectangle::setLowerColor(const QColor& color)
{
    if (m_lowerColor != color) {
        m_lowerColor = color;
        Q_EMIT lowerColorChanged();
        redraw();
    }
}

void ContinuousRectangle::setStrokeColor(const QColor& color)
{
    if (m_strokeColor != color) {
        m_strokeColor = color;
        Q_EMIT strokeColorChanged();
        redraw();
    }
}

void ContinuousRectangle::setStrokeWidth(double points)
{
    if (m_strokeWidth != points) {
        m_strokeWidth = points;
        Q_EMIT strokeWidthChanged();
        redraw();
    }
}

void ContinuousRectangle::setDashes(const QList<double>& points)
{
    if (m_dashes != points) {
        m_dashes = points;
        Q_EMIT dashesChanged();
        redraw();
    }
}

QBrush ContinuousRectangle::filling() const
{
    if (!m_lowerColor.isValid()) {
        return m_color;
    }
    QLinearGradient gradient(0, 0, width(), height());
    gradient.setColorAt(0, m_color);
    gradient.setColorAt(1, m_lowerColor);
    return gradient;
}

QPen ContinuousRectangle::line() const
{
    QPen pen(m_strokeColor, m_strokeWidth);
    if (!m_dashes.isEmpty()) {
        auto inWidths = m_dashes;
        std::ranges::for_each(inWidths, [this](double& length) { length /= m_strokeWidth; });
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(inWidths);
    }
    return pen;
}

QImage ContinuousRectangle::picture(double pixelsPerPoint) const
{
    const bool isStroked = m_strokeColor.alpha() > 0 && m_strokeWidth > 0;
    const bool isFilled
        = m_color.alpha() > 0 || (m_lowerColor.isValid() && m_lowerColor.alpha() > 0);
    if (size().isEmpty() || (!isFilled && !isStroked)) {
        return {};
    }
    const QSizeF pixels = size() * pixelsPerPoint;
    QImage image(static_cast<int>(std::ceil(pixels.width())),
                 static_cast<int>(std::ceil(pixels.height())), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    const QRectF shape(QPointF(), size());
    painter.fillPath(continuousPath(shape, m_radius), filling());
    if (isStroked) {
        const double inset = m_strokeWidth / 2;
        painter.strokePath(
            continuousPath(shape.adjusted(inset, inset, -inset, -inset), m_radius - inset), line());
    }
    return image;
}

} // namespace quib
