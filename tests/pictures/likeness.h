#pragma once

#include <QImage>

/// How far a picture is from the one that was kept.
struct Likeness {
    bool isSameSize = false;
    int strayPixels = 0; ///< Of the size they share.
    QImage strays; ///< The kept picture, darkened; strays in red. Null where the sizes differ.

    /// Processors round antialiased edges differently, now and then. A letter has more pixels.
    bool isAlike() const;
};

/// A pixel strays when a channel is further off than simplifying and rounding account for.
Likeness compare(const QImage& drawn, const QImage& kept);

/// As it is kept: with fewer colours, each hardly moved, it takes a third of the room.
QImage simplified(const QImage& picture);
