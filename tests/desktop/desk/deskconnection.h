#pragma once

#include "desktop/desk/desk.h"

#include <xcb/xcb.h>

#include <array>
#include <cstdlib>
#include <functional>

/// Looks until it is so twenty times in a row, half a second long, for fifteen seconds at most.
bool waitForLasting(const char* what, const std::function<bool()>& isSo);

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply>
Owned<Reply> own(Reply* reply)
{
    return Owned<Reply>(reply, &std::free);
}

/// The test's own view of the screen.
struct Desk::Connection {
    xcb_connection_t* xcb;
    xcb_window_t root;

    explicit Connection(const QString& display)
        : xcb(xcb_connect(display.toLatin1().constData(), nullptr))
        , root(xcb_setup_roots_iterator(xcb_get_setup(xcb)).data->root)
    {
    }
    ~Connection() { xcb_disconnect(xcb); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    xcb_atom_t atom(const QByteArray& name) const
    {
        const auto cookie
            = xcb_intern_atom(xcb, 0, static_cast<uint16_t>(name.size()), name.constData());
        const auto reply = own(xcb_intern_atom_reply(xcb, cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }

    /// A window in one colour that no window manager minds; not shown yet.
    xcb_window_t createUnmanaged(const QRect& rect, uint32_t colour = 0) const
    {
        const std::array<uint32_t, 2> values{colour, 1};
        const auto window = xcb_generate_id(xcb);
        xcb_create_window(xcb, XCB_COPY_FROM_PARENT, window, root, static_cast<int16_t>(rect.x()),
                          static_cast<int16_t>(rect.y()), static_cast<uint16_t>(rect.width()),
                          static_cast<uint16_t>(rect.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT,
                          values.data());
        return window;
    }

    bool hasOwner(const QByteArray& selection) const
    {
        const auto cookie = xcb_get_selection_owner(xcb, atom(selection));
        const auto reply = own(xcb_get_selection_owner_reply(xcb, cookie, nullptr));
        return reply && reply->owner != XCB_WINDOW_NONE;
    }

    QImage image(const QRect& rect) const
    {
        const auto cookie
            = xcb_get_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, root, static_cast<int16_t>(rect.x()),
                            static_cast<int16_t>(rect.y()), static_cast<uint16_t>(rect.width()),
                            static_cast<uint16_t>(rect.height()), ~0U);
        const auto reply = own(xcb_get_image_reply(xcb, cookie, nullptr));
        if (!reply) {
            return {};
        }
        return QImage(xcb_get_image_data(reply.get()), rect.width(), rect.height(),
                      QImage::Format_RGB32)
            .copy();
    }
};
