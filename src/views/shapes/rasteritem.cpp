#include "views/shapes/rasteritem.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>
#include <memory>

namespace quib {

namespace {

/// Where a picture begins in a longer or shorter line, on a whole pixel.
double start(double length, int pixels, double pixelsPerPoint)
{
    return std::floor((length * pixelsPerPoint - pixels) / 2 + 0.5) / pixelsPerPoint;
}

} // namespace

RasterItem::RasterItem(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void RasterItem::letGo()
{
    if (!isVisible()) {
        redraw();
    }
}

void RasterItem::redraw()
{
    m_isStale = true;
    update();
}

void RasterItem::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) {
        redraw();
    }
}

void RasterItem::itemChange(ItemChange change, const ItemChangeData& value)
{
    QQuickItem::itemChange(change, value);
    const bool isToBeMade = change == ItemVisibleHasChanged && value.boolValue && m_isStale;
    if (isToBeMade || change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        redraw();
    }
}

QSGNode* RasterItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData* /*data*/)
{
    if (old && !m_isStale) {
        return old;
    }
    std::unique_ptr<QSGNode> outdated(old);
    if (!isVisible()) {
        return nullptr;
    }
    m_isStale = false;
    const double pixelsPerPoint = window()->effectiveDevicePixelRatio();
    // A copy: what was painted on keeps the means of painting, which take more room than it does.
    const auto image = picture(pixelsPerPoint).copy();
    if (image.isNull()) {
        return nullptr;
    }
    auto* node
        = outdated ? static_cast<QSGImageNode*>(outdated.release()) : window()->createImageNode();
    node->setOwnsTexture(true);
    node->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel));
    node->setFiltering(QSGTexture::Nearest); // Between two pixels it goes to one, whole.
    node->setRect(QRectF(QPointF(start(width(), image.width(), pixelsPerPoint),
                                 start(height(), image.height(), pixelsPerPoint)),
                         QSizeF(image.size()) / pixelsPerPoint));
    return node;
}

} // namespace quib
