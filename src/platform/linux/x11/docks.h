#pragma once

#include <QList>
#include <QRect>

#include <xcb/xcb.h>

namespace quib {

/// The room that a dock claims at the top of the X screen, in its pixels.
struct TopStrut {
    int height = 0; ///< From the top of the X screen, not of the monitor.
    int firstX = 0;
    int lastX = 0; ///< Inclusive.

    bool operator==(const TopStrut&) const = default;
};

/// The top of what the docks leave of a screen. A strut that ends above the screen, or reaches
/// beyond its bottom, is about another one.
int visibleTop(const QRect& screen, const QList<TopStrut>& struts);

/// Reads them from the windows that the window manager lists.
class Docks {
public:
    explicit Docks(xcb_connection_t* connection);

    QList<TopStrut> topStruts() const;
    /// True for what the window manager changes on the root window when docks come, go or change.
    bool isAboutDocks(const xcb_property_notify_event_t& change) const;

private:
    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    xcb_atom_t m_clientList = XCB_ATOM_NONE;
    xcb_atom_t m_workArea = XCB_ATOM_NONE;
    xcb_atom_t m_strut = XCB_ATOM_NONE;
};

} // namespace quib
