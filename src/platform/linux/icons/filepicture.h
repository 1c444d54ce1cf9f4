#pragma once

#include <QImage>
#include <QString>

namespace quib {

/// A file, or an application, whose picture is wanted as a square of so many pixels.
struct PictureWish {
    QString path;
    int pixels = 0;
    QString theme; ///< If it is installed.

    bool operator==(const PictureWish&) const = default;
};

size_t qHash(const PictureWish& wish, size_t seed = 0);

/// The picture that the desktop shows for a file: an application's own, else that of its kind.
/// Never null. Reads many files: not for the main thread.
QImage pictureOf(const PictureWish& wish);

/// What stands in for a picture that there is not.
QImage standIn(int pixels);

} // namespace quib
