#pragma once

#include <QString>
#include <QStringList>

namespace quib {

/// Where icons are looked for.
struct IconPlaces {
    QString theme;
    QStringList roots; ///< Folders that hold themes, and loose pictures, in order.
};

/// Those of this desktop. Without the theme wished for it is one of the usual ones.
IconPlaces iconPlaces(const QString& wishedTheme);

/// The file of the first of these names that has one, nearest to a square of so many pixels: in the
/// theme, in those that it inherits from, in hicolor, outside of all themes. Empty when there is
/// none. Reads many files: not for the main thread.
QString findIcon(const QStringList& names, int pixels, const IconPlaces& places);

} // namespace quib
