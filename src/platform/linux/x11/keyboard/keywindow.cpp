#include "platform/linux/x11/keyboard/keywindow.h"

#include "platform/linux/x11/base/xserver.h"

#include <QCoreApplication>
#include <QSurfaceFormat>

#include <array>
#include <utility>

namespace quib {

namespace {

/// Window managers forget it whenever the window is hidden.
void keepOutOfLists(xcb_window_t window)
{
    auto* connection = qtConnection();
    static const auto state = atomNamed(connection, "_NET_WM_STATE");
    static const std::array skipped{atomNamed(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                                    atomNamed(connection, "_NET_WM_STATE_SKIP_PAGER"),
                                    atomNamed(connection, "_KDE_NET_WM_STATE_SKIP_SWITCHER")};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, state, XCB_ATOM_ATOM, 32,
                        uint32_t(skipped.size()), skipped.data());
}

/// Where nothing is drawn at all, compositors take a window for one that is still to come.
void drawTransparent(xcb_window_t window)
{
    const uint32_t pixel = 0;
    xcb_change_window_attributes(qtConnection(), window, XCB_CW_BACK_PIXEL, &pixel);
}

/// The window that an event of the keyboard is for; null for other events.
xcb_window_t* hearerOf(xcb_generic_event_t& event)
{
    switch (eventKind(event)) {
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE: return &reinterpret_cast<xcb_key_press_event_t&>(event).event;
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT: return &reinterpret_cast<xcb_focus_in_event_t&>(event).event;
    default: return nullptr;
    }
}

} // namespace

KeyWindow::KeyWindow()
{
    QSurfaceFormat format;
    format.setAlphaBufferSize(8);
    m_window.setFormat(format);
    m_window.setFlags(Qt::Tool | Qt::FramelessWindowHint);
    m_window.setOpacity(0);
    m_window.setMinimumSize({1, 1});
    m_window.setMaximumSize({1, 1});
    m_window.installEventFilter(this);
    qApp->installNativeEventFilter(this);
}

bool KeyWindow::take(QPoint under)
{
    if (m_keyboard == Keyboard::Here) {
        return false;
    }
    m_window.setGeometry({under, QSize(1, 1)});
    askForTime();
    return std::exchange(m_keyboard, Keyboard::AskedFor) == Keyboard::Elsewhere;
}

void KeyWindow::giveBack()
{
    m_keyboard = Keyboard::Elsewhere;
    m_window.hide();
}

/// Window managers give the keyboard to whoever knows what time it is, which Qt may last have heard
/// long ago. The answer is a property's change.
void KeyWindow::askForTime()
{
    if (m_native == XCB_NONE) {
        m_window.create();
        m_native = nativeOf(&m_window);
        drawTransparent(m_native);
        m_time = atomNamed(qtConnection(), "_QUIB_TIME");
    }
    auto* connection = qtConnection();
    xcb_change_property(connection, XCB_PROP_MODE_APPEND, m_native, m_time, XCB_ATOM_CARDINAL, 32,
                        0, nullptr);
    xcb_flush(connection);
}

void KeyWindow::show()
{
    if (m_keyboard != Keyboard::AskedFor) {
        return;
    }
    if (!m_window.isVisible()) {
        keepOutOfLists(m_native);
        m_window.show();
    }
    m_window.requestActivate();
}

bool KeyWindow::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Close) {
        giveBack();
        return true; // Or Qt would take its native window away.
    }
    return QObject::eventFilter(object, event);
}

/// Qt handles what is heard here as if the panel's own native window had the keyboard.
bool KeyWindow::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/)
{
    if (xcbEvent(type, message) == nullptr || m_native == XCB_NONE) {
        return false;
    }
    auto& event = *static_cast<xcb_generic_event_t*>(message);
    note(event);
    if (auto* hearer = hearerOf(event); hearer != nullptr && *hearer == m_native) {
        *hearer = m_panel;
    }
    return false;
}

void KeyWindow::note(const xcb_generic_event_t& event)
{
    switch (eventKind(event)) {
    case XCB_PROPERTY_NOTIFY: {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == m_native && change.atom == m_time) {
            QMetaObject::invokeMethod(this, &KeyWindow::show, Qt::QueuedConnection);
        }
        return;
    }
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT: noteFocus(reinterpret_cast<const xcb_focus_in_event_t&>(event)); return;
    default: return;
    }
}

/// One that comes late, as after giving back, tells nothing.
void KeyWindow::noteFocus(const xcb_focus_in_event_t& event)
{
    if (event.event != m_native || event.detail == XCB_NOTIFY_DETAIL_POINTER) {
        return;
    }
    if (event.response_type == XCB_FOCUS_IN) {
        m_keyboard = m_window.isVisible() ? Keyboard::Here : Keyboard::Elsewhere;
    } else if (m_keyboard == Keyboard::Here) {
        m_keyboard = Keyboard::Elsewhere;
    }
}

} // namespace quib
