#include "platform/linux/x11/xwaylandpanelhost.h"

#include "platform/linux/window/windowpointer.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

/// A compositor learns of a window's place from the X server and of its pixels from Xwayland. The
/// two come together only where it shows nothing else of the window meanwhile.
constexpr auto MomentAfterDrawing = 100ms;

/// A server that has nothing to change does not answer.
constexpr auto LongestAnswer = 100ms;

/// What is drawn hangs at the middle of the top, and is to stay there while the size changes. What
/// the size adds is transparent.
void hangAtTheTop(xcb_window_t window)
{
    const std::array<uint32_t, 2> values{0, XCB_GRAVITY_NORTH};
    xcb_change_window_attributes(qtConnection(), window, XCB_CW_BACK_PIXEL | XCB_CW_BIT_GRAVITY,
                                 values.data());
}

/// Some compositors give the keyboard to what looks like a menu when it is clicked.
void makeNotification(xcb_window_t window)
{
    auto* connection = qtConnection();
    static const auto type = atomNamed(connection, "_NET_WM_WINDOW_TYPE");
    static const auto notification = atomNamed(connection, "_NET_WM_WINDOW_TYPE_NOTIFICATION");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, type, XCB_ATOM_ATOM, 32, 1,
                        &notification);
}

} // namespace

XwaylandPanelHost::XwaylandPanelHost(WindowPointer& pointer)
    : m_pointer(pointer)
{
    m_beforeShrinking.setSingleShot(true);
    m_beforeShrinking.setInterval(MomentAfterDrawing);
    connect(&m_beforeShrinking, &QTimer::timeout, this, &XwaylandPanelHost::shrink);
    m_beforeDrawing.setSingleShot(true);
    m_beforeDrawing.setInterval(LongestAnswer);
    connect(&m_beforeDrawing, &QTimer::timeout, this, &XwaylandPanelHost::goOn);
}

void XwaylandPanelHost::adopt(QWindow& window)
{
    X11PanelHost::adopt(window);
    m_pointer.watch(window);
}

void XwaylandPanelHost::setHoverRect(const QRect& rect)
{
    m_hoverRect = rect;
    apply();
}

void XwaylandPanelHost::setVisibleShape(const QPainterPath& shape)
{
    m_drawn = shape.boundingRect().size();
    apply();
}

bool XwaylandPanelHost::takeKeyboard()
{
    return nativeWindow() != XCB_NONE && m_keys.take(frame().center());
}

void XwaylandPanelHost::giveBackKeyboard(std::optional<quint32> /*click*/)
{
    m_keys.giveBack();
}

bool XwaylandPanelHost::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::UpdateRequest:
        if (m_beforeDrawing.isActive()) {
            m_isFrameDue = true; // It would be drawn where the window no longer is.
            return true;
        }
        break;
    case QEvent::Show:
        m_pointer.doubtNextEnter();
        break; // The server may not know where it is now.
    case QEvent::Move:
    case QEvent::Resize: goOn(); break;
    default: break; // NOLINT: Qt's events are not ours to list
    }
    return X11PanelHost::eventFilter(object, event);
}

QRect XwaylandPanelHost::extent() const
{
    return m_extent.isEmpty() ? frame() : m_extent.translated(frame().topLeft());
}

/// One change at a time: the scene follows once the server has answered.
void XwaylandPanelHost::setGeometry(const QRect& geometry)
{
    if (m_beforeDrawing.isActive() || window()->geometry() == geometry) {
        return;
    }
    window()->setGeometry(geometry);
    if (nativeWindow() != XCB_NONE) {
        m_beforeDrawing.start();
    }
}

void XwaylandPanelHost::goOn()
{
    m_beforeDrawing.stop();
    if (window() == nullptr) {
        return;
    }
    arrange();
    if (!m_beforeDrawing.isActive() && std::exchange(m_isFrameDue, false)) {
        window()->requestUpdate();
    }
}

void XwaylandPanelHost::follow(xcb_window_t native)
{
    m_keys.setPanel(native);
    if (native != XCB_NONE) {
        hangAtTheTop(native);
        makeNotification(native);
    }
}

/// Grows at once, before anything larger is drawn.
void XwaylandPanelHost::apply()
{
    if (frame().isEmpty()) {
        return; // It has no place yet.
    }
    if (!m_extent.contains(needed())) {
        m_extent = {{}, frame().size()};
        m_pointer.doubtLeaving();
        arrange();
    }
    if (m_extent != needed() && isDrawnWithin(needed())) {
        m_beforeShrinking.start();
    } else {
        m_beforeShrinking.stop();
    }
}

void XwaylandPanelHost::shrink()
{
    m_extent = needed();
    arrange();
}

/// As far to the left of the middle as to the right, where what is drawn hangs.
QRect XwaylandPanelHost::needed() const
{
    const QRect whole({}, frame().size());
    if (!inputRegion().isEmpty() || m_hoverRect.isEmpty()) {
        return whole;
    }
    const auto beside = std::min(m_hoverRect.left(), whole.right() - m_hoverRect.right());
    return whole.adjusted(beside, 0, -beside, m_hoverRect.bottom() - whole.bottom());
}

bool XwaylandPanelHost::isDrawnWithin(const QRect& rect) const
{
    return m_drawn.width() <= rect.width() && m_drawn.height() <= rect.height();
}

} // namespace quib
