#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>

#include <qqmlintegration.h>

namespace quib {

/// The outline of the notch in a rectangle: corners flared outwards at the top, where it meets the
/// screen's edge, rounded at the bottom.
QPainterPath notchPath(const QRectF& rect, double radius);

/// The black shape of the notch and of the open card, with a line around it.
class NotchShape : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)
    Q_PROPERTY(QColor outline READ outline WRITE setOutline NOTIFY outlineChanged)

public:
    explicit NotchShape(QQuickItem* parent = nullptr);

    double radius() const { return m_radius; }
    QColor outline() const { return m_outline; }
    /// In points of the scene; follows every frame of the spring.
    QPainterPath pathInScene() const;

    void setRadius(double radius);
    void setOutline(const QColor& outline);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void radiusChanged();
    void outlineChanged();
    /// The place, the size or the radius changed.
    void pathChanged();

protected:
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    double m_radius = 0;
    QColor m_outline = Qt::transparent;
};

} // namespace quib
