#pragma once

#include <QImage>
#include <QQuickItem>

#include <qqmlintegration.h>

namespace quib {

/// An item that shows one picture, made on the CPU in device pixels: sharp at every scale, and made
/// anew only when what it shows, its size or the scale has changed.
class RasterItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit RasterItem(QQuickItem* parent = nullptr);

    /// Frees the picture of an item that is hidden; one that comes into sight is made anew.
    void letGo();

protected:
    /// The picture at so many device pixels to a point; null for nothing to see. Its middle comes
    /// to lie in the item's, as near as whole pixels allow.
    virtual QImage picture(double pixelsPerPoint) const = 0;
    /// To be called when the picture is no longer right.
    void redraw();

    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    bool m_isStale = true; ///< Hidden it has no picture then.
};

} // namespace quib
