#include "platform/linux/x11/stayabove.h"

#include "platform/linux/x11/base/xserver.h"
#include "platform/linux/x11/stacking.h"

#include <QCoreApplication>

#include <algorithm>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr std::chrono::milliseconds ShortestWait = 30ms; // Window managers move windows in bursts.
constexpr std::chrono::milliseconds LongestWait = 5s;
constexpr std::chrono::milliseconds Calm = 2s;

/// Events of all children of the root, beside those that Qt wants.
void followChildren(xcb_connection_t* connection, xcb_window_t root)
{
    const XcbOwned<xcb_get_window_attributes_reply_t> known(xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, root), nullptr));
    if (known) {
        const uint32_t wanted = known->your_event_mask | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &wanted);
    }
}

} // namespace

std::chrono::milliseconds waitAfter(int risesInARow)
{
    constexpr int MostDoublings = 10; // By then it is the longest.
    return std::min(ShortestWait * (1 << std::min(risesInARow, MostDoublings)), LongestWait);
}

StayAbove::StayAbove()
{
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, this, &StayAbove::rise);
    if (auto* connection = qtConnection()) {
        m_root = rootWindow(connection);
        m_lists = {atomNamed(connection, "_NET_CLIENT_LIST"),
                   atomNamed(connection, "_NET_CLIENT_LIST_STACKING"),
                   atomNamed(connection, "_NET_ACTIVE_WINDOW")};
        followChildren(connection, m_root);
        qApp->installNativeEventFilter(this);
    }
}

void StayAbove::setWindow(xcb_window_t window)
{
    m_window = window;
    stir();
}

void StayAbove::setResting(bool resting)
{
    m_isResting = resting;
    stir();
}

bool StayAbove::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/)
{
    const auto* event = xcbEvent(type, message);
    if (event != nullptr && mayHaveCovered(*event)) {
        stir();
    }
    return false;
}

bool StayAbove::mayHaveCovered(const xcb_generic_event_t& event) const
{
    switch (eventKind(event)) {
    case XCB_MAP_NOTIFY:
    case XCB_CONFIGURE_NOTIFY:
    case XCB_CIRCULATE_NOTIFY: { // All three begin alike.
        const auto& change = reinterpret_cast<const xcb_map_notify_event_t&>(event);
        return change.event == m_root && change.window != m_window;
    }
    case XCB_PROPERTY_NOTIFY: {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        return change.window == m_root && std::ranges::find(m_lists, change.atom) != m_lists.end();
    }
    default: return false;
    }
}

void StayAbove::stir()
{
    if (m_isResting || m_window == XCB_NONE) {
        return;
    }
    if (!m_wait.isActive()) {
        m_risesInARow = m_sinceRise.hasExpired(Calm.count()) ? 0 : m_risesInARow;
        m_wait.start(waitAfter(m_risesInARow));
    }
}

void StayAbove::rise()
{
    if (m_isResting || m_window == XCB_NONE) {
        return;
    }
    const auto cover = highestManagedAbove(m_window);
    if (cover != XCB_NONE) {
        putRightAbove(m_window, cover);
        ++m_risesInARow;
        m_sinceRise.start();
    }
}

} // namespace quib
