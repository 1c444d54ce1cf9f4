#pragma once

#include <QRect>

class QScreen;
class QWindow;
struct wl_display;
struct wl_output;
struct wl_surface;

namespace quib {

/// Qt's own connection; null where Qt shows its windows in another way.
wl_display* qtDisplay();

/// Such a window gets a bare surface, for us to say what it is.
void makeBareWhenCreated(QWindow& window);

/// An input region that nothing meets: an empty one would mean everywhere.
inline constexpr QRect Nowhere(-1, -1, 1, 1);

/// Null while there is none.
wl_surface* surfaceOf(QWindow& window);

/// Null for a screen that stands for none.
wl_output* outputOf(QScreen& screen);

/// Whether it is a real one: Qt has a screen also where the desktop has none.
bool isReal(QScreen& screen);

} // namespace quib
