#include "platform/linux/x11/xcbpointersource.h"

#include "platform/linux/x11/base/nativescreen.h"
#include "platform/linux/x11/pressedge.h"

#include <QCoreApplication>

#include <utility>

namespace quib {

namespace {

constexpr char LeftButton = 1;
constexpr uint32_t Presses = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
constexpr uint32_t Changes
    = Presses | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE | XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
constexpr uint32_t Touches = XCB_INPUT_XI_EVENT_MASK_RAW_TOUCH_BEGIN
    | XCB_INPUT_XI_EVENT_MASK_RAW_TOUCH_UPDATE | XCB_INPUT_XI_EVENT_MASK_RAW_TOUCH_END;

QByteArray askPointerMapping(xcb_connection_t* connection)
{
    const XcbOwned<xcb_get_pointer_mapping_reply_t> reply(
        xcb_get_pointer_mapping_reply(connection, xcb_get_pointer_mapping(connection), nullptr));
    if (!reply) {
        return {};
    }
    const auto* buttons = reinterpret_cast<const char*>(xcb_get_pointer_mapping_map(reply.get()));
    return {buttons, xcb_get_pointer_mapping_map_length(reply.get())};
}

struct RawEvents {
    xcb_input_event_mask_t head;
    uint32_t mask;
};

RawEvents ofAnyPointer(uint32_t mask)
{
    return {.head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1}, .mask = mask};
}

/// On Qt's connection, whose events reach us through its loop.
void select(uint32_t mask)
{
    auto* connection = qtConnection();
    const auto events = ofAnyPointer(mask);
    xcb_input_xi_select_events(connection, rootWindow(connection), 1, &events.head);
    xcb_flush(connection);
}

bool isSelectable(uint32_t mask)
{
    auto* connection = qtConnection();
    const auto events = ofAnyPointer(mask);
    const auto cookie
        = xcb_input_xi_select_events_checked(connection, rootWindow(connection), 1, &events.head);
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
    return !error;
}

/// Of our events. Qt selects others.
bool tellsOfChange(uint16_t kind)
{
    return (kind >= XCB_INPUT_RAW_BUTTON_PRESS && kind <= XCB_INPUT_RAW_MOTION)
        || (kind >= XCB_INPUT_RAW_TOUCH_BEGIN && kind <= XCB_INPUT_RAW_TOUCH_END);
}

} // namespace

XcbPointerSource::XcbPointerSource(Clicks clicks)
    : m_connection(xcb_connect(nullptr, nullptr))
    , m_root(rootWindow(m_connection.get()))
{
    if (clicks == Clicks::FromXInput && followRawEvents()) {
        qApp->installNativeEventFilter(this);
        return;
    }
    m_edge = std::make_unique<PressEdge>();
    // Queued: state() must not call back into whoever asks it.
    connect(
        m_edge.get(), &PressEdge::pressed, this, [this] { Q_EMIT clicked(XCB_CURRENT_TIME); },
        Qt::QueuedConnection);
}

XcbPointerSource::~XcbPointerSource() = default;

PointerState XcbPointerSource::state() const
{
    auto* connection = m_connection.get();
    const XcbOwned<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, m_root), nullptr));
    if (!reply) {
        return m_last;
    }
    m_last = {.position = toPoints({reply->root_x, reply->root_y}),
              .leftHeld = (reply->mask & XCB_BUTTON_MASK_1) != 0};
    if (m_edge) {
        m_edge->see(m_last.leftHeld);
    }
    return m_last;
}

/// A mouse tells of a thousand moves a second: more than the first one is not asked for.
bool XcbPointerSource::announceNextChange()
{
    if (m_changes == 0) {
        return false;
    }
    if (!std::exchange(m_isAnnouncing, true)) {
        select(m_changes);
    }
    return true;
}

bool XcbPointerSource::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/)
{
    const auto* event = xcbEvent(type, message);
    if (event == nullptr) {
        return false;
    }
    if (eventKind(*event) == XCB_MAPPING_NOTIFY) {
        m_mapping.reset();
    } else if (eventKind(*event) == XCB_GE_GENERIC) {
        const auto* raw = reinterpret_cast<const xcb_input_raw_button_press_event_t*>(event);
        if (raw->extension == m_xinput) {
            follow(*raw);
        }
    }
    return false;
}

/// Of the raw events those of buttons are read; all begin alike.
void XcbPointerSource::follow(const xcb_input_raw_button_press_event_t& event)
{
    if (!tellsOfChange(event.event_type)) {
        return;
    }
    if (std::exchange(m_isAnnouncing, false)) {
        select(Presses);
        Q_EMIT changed();
    }
    if (event.event_type == XCB_INPUT_RAW_BUTTON_PRESS && isLeft(event.detail)) {
        Q_EMIT clicked(event.time);
    }
}

bool XcbPointerSource::followRawEvents()
{
    auto* connection = qtConnection();
    if (connection == nullptr) {
        return false;
    }
    const auto* xinput = xcb_get_extension_data(connection, &xcb_input_id);
    if (xinput == nullptr || xinput->present == 0) {
        return false;
    }
    m_xinput = xinput->major_opcode;
    m_changes = isSelectable(Changes | Touches) ? Changes | Touches
        : isSelectable(Changes)                 ? Changes
                                                : 0;
    if (m_changes != 0) {
        select(Presses);
    }
    return m_changes != 0;
}

/// Raw events name the button that was pressed, not what it means to a left-handed user.
bool XcbPointerSource::isLeft(quint32 physicalButton)
{
    if (!m_mapping) {
        m_mapping = askPointerMapping(qtConnection());
    }
    const auto index = qsizetype(physicalButton) - 1;
    return index < m_mapping->size() ? m_mapping->at(index) == LeftButton
                                     : physicalButton == LeftButton;
}

} // namespace quib
