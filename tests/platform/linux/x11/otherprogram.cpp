#include "platform/linux/x11/otherprogram.h"

#include <QProcess>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <array>
#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// For questions about the server: not Qt's connection, so that Qt's own requests are no help.
xcb_connection_t* asking()
{
    static const XcbConnection connection(xcb_connect(nullptr, nullptr));
    return connection.get();
}

/// Returns when the server has carried out all that was asked before.
void finish(xcb_connection_t* connection)
{
    const XcbOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

/// What a property of the root window lists.
std::vector<xcb_window_t> windowsIn(std::string_view property)
{
    const auto cookie = xcb_get_property(asking(), 0, rootWindow(asking()),
                                         atomNamed(asking(), property), XCB_ATOM_WINDOW, 0, 100);
    const XcbOwned<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(asking(), cookie, nullptr));
    if (!reply) {
        return {};
    }
    const auto* windows = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    return {windows, windows + reply->value_len};
}

} // namespace

OtherProgram::OtherProgram(const QRect& geometry, Placing placing)
    : m_connection(xcb_connect(nullptr, nullptr))
    , m_window(xcb_generate_id(m_connection.get()))
{
    const std::array<uint32_t, 2> values{
        placing == Placing::ByItself,
        XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_KEY_PRESS,
    };
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window,
                      rootWindow(m_connection.get()), int16_t(geometry.x()), int16_t(geometry.y()),
                      uint16_t(geometry.width()), uint16_t(geometry.height()), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    finish(m_connection.get());
}

void OtherProgram::setProperty(const char* name, xcb_atom_t type,
                               const std::vector<uint32_t>& values) const
{
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_window,
                        atomNamed(m_connection.get(), name), type, 32, uint32_t(values.size()),
                        values.data());
    finish(m_connection.get());
}

void OtherProgram::setAtoms(const char* name, const std::vector<std::string_view>& atoms) const
{
    std::vector<uint32_t> values;
    values.reserve(atoms.size());
    for (const auto atom : atoms) {
        values.push_back(atomNamed(m_connection.get(), atom));
    }
    setProperty(name, XCB_ATOM_ATOM, values);
}

void OtherProgram::setPlace(QPoint corner) const
{
    constexpr uint32_t UserPosition = 1;
    setProperty("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS,
                {UserPosition, uint32_t(corner.x()), uint32_t(corner.y()), 0, 0, 0, 0, 0, 0, 0, 0,
                 0, 0, 0, 0, 0, 0, 0});
}

void OtherProgram::show() const
{
    xcb_map_window(m_connection.get(), m_window);
    finish(m_connection.get());
}

void OtherProgram::raise() const
{
    const uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(m_connection.get(), m_window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    finish(m_connection.get());
}

void OtherProgram::focus(xcb_window_t window, xcb_timestamp_t time) const
{
    xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_PARENT, window, time);
    finish(m_connection.get());
}

