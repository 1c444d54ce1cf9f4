#include "platform/linux/x11/compositorwatch.h"

#include "platform/linux/x11/base/xserver.h"

#include <QByteArrayView>
#include <QCoreApplication>

#include <xcb/xfixes.h>

#include <string>

namespace quib {

namespace {

xcb_window_t ownerOf(xcb_connection_t* connection, xcb_atom_t selection)
{
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply ? reply->owner : xcb_window_t(XCB_NONE);
}

} // namespace

CompositorWatch::CompositorWatch()
{
    auto* connection = qtConnection();
    if (connection == nullptr) {
        return;
    }
    m_selection = atomNamed(connection, "_NET_WM_CM_S" + std::to_string(screenNumber()));
    const auto* fixes = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (fixes != nullptr && fixes->present != 0) {
        m_eventKind = fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY;
        xcb_xfixes_select_selection_input(
            connection, rootWindow(connection), m_selection,
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
        qApp->installNativeEventFilter(this);
    }
    m_owner = ownerOf(connection, m_selection); // Asked last, so that no change is missed.
}

bool CompositorWatch::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/)
{
    const auto* event = xcbEvent(type, message);
    if (event != nullptr && eventKind(*event) == m_eventKind) {
        const auto* notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t*>(event);
        if (notify->selection == m_selection) {
            const auto isTaken = notify->subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER;
            setOwner(isTaken ? notify->owner : xcb_window_t(XCB_NONE));
        }
    }
    return false;
}

bool CompositorWatch::overlooksOldWindows() const
{
    constexpr uint32_t MostWords = 16;
    auto* connection = qtConnection();
    if (m_owner == XCB_NONE || connection == nullptr) {
        return false;
    }
    const XcbOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, m_owner, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, MostWords),
        nullptr));
    if (!reply) {
        return false;
    }
    const auto* name = static_cast<const char*>(xcb_get_property_value(reply.get()));
    return QByteArrayView(name, xcb_get_property_value_length(reply.get())).contains("xfwm4");
}

void CompositorWatch::setOwner(xcb_window_t owner)
{
    if (owner == m_owner) {
        return; // Qt listens too, and each change may be told twice.
    }
    m_owner = owner;
    Q_EMIT changed();
}

} // namespace quib
