#include "platform/linux/x11/docks.h"

#include "platform/linux/x11/base/xserver.h"

#include <algorithm>
#include <span>
#include <vector>

namespace quib {

namespace {

constexpr uint32_t MostWindows = 4096;
constexpr uint32_t StrutLength = 12;
constexpr std::size_t TopOfStrut = 2; // left, right, top, bottom, then a first and a last of each
constexpr std::size_t TopFirstX = 8;
constexpr std::size_t TopLastX = 9;

std::span<const uint32_t> values(const xcb_get_property_reply_t* reply)
{
    if (reply == nullptr || reply->format != 32) {
        return {};
    }
    return {static_cast<const uint32_t*>(xcb_get_property_value(reply)), reply->value_len};
}

} // namespace

int visibleTop(const QRect& screen, const QList<TopStrut>& struts)
{
    auto top = screen.top();
    for (const auto& strut : struts) {
        const auto isBeside = strut.lastX < screen.left() || strut.firstX > screen.right();
        if (!isBeside && strut.height <= screen.bottom()) {
            top = std::max(top, strut.height);
        }
    }
    return top;
}

Docks::Docks(xcb_connection_t* connection)
    : m_connection(connection)
    , m_root(rootWindow(connection))
{
    if (m_connection != nullptr) {
        m_clientList = atomNamed(m_connection, "_NET_CLIENT_LIST");
        m_workArea = atomNamed(m_connection, "_NET_WORKAREA");
        m_strut = atomNamed(m_connection, "_NET_WM_STRUT_PARTIAL");
    }
}

QList<TopStrut> Docks::topStruts() const
{
    if (m_connection == nullptr) {
        return {};
    }
    const auto ask = [this](xcb_window_t window, xcb_atom_t property, uint32_t length) {
        return xcb_get_property(m_connection, 0, window, property, XCB_ATOM_ANY, 0, length);
    };
    const auto answer = [this](xcb_get_property_cookie_t cookie) {
        return XcbOwned<xcb_get_property_reply_t>(
            xcb_get_property_reply(m_connection, cookie, nullptr));
    };

    const auto list = answer(ask(m_root, m_clientList, MostWindows));
    std::vector<xcb_get_property_cookie_t>
        asked; // All at once: one wait for any number of windows.
    for (const auto window : values(list.get())) {
        asked.push_back(ask(window, m_strut, StrutLength));
    }
    QList<TopStrut> struts;
    for (const auto cookie : asked) {
        const auto reply = answer(cookie);
        const auto strut = values(reply.get());
        if (strut.size() == StrutLength && strut[TopOfStrut] > 0) {
            struts.append({.height = int(strut[TopOfStrut]),
                           .firstX = int(strut[TopFirstX]),
                           .lastX = int(strut[TopLastX])});
        }
    }
    return struts;
}

bool Docks::isAboutDocks(const xcb_property_notify_event_t& change) const
{
    return change.window == m_root && (change.atom == m_clientList || change.atom == m_workArea);
}

} // namespace quib
