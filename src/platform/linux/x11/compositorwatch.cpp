#include "platform/linux/x11/compositorwatch.h"

#include "platform/linux/x11/xserver.h"

#include <QCoreApplication>

#include <xcb/xfixes.h>

#include <string>

namespace quib {

namespace {

bool hasOwner(xcb_connection_t* connection, xcb_atom_t selection)
{
    const XcbOwned<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply && reply->owner != XCB_NONE;
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
    m_isRunning = hasOwner(connection, m_selection); // Asked last, so that no change is missed.
}

bool CompositorWatch::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/)
{
    const auto* event = xcbEvent(type, message);
    if (event != nullptr && eventKind(*event) == m_eventKind) {
        const auto* notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t*>(event);
        if (notify->selection == m_selection) {
            setRunning(notify->subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER
                       && notify->owner != XCB_NONE);
        }
    }
    return false;
}

void CompositorWatch::setRunning(bool isRunning)
{
    if (isRunning == m_isRunning) {
        return; // Qt listens too, and each change may be told twice.
    }
    m_isRunning = isRunning;
    Q_EMIT isRunningChanged();
}

} // namespace quib
