#include "desktop/wayland/xpanel.h"

#include <QPainter>

#include <algorithm>
#include <span>

std::optional<QRect> XPanel::place() const
{
    return placeOf(find());
}

QImage XPanel::picture(const QRect& part) const
{
    QImage picture(part.size(), QImage::Format_RGB32);
    picture.fill(Qt::gray);
    const auto window = find();
    const auto place = placeOf(window).value_or(QRect());
    const auto cookie = xcb_get_image(m_screen.xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0,
                                      static_cast<uint16_t>(place.width()),
                                      static_cast<uint16_t>(place.height()), ~0U);
    if (const auto reply = own(xcb_get_image_reply(m_screen.xcb, cookie, nullptr))) {
        const QImage seen(xcb_get_image_data(reply.get()), place.width(), place.height(),
                          QImage::Format_ARGB32_Premultiplied);
        QPainter(&picture).drawImage(place.topLeft() - part.topLeft(), seen);
    }
    return picture;
}

/// The only window of its name that no window manager minds.
bool XPanel::isPanel(xcb_window_t window) const
{
    const auto state = own(xcb_get_window_attributes_reply(
        m_screen.xcb, xcb_get_window_attributes(m_screen.xcb, window), nullptr));
    const auto cookie = xcb_get_property(m_screen.xcb, 0, window, m_screen.atom("_NET_WM_NAME"),
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, 64);
    const auto title = own(xcb_get_property_reply(m_screen.xcb, cookie, nullptr));
    return state && title && state->override_redirect && state->map_state == XCB_MAP_STATE_VIEWABLE
        && QByteArray(static_cast<const char*>(xcb_get_property_value(title.get())),
                      xcb_get_property_value_length(title.get()))
        == "Korvel Quib";
}

xcb_window_t XPanel::find() const
{
    const auto cookie = xcb_query_tree(m_screen.xcb, m_screen.root);
    const auto tree = own(xcb_query_tree_reply(m_screen.xcb, cookie, nullptr));
    if (!tree) {
        return XCB_WINDOW_NONE;
    }
    const std::span windows(xcb_query_tree_children(tree.get()),
                            static_cast<size_t>(xcb_query_tree_children_length(tree.get())));
    const auto panel = std::ranges::find_if(windows, [this](auto each) { return isPanel(each); });
    return panel == windows.end() ? xcb_window_t(XCB_WINDOW_NONE) : *panel;
}

std::optional<QRect> XPanel::placeOf(xcb_window_t window) const
{
    const auto cookie = xcb_get_geometry(m_screen.xcb, window);
    const auto reply = own(xcb_get_geometry_reply(m_screen.xcb, cookie, nullptr));
    return reply ? std::optional(QRect(reply->x, reply->y, reply->width, reply->height))
                 : std::nullopt;
}
