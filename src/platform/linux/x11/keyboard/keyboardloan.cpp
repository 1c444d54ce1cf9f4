#include "platform/linux/x11/keyboard/keyboardloan.h"

#include "platform/linux/x11/base/xserver.h"

#include <QCoreApplication>

namespace quib {

namespace {

xcb_window_t focusedWindow()
{
    auto* connection = qtConnection();
    const XcbOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    return reply ? reply->focus : xcb_window_t(XCB_NONE);
}

/// False where the window is not there to be focused. Checked, so that Qt does not print the error.
bool focus(xcb_window_t window, xcb_timestamp_t time)
{
    auto* connection = qtConnection();
    const auto cookie
        = xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_PARENT, window, time);
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
    return !error;
}

} // namespace

KeyboardLoan::KeyboardLoan()
{
    qApp->installNativeEventFilter(this);
}

bool KeyboardLoan::take(xcb_window_t window)
{
    const auto lender = focusedWindow();
    // Now, not when Qt last heard of anything: another program may have had the focus since.
    if (lender == window || !focus(window, XCB_CURRENT_TIME)) {
        return false;
    }
    m_lender = lender;
    return true;
}

void KeyboardLoan::giveBack(xcb_window_t window, std::optional<quint32> click) const
{
    if (focusedWindow() != window) {
        return;
    }
    // One tick before the click: where the click itself moves the keyboard, that move wins.
    const auto isTimed = click && *click != XCB_CURRENT_TIME;
    const auto time = isTimed ? *click - 1 : xcb_timestamp_t(XCB_CURRENT_TIME);
    const auto hasLender = m_lender != XCB_NONE && m_lender != XCB_INPUT_FOCUS_POINTER_ROOT;
    if (!hasLender || !focus(m_lender, time)) {
        focus(XCB_INPUT_FOCUS_POINTER_ROOT, time);
    }
}

void KeyboardLoan::setRefusing(xcb_window_t window)
{
    m_refusing = window;
}

/// Qt tells of a focus that comes and goes within a tenth of a second late or not at all.
bool KeyboardLoan::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/)
{
    const auto* event = xcbEvent(type, message);
    if (event != nullptr && m_refusing != XCB_NONE && eventKind(*event) == XCB_FOCUS_IN) {
        giveBack(m_refusing, std::nullopt);
    }
    return false;
}

} // namespace quib
