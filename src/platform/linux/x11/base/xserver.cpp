#include "platform/linux/x11/base/xserver.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

bool hasExtension(xcb_connection_t* connection, std::string_view name)
{
    const auto cookie = xcb_query_extension(connection, uint16_t(name.size()), name.data());
    const XcbOwned<xcb_query_extension_reply_t> reply(
        xcb_query_extension_reply(connection, cookie, nullptr));
    return reply && reply->present != 0;
}

/// As servers name them that have no extension to be known by.
bool isOfXwayland(const QScreen* screen)
{
    return screen->name().startsWith("XWAYLAND"_L1);
}

} // namespace

bool isServerReachable()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        return false;
    }
    const XcbConnection connection(xcb_connect(nullptr, nullptr));
    return xcb_connection_has_error(connection.get()) == 0;
}

xcb_connection_t* qtConnection()
{
    const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application != nullptr ? application->connection() : nullptr;
}

bool isXwayland()
{
    auto* connection = qtConnection();
    return connection != nullptr
        && (std::ranges::any_of(QGuiApplication::screens(), isOfXwayland)
            || hasExtension(connection, "XWAYLAND"));
}

int screenNumber()
{
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    const auto isParsed = xcb_parse_display(nullptr, &host, &display, &screen) != 0;
    const XcbOwned<char> freed(host);
    return isParsed ? screen : 0;
}

xcb_window_t rootWindow(xcb_connection_t* connection)
{
    if (connection == nullptr || xcb_connection_has_error(connection) != 0) {
        return XCB_NONE;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (auto toSkip = screenNumber(); toSkip > 0 && screens.rem > 1; --toSkip) {
        xcb_screen_next(&screens);
    }
    return screens.data->root;
}

xcb_window_t nativeOf(const QWindow* window)
{
    const auto isThere
        = window != nullptr && window->handle() != nullptr && qtConnection() != nullptr;
    return isThere ? xcb_window_t(window->winId()) : xcb_window_t(XCB_NONE);
}

xcb_atom_t atomNamed(xcb_connection_t* connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, uint16_t(name.size()), name.data());
    const XcbOwned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

bool hasServiceForReaders()
{
    auto* connection = qtConnection();
    if (connection == nullptr) {
        return false;
    }
    const auto cookie = xcb_get_property(connection, 0, rootWindow(connection),
                                         atomNamed(connection, "AT_SPI_BUS"), XCB_ATOM_ANY, 0, 0);
    const XcbOwned<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection, cookie, nullptr));
    return reply && reply->type != XCB_ATOM_NONE;
}

xcb_window_t topLevelOf(xcb_window_t window)
{
    auto* connection = qtConnection();
    while (window != XCB_NONE && connection != nullptr) {
        const XcbOwned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
        if (!tree || tree->parent == tree->root) {
            return tree ? window : xcb_window_t(XCB_NONE);
        }
        window = tree->parent;
    }
    return XCB_NONE;
}

void ringBell()
{
    if (auto* connection = qtConnection()) {
        xcb_bell(connection, 0);
        xcb_flush(connection);
    }
}

const xcb_generic_event_t* xcbEvent(const QByteArray& eventType, const void* message)
{
    const auto isXcb = eventType == "xcb_generic_event_t";
    return isXcb ? static_cast<const xcb_generic_event_t*>(message) : nullptr;
}

} // namespace quib
