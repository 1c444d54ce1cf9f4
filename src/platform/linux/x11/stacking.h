#pragma once

#include <xcb/xcb.h>

namespace quib {

// The order in which windows lie above each other, as the server tells it. A window that is gone
// meanwhile counts as not there.

/// The one right above; none above the highest.
xcb_window_t nextAbove(xcb_window_t window);

/// The highest one that is shown and is a window manager's business; none where none is above that
/// window. Menus, what is being dragged and screen lockers look after themselves.
xcb_window_t highestManagedAbove(xcb_window_t window);

/// Where it is, as if it came there now: above everything.
void giveToRoot(xcb_window_t window);
void putRightAbove(xcb_window_t window, xcb_window_t sibling);
void putRightBelow(xcb_window_t window, xcb_window_t sibling);

} // namespace quib
