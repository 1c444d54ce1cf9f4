#pragma once

#include "views/shapes/rasteritem.h"

#include <QBrush>
#include <QColor>
#include <QList>
#include <QPen>

#include <qqmlintegration.h>

namespace quib {

/// A rectangle with continuous corners, filled, and edged by a line inside its shape if that has a
/// colour. With a radius of half its height or more it is a capsule.
class ContinuousRectangle : public quib::RasterItem { // Spelt out for the tools of QML.
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// What the colour turns into on the way from the upper left corner to the lower right one.
    Q_PROPERTY(QColor lowerColor READ lowerColor WRITE setLowerColor NOTIFY lowerColorChanged)
    Q_PROPERTY(QColor strokeColor READ strokeColor WRITE setStrokeColor NOTIFY strokeColorChanged)
    Q_PROPERTY(double strokeWidth READ strokeWidth WRITE setStrokeWidth NOTIFY strokeWidthChanged)
    /// Lengths that the line is drawn and left out for, in turn; without any it is whole.
    Q_PROPERTY(QList<double> dashes READ dashes WRITE setDashes NOTIFY dashesChanged)

public:
    using RasterItem::RasterItem;

    double radius() const { return m_radius; }
    QColor color() const { return m_color; }
    QColor lowerColor() const { return m_lowerColor; } ///< Invalid where the colour stays.
    QColor strokeColor() const { return m_strokeColor; }
    double strokeWidth() const { return m_strokeWidth; }
    QList<double> dashes() const { return m_dashes; } ///< In points, an even number of them.

    void setRadius(double points);
    void setColor(const QColor& color);
    void setLowerColor(const QColor& color);
    void setStrokeColor(const QColor& color);
    void setStrokeWidth(double points);
    void setDashes(const QList<double>& points);

Q_SIGNALS:
    void radiusChanged();
    void colorChanged();
    void lowerColorChanged();
    void strokeColorChanged();
    void strokeWidthChanged();
    void dashesChanged();

protected:
    QImage picture(double pixelsPerPoint) const override;

private:
    QBrush filling() const;
    QPen line() const;

    double m_radius = 0;
    QColor m_color = Qt::transparent;
    QColor m_lowerColor;
    QColor m_strokeColor = Qt::transparent;
    double m_strokeWidth = 1;
    QList<double> m_dashes;
};

} // namespace quib
