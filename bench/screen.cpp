#include "screen.h"

#include <xcb/shape.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>

#include <poll.h>

using namespace std::chrono_literals;

namespace {

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply>
Owned<Reply> own(Reply* reply)
{
    return Owned<Reply>(reply, &std::free);
}

/// Drawings closer than this belong together: a frame comes as several rectangles and, where there
/// is no compositor, with a new shape of its window.
constexpr auto OneFrame = 10ms;

} // namespace

Screen::Screen()
    : m_connection(xcb_connect(nullptr, nullptr))
{
    auto* connection = m_connection.get();
    if (xcb_connection_has_error(connection) != 0) {
        throw std::runtime_error("there is no X display");
    }
    m_root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto* damage = xcb_get_extension_data(connection, &xcb_damage_id);
    if (damage == nullptr || damage->present == 0) {
        throw std::runtime_error("the X server has no DAMAGE");
    }
    m_damageEvent = damage->first_event;
    m_shapeEvent = xcb_get_extension_data(connection, &xcb_shape_id)->first_event;
    own(xcb_damage_query_version_reply(connection, xcb_damage_query_version(connection, 1, 1),
                                       nullptr));
    const uint32_t notBlack = 0x406080;
    xcb_change_window_attributes(connection, m_root, XCB_CW_BACK_PIXEL, &notBlack);
    xcb_clear_area(connection, 0, m_root, 0, 0, 0, 0);
    xcb_flush(connection);
}

Screen::Picture Screen::picture(Point corner, int width, int height) const
{
    auto* connection = m_connection.get();
    const auto cookie
        = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root,
                        static_cast<int16_t>(corner.x), static_cast<int16_t>(corner.y),
                        static_cast<uint16_t>(width), static_cast<uint16_t>(height), ~0U);
    const auto reply = own(xcb_get_image_reply(connection, cookie, nullptr));
    if (!reply) {
        throw std::runtime_error("the X server is gone");
    }
    const auto* bytes = xcb_get_image_data(reply.get());
    return {bytes, bytes + xcb_get_image_data_length(reply.get())};
}

uint32_t Screen::pixel(Point point) const
{
    const auto bytes = picture(point, 1, 1);
    return uint32_t(bytes.at(0)) | uint32_t(bytes.at(1)) << 8 | uint32_t(bytes.at(2)) << 16;
}

