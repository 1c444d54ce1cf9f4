#pragma once

#include <QRegion>

#include <xcb/xcb.h>

#include <optional>

namespace quib {

/// The two shapes of one native window, in its pixels: where it takes clicks and where it is drawn.
/// Tells the server only what it does not know yet.
class WindowShape {
public:
    /// A window has no shapes at first: it takes clicks, and is drawn, everywhere.
    void setWindow(xcb_window_t window);
    void setInput(const QRegion& region);
    /// Absent: everywhere.
    void setBounding(const std::optional<QRegion>& region);

private:
    xcb_window_t m_window = XCB_NONE;
    std::optional<QRegion> m_input;
    std::optional<QRegion> m_bounding;
};

} // namespace quib
