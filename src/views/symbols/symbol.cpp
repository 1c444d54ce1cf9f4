#include "views/symbols/symbol.h"

#include "views/symbols/symbollibrary.h"

namespace quib {

Symbol::Symbol(QQuickItem* parent)
    : RasterItem(parent)
{
    setImplicitSize(m_look.size, m_look.size);
}

void Symbol::setName(const QString& name)
{
    if (m_look.name != name) {
        m_look.name = name;
        Q_EMIT nameChanged();
        redraw();
    }
}

void Symbol::setSize(double points)
{
    if (m_look.size != points) {
        m_look.size = points;
        setImplicitSize(points, points);
        Q_EMIT sizeChanged();
        redraw();
    }
}

void Symbol::setWeight(int weight)
{
    if (m_look.weight != weight) {
        m_look.weight = weight;
        Q_EMIT weightChanged();
        redraw();
    }
}

void Symbol::setColor(const QColor& color)
{
    if (m_look.color != color) {
        m_look.color = color;
        Q_EMIT colorChanged();
        redraw();
    }
}

void Symbol::setValue(double value)
{
    if (m_look.value != value) {
        m_look.value = value;
        Q_EMIT valueChanged();
        redraw();
    }
}

bool Symbol::isKnown(const QString& name)
{
    return findSymbol(name).has_value();
}

QImage Symbol::picture(double pixelsPerPoint) const
{
    return symbolImage(m_look, pixelsPerPoint);
}

} // namespace quib