Instant Screen::waitUntil(const char* what, const std::function<bool()>& isSo)
{
    const auto deadline = std::chrono::steady_clock::now() + 30s;
    const auto damage = watchDrawing(XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    while (!isSo()) {
        if (!nextDrawing(deadline)) {
            throw std::runtime_error(std::string("waited in vain for ") + what);
        }
        // Before looking: what is drawn while we look is announced.
        xcb_damage_subtract(m_connection.get(), damage, XCB_NONE, XCB_NONE);
    }
    const auto seen = std::chrono::steady_clock::now();
    xcb_damage_destroy(m_connection.get(), damage);
    xcb_flush(m_connection.get());
    return seen;
}

std::vector<Redraw> Screen::redrawsWithin(std::chrono::milliseconds time)
{
    std::vector<Redraw> redraws;
    const auto deadline = std::chrono::steady_clock::now() + time;
    watchShapes();
    const auto damage = watchDrawing(XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    nextDrawing(deadline); // The first tells of the whole screen as it is.
    m_shapes = 0;
    while (const auto drawing = nextDrawing(deadline)) {
        const std::chrono::milliseconds now(drawing->timestamp);
        if (redraws.empty() || now - redraws.back().time >= OneFrame) {
            redraws.push_back({.time = now});
        }
        redraws.back().pixels += drawing->area.width * drawing->area.height;
        redraws.back().shapes += std::exchange(m_shapes, 0);
    }
    xcb_damage_destroy(m_connection.get(), damage);
    xcb_flush(m_connection.get());
    return redraws;
}

void Screen::moveTo(Point point)
{
    fake(XCB_MOTION_NOTIFY, 0, point);
    xcb_flush(m_connection.get());
}

void Screen::click(Point point)
{
    fake(XCB_MOTION_NOTIFY, 0, point);
    fake(XCB_BUTTON_PRESS, 1);
    fake(XCB_BUTTON_RELEASE, 1);
    xcb_flush(m_connection.get());
}

void Screen::pressKey(uint32_t symbol)
{
    const auto key = keyFor(symbol);
    fake(XCB_KEY_PRESS, key);
    fake(XCB_KEY_RELEASE, key);
    xcb_flush(m_connection.get());
}

void Screen::lendKeyboard()
{
    auto* connection = m_connection.get();
    const auto focus
        = own(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (focus && focus->focus > XCB_INPUT_FOCUS_POINTER_ROOT) {
        return;
    }
    const auto pointer
        = own(xcb_query_pointer_reply(connection, xcb_query_pointer(connection, m_root), nullptr));
    if (pointer && pointer->child != XCB_WINDOW_NONE) {
        xcb_set_input_focus(connection, XCB_INPUT_FOCUS_PARENT, pointer->child, XCB_CURRENT_TIME);
        xcb_flush(connection);
    }
}

xcb_damage_damage_t Screen::watchDrawing(xcb_damage_report_level_t level)
{
    const auto damage = xcb_generate_id(m_connection.get());
    xcb_damage_create(m_connection.get(), damage, m_root, static_cast<uint8_t>(level));
    return damage;
}

void Screen::watchShapes()
{
    auto* connection = m_connection.get();
    const auto tree
        = own(xcb_query_tree_reply(connection, xcb_query_tree(connection, m_root), nullptr));
    if (!tree) {
        throw std::runtime_error("the X server is gone");
    }
    const auto count = std::size_t(xcb_query_tree_children_length(tree.get()));
    for (const auto window : std::span(xcb_query_tree_children(tree.get()), count)) {
        xcb_shape_select_input(connection, window, 1);
    }
}

/// The next drawing of which the server tells before the deadline.
std::optional<Screen::Drawing> Screen::nextDrawing(Instant deadline)
{
    auto* connection = m_connection.get();
    xcb_flush(connection);
    while (true) {
        while (const auto event = own(xcb_poll_for_event(connection))) {
            const auto type = event->response_type & 0x7f;
            if (type == m_damageEvent) {
                return *reinterpret_cast<const Drawing*>(event.get());
            }
            if (type == m_shapeEvent) {
                const auto* shape = reinterpret_cast<const xcb_shape_notify_event_t*>(event.get());
                m_shapes += shape->shape_kind == XCB_SHAPE_SK_BOUNDING ? 1 : 0;
            }
        }
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        pollfd socket{.fd = xcb_get_file_descriptor(connection), .events = POLLIN, .revents = 0};
        if (left <= 0ms || poll(&socket, 1, static_cast<int>(left.count())) <= 0) {
            return std::nullopt;
        }
    }
}

void Screen::fake(uint8_t type, uint8_t detail, Point point)
{
    xcb_test_fake_input(m_connection.get(), type, detail, XCB_CURRENT_TIME, m_root,
                        static_cast<int16_t>(point.x), static_cast<int16_t>(point.y), 0);
}

uint8_t Screen::keyFor(uint32_t symbol) const
{
    auto* connection = m_connection.get();
    const auto* setup = xcb_get_setup(connection);
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto cookie = xcb_get_keyboard_mapping(connection, setup->min_keycode, count);
    const auto reply = own(xcb_get_keyboard_mapping_reply(connection, cookie, nullptr));
    if (!reply) {
        throw std::runtime_error("the X server is gone");
    }
    const auto* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    const auto* end = symbols + xcb_get_keyboard_mapping_keysyms_length(reply.get());
    const auto row = (std::find(symbols, end, symbol) - symbols) / reply->keysyms_per_keycode;
    return static_cast<uint8_t>(setup->min_keycode + row);
}
