#pragma once

#include <QByteArray>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

class QWindow;

namespace quib {

struct XcbFreed {
    void operator()(void* memory) const { std::free(memory); }
};

/// A reply, an error or an event: the caller of the X library frees it.
template <typename T>
using XcbOwned = std::unique_ptr<T, XcbFreed>;

struct XcbDisconnected {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

using XcbConnection = std::unique_ptr<xcb_connection_t, XcbDisconnected>;

/// True when the server that the environment names answers.
bool isServerReachable();

/// Qt's own connection; null where Qt shows its windows in another way.
xcb_connection_t* qtConnection();

/// Whether that server shows its windows on a Wayland desktop. Asks the server where Qt's names of
/// the screens do not tell.
bool isXwayland();

/// The number of the X screen that the environment names.
int screenNumber();

/// The root of that screen; none where the connection is broken.
xcb_window_t rootWindow(xcb_connection_t* connection);

/// The native window, which is not made for it; none where there is none.
xcb_window_t nativeOf(const QWindow* window);

/// Asks the server: for start-up.
xcb_atom_t atomNamed(xcb_connection_t* connection, std::string_view name);

/// Whether the service runs that brings screen readers and programs together. Asks the server.
bool hasServiceForReaders();

/// The window itself, or the frame that a window manager has put around it; none when it is gone.
xcb_window_t topLevelOf(xcb_window_t window);

/// As loud as the user has set it; nothing where Qt shows its windows in another way.
void ringBell();

/// The kind of an event, whether the server or another program sent it.
inline int eventKind(const xcb_generic_event_t& event)
{
    return event.response_type & 0x7F;
}

/// The event that Qt hands to its filters; null for what is not one of the X server's.
const xcb_generic_event_t* xcbEvent(const QByteArray& eventType, const void* message);

} // namespace quib
