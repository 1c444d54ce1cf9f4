#include "platform/linux/x11/xcbpointersource.h"

#include "platform/linux/x11/nativescreen.h"
#include "platform/linux/x11/pressedge.h"

#include <QCoreApplication>

#include <xcb/xinput.h>

namespace quib {

namespace {

constexpr char LeftButton = 1;

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

} // namespace

XcbPointerSource::XcbPointerSource(Clicks clicks)
    : m_connection(xcb_connect(nullptr, nullptr))
    , m_root(rootWindow(m_connection.get()))
{
    if (clicks == Clicks::FromXInput && followRawPresses()) {
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

bool XcbPointerSource::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/)
{
    const auto* event = xcbEvent(type, message);
    if (event == nullptr) {
        return false;
    }
    if (eventKind(*event) == XCB_MAPPING_NOTIFY) {
        m_mapping.reset();
    } else if (eventKind(*event) == XCB_GE_GENERIC) {
        const auto* press = reinterpret_cast<const xcb_input_raw_button_press_event_t*>(event);
        if (press->extension == m_xinput && press->event_type == XCB_INPUT_RAW_BUTTON_PRESS
            && isLeft(press->detail)) {
            Q_EMIT clicked(press->time);
        }
    }
    return false;
}

/// On Qt's connection, whose events reach us through its loop.
bool XcbPointerSource::followRawPresses()
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
    struct {
        xcb_input_event_mask_t head;
        uint32_t mask;
    } const wanted{.head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1},
                   .mask = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS};
    const auto cookie
        = xcb_input_xi_select_events_checked(connection, rootWindow(connection), 1, &wanted.head);
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
    return !error;
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
