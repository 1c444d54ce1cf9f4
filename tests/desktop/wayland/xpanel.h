#pragma once

#include "desktop/desk/deskconnection.h"

#include <QRect>

#include <optional>

/// The panel's window as X has it, also where that lies between Wayland's own.
class XPanel {
public:
    explicit XPanel(const QString& display)
        : m_screen(display)
    {
    }

    /// Absent while none is shown.
    std::optional<QRect> place() const;
    /// Of this part of the screen, with nothing but the panel on it.
    QImage picture(const QRect& part) const;

private:
    bool isPanel(xcb_window_t window) const;
    xcb_window_t find() const;
    std::optional<QRect> placeOf(xcb_window_t window) const;

    Desk::Connection m_screen;
};
