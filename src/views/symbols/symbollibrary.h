#pragma once

#include "views/symbols/symboldrawings.h"

#include <QPainterPath>
#include <QString>

#include <optional>

namespace quib {

/// How a symbol looks at no size yet.
struct SymbolShape {
    QPainterPath path; ///< In a unit square, y downwards.
    bool isFilled = false; ///< Takes no pen: it would close the cut-outs.
    double scale = 1; ///< Makes up for a drawing that is small within its square.
    PixelDrawing drawing = nullptr; ///< Goes before the path at sizes it is made for.
};

/// The shape of a symbol name such as "person.2.fill": by our table, else an icon of that name with
/// dashes, else composed of a base and a suffix. Absent for a name that means nothing to us. Each
/// name is worked out once in the life of the program.
std::optional<SymbolShape> findSymbol(const QString& name);

/// The same path once more, in no more room than it needs and without what painting has left in it.
QPainterPath ownCopy(const QPainterPath& path);

} // namespace quib
