#pragma once

#include <QColor>
#include <QQuickItem>

inline QRectF inScene(const QQuickItem* item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

/// Whether two places are the same one, as far as halving and adding them up allows.
inline bool isNear(double one, double other)
{
    return qAbs(one - other) < 0.001;
}

inline double numberOf(const QObject* item, const char* property)
{
    return item->property(property).toDouble();
}

inline QString textOf(const QObject* item, const char* property = "text")
{
    return item->property(property).toString();
}

inline QColor colorOf(const QObject* item, const char* property = "color")
{
    return item->property(property).value<QColor>();
}

/// How the letters of a text look.
struct Look {
    double size;
    int weight;
    QColor color;

    bool operator==(const Look&) const = default;
};

inline Look lookOf(const QQuickItem* text)
{
    return {numberOf(text, "size"), text->property("weight").toInt(), colorOf(text)};
}
