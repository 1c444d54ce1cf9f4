#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace quib {

struct SymbolLook {
    QString name;
    double size = 12; ///< The side of its square, in points.
    int weight = 400; ///< As of a font: 400 is regular, 600 semibold, 700 bold.
    QColor color = Qt::white;
    double value = 1; ///< How much of a drawing of bars is lit: whole bars, from the left.
};

/// The symbol in device pixels, as large as its square; null for a name that means nothing to us.
/// For items, and for what shows pictures elsewhere: a status item, a menu.
QImage symbolImage(const SymbolLook& look, double pixelsPerPoint);

} // namespace quib
