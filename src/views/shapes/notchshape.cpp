#include "views/shapes/notchshape.h"

#include <QPainter>

#include <algorithm>

namespace quib {

QPainterPath notchPath(const QRectF& rect, double radius)
{
    const auto flare = std::min(radius / 2, 8.0);
    const auto left = rect.left() + flare;
    const auto right = rect.right() - flare;
    QPainterPath path(rect.topLeft());
    path.quadTo(left, rect.top(), left, rect.top() + flare);
    path.lineTo(left, rect.bottom() - radius);
    path.quadTo(left, rect.bottom(), left + radius, rect.bottom());
    path.lineTo(right - radius, rect.bottom());
    path.quadTo(right, rect.bottom(), right, rect.bottom() - radius);
    path.lineTo(right, rect.top() + flare);
    path.quadTo(right, rect.top(), rect.right(), rect.top());
    path.closeSubpath();
    return path;
}

NotchShape::NotchShape(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

QPainterPath NotchShape::pathInScene() const
{
    return notchPath(mapRectToScene(QRectF(QPointF(), size())), m_radius);
}

void NotchShape::setRadius(double radius)
{
    if (m_radius == radius) {
        return;
    }
    m_radius = radius;
    update();
    Q_EMIT radiusChanged();
    Q_EMIT pathChanged();
}

void NotchShape::setOutline(const QColor& outline)
{
    if (m_outline == outline) {
        return;
    }
    m_outline = outline;
    update();
    Q_EMIT outlineChanged();
}

void NotchShape::paint(QPainter* painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    const auto path = notchPath(QRectF(QPointF(), size()), m_radius);
    painter->fillPath(path, Qt::black);
    if (m_outline.alpha() > 0) {
        painter->strokePath(path, QPen(m_outline, 1));
    }
}

void NotchShape::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickPaintedItem::geometryChange(now, before);
    update();
    Q_EMIT pathChanged();
}

} // namespace quib
