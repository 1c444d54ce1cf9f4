#pragma once

#include "platform/linux/x11/base/xserver.h"

#include <QPoint>
#include <QRect>
#include <QRegion>

#include <xcb/shape.h>

#include <vector>

namespace quib {

/// Another program on the same X server, with one plain window of its own.
class OtherProgram {
public:
    enum class Placing { ByWindowManager, ByItself };

    explicit OtherProgram(const QRect& geometry, Placing placing = Placing::ByItself);

    xcb_window_t window() const { return m_window; }

    void setProperty(const char* name, xcb_atom_t type, const std::vector<uint32_t>& values) const;
    void setAtoms(const char* name, const std::vector<std::string_view>& atoms) const;
    /// Asks the window manager for that place.
    void setPlace(QPoint corner) const;
    /// Maps the window, and waits for the server, not for a window manager.
    void show() const;
    /// Above everything; waits for the server.
    void raise() const;
    void focus(xcb_window_t window, xcb_timestamp_t time = XCB_CURRENT_TIME) const;
    void takeKeyboard() const { focus(m_window); }
    /// As window managers do for a click, with the click's time.
    void takeKeyboard(xcb_timestamp_t time) const { focus(m_window, time); }
    /// To whatever window is under the pointer.
    void letKeyboardGo() const { focus(XCB_INPUT_FOCUS_POINTER_ROOT); }
    /// Takes the window away, as the server does when a program ends, and waits for it.
    void end();

    /// As window managers do for their shortcuts.
    void grabKeyboard() const;
    void ungrabKeyboard() const;
    /// As menus and drags do.
    void grabPointer() const;
    void ungrabPointer() const;
    void hide() const;

    bool isVisible() const;
    /// Number of presses that reached the window since last asked.
    int presses() { return received(XCB_BUTTON_PRESS); }
    int keys() { return received(XCB_KEY_PRESS); }
    xcb_timestamp_t timeOfLastPress();

private:
    int received(int kind);

    XcbConnection m_connection;
    xcb_window_t m_window = XCB_NONE;
    xcb_timestamp_t m_lastTime = XCB_CURRENT_TIME;
};

/// What the server says, whoever asks.
xcb_window_t keyboardOwner();
QRegion shapeOf(xcb_window_t window, xcb_shape_kind_t kind);
QRect nativeFrame(xcb_window_t window);
/// Both are children of the root.
bool isAbove(xcb_window_t window, xcb_window_t other);
/// True when the window manager has taken the window into its list.
bool isManaged(xcb_window_t window);
/// As window managers do where there is none.
void setManaged(const std::vector<xcb_window_t>& windows);
/// Tried with a window: one that just starts overlooks some.
bool hasWindowManager();

/// A monitor of 800 x 900 pixels. The first one takes the X screen's `output`, "screen"; the others
/// have none.
void addMonitor(const QString& name, int x, const QString& output);
void removeMonitor(const QString& name);

/// What the buttons 1, 2, ... of the device mean.
void setPointerMapping(std::vector<uint8_t> meanings);

/// With the real pointer and keyboard; coordinates are the server's pixels.
void movePointer(QPoint position);
void click(QPoint position);
bool xdotool(const QStringList& arguments);

} // namespace quib
