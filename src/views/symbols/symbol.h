#pragma once

#include "views/shapes/rasteritem.h"
#include "views/symbols/symbolimage.h"

#include <QColor>

#include <qqmlintegration.h>

namespace quib {

/// A symbol by name, in any size, weight and colour. Decoration: what it means is said by whoever
/// holds it. An unknown name shows nothing.
class Symbol : public quib::RasterItem { // Spelt out for the tools of QML.
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(double size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(int weight READ weight WRITE setWeight NOTIFY weightChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// How much of a symbol of bars is lit, from 0 to 1; whole bars, the rest is dimmed.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)

public:
    explicit Symbol(QQuickItem* parent = nullptr);

    QString name() const { return m_look.name; }
    double size() const { return m_look.size; }
    int weight() const { return m_look.weight; }
    QColor color() const { return m_look.color; }
    double value() const { return m_look.value; }

    void setName(const QString& name);
    void setSize(double points);
    void setWeight(int weight);
    void setColor(const QColor& color);
    void setValue(double value);

    /// Whether a name means a symbol to us; callers choose what stands in for one that does not.
    Q_INVOKABLE static bool isKnown(const QString& name);

Q_SIGNALS:
    void nameChanged();
    void sizeChanged();
    void weightChanged();
    void colorChanged();
    void valueChanged();

protected:
    QImage picture(double pixelsPerPoint) const override;

private:
    SymbolLook m_look;
};

} // namespace quib