void OtherProgram::grabKeyboard() const
{
    const XcbOwned<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(m_connection.get(),
                                xcb_grab_keyboard(m_connection.get(), 0, m_window, XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
}

void OtherProgram::ungrabKeyboard() const
{
    xcb_ungrab_keyboard(m_connection.get(), XCB_CURRENT_TIME);
    finish(m_connection.get());
}

void OtherProgram::grabPointer() const
{
    const XcbOwned<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(
        m_connection.get(),
        xcb_grab_pointer(m_connection.get(), 0, m_window, XCB_EVENT_MASK_BUTTON_PRESS,
                         XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE,
                         XCB_CURRENT_TIME),
        nullptr));
}

void OtherProgram::ungrabPointer() const
{
    xcb_ungrab_pointer(m_connection.get(), XCB_CURRENT_TIME);
    finish(m_connection.get());
}

void OtherProgram::hide() const
{
    xcb_unmap_window(m_connection.get(), m_window);
    finish(m_connection.get());
}

void OtherProgram::end()
{
    // A closed connection alone is noticed at the server's leisure.
    xcb_kill_client(asking(), m_window);
    finish(asking());
    m_connection.reset();
}

bool OtherProgram::isVisible() const
{
    const XcbOwned<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        asking(), xcb_get_window_attributes(asking(), m_window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

int OtherProgram::received(int kind)
{
    finish(m_connection.get());
    int count = 0;
    while (const XcbOwned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        if (eventKind(*event) == kind) {
            ++count;
            m_lastTime = reinterpret_cast<const xcb_button_press_event_t*>(event.get())->time;
        }
    }
    return count;
}

xcb_timestamp_t OtherProgram::timeOfLastPress()
{
    presses();
    return m_lastTime;
}

xcb_window_t keyboardOwner()
{
    const XcbOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(asking(), xcb_get_input_focus(asking()), nullptr));
    return reply ? reply->focus : xcb_window_t(XCB_NONE);
}

QRegion shapeOf(xcb_window_t window, xcb_shape_kind_t kind)
{
    const XcbOwned<xcb_shape_get_rectangles_reply_t> reply(xcb_shape_get_rectangles_reply(
        asking(), xcb_shape_get_rectangles(asking(), window, kind), nullptr));
    QRegion region;
    if (!reply) {
        return region;
    }
    auto rects = xcb_shape_get_rectangles_rectangles_iterator(reply.get());
    for (; rects.rem > 0; xcb_rectangle_next(&rects)) {
        region += QRect(rects.data->x, rects.data->y, rects.data->width, rects.data->height);
    }
    return region;
}

QRect nativeFrame(xcb_window_t window)
{
    const XcbOwned<xcb_get_geometry_reply_t> reply(
        xcb_get_geometry_reply(asking(), xcb_get_geometry(asking(), window), nullptr));
    return reply ? QRect(reply->x, reply->y, reply->width, reply->height) : QRect();
}

bool isAbove(xcb_window_t window, xcb_window_t other)
{
    const XcbOwned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(asking(), xcb_query_tree(asking(), rootWindow(asking())), nullptr));
    if (!tree) {
        return false;
    }
    // From the lowest to the highest.
    const std::span children(xcb_query_tree_children(tree.get()), tree->children_len);
    return std::ranges::find(children, window) > std::ranges::find(children, other);
}

bool isManaged(xcb_window_t window)
{
    return std::ranges::count(windowsIn("_NET_CLIENT_LIST"), window) > 0;
}

void setManaged(const std::vector<xcb_window_t>& windows)
{
    xcb_change_property(asking(), XCB_PROP_MODE_REPLACE, rootWindow(asking()),
                        atomNamed(asking(), "_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 32,
                        uint32_t(windows.size()), windows.data());
    finish(asking());
}

bool hasWindowManager()
{
    std::optional<OtherProgram> probe(std::in_place, QRect(0, 0, 10, 10),
                                      OtherProgram::Placing::ByWindowManager);
    probe->show();
    const auto window = probe->window();
    if (!QTest::qWaitFor([window] { return isManaged(window); }, 500)) {
        return false;
    }
    probe.reset();
    // The next one may get the same number.
    return QTest::qWaitFor([window] { return !isManaged(window); });
}

void addMonitor(const QString& name, int x, const QString& output)
{
    QProcess::execute(u"xrandr"_s,
                      {u"--setmonitor"_s, name, u"800/200x900/200+%1+0"_s.arg(x), output});
}

void removeMonitor(const QString& name)
{
    QProcess::execute(u"xrandr"_s, {u"--delmonitor"_s, name});
}

void setPointerMapping(std::vector<uint8_t> meanings)
{
    const XcbOwned<xcb_get_pointer_mapping_reply_t> known(
        xcb_get_pointer_mapping_reply(asking(), xcb_get_pointer_mapping(asking()), nullptr));
    while (meanings.size() < known->map_len) {
        meanings.push_back(uint8_t(meanings.size() + 1));
    }
    const XcbOwned<xcb_set_pointer_mapping_reply_t> reply(xcb_set_pointer_mapping_reply(
        asking(), xcb_set_pointer_mapping(asking(), uint8_t(meanings.size()), meanings.data()),
        nullptr));
}

void movePointer(QPoint position)
{
    xdotool({u"mousemove"_s, QString::number(position.x()), QString::number(position.y())});
}

void click(QPoint position)
{
    movePointer(position);
    xdotool({u"click"_s, u"1"_s});
}

bool xdotool(const QStringList& arguments)
{
    return QProcess::execute(u"xdotool"_s, arguments) == 0;
}

} // namespace quib
