#include "platform/linux/x11/x11panelhost.h"

#include <QCoreApplication>
#include <QPlatformSurfaceEvent>
#include <QTimer>

#include <utility>

namespace quib {

void X11PanelHost::adopt(QWindow& window)
{
    m_window = &window;
    m_scale = window.devicePixelRatio();
    window.setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    window.installEventFilter(this);
    connect(&window, &QWindow::screenChanged, this, &X11PanelHost::apply);
    follow(nativeWindow());
    apply();
}

void X11PanelHost::place(const QRectF& frame)
{
    if (!m_window) {
        return;
    }
    m_frame = frame.toRect();
    const auto scaleBefore = std::exchange(m_scale, m_window->devicePixelRatio());
    m_isRescaling = m_scale != scaleBefore;
    arrange();
    apply();
    m_window->requestUpdate();
}

void X11PanelHost::arrange()
{
    if (m_window) {
        setGeometry(wantedGeometry());
    }
}

/// Qt 6.4 would go on drawing on a surface of as many pixels: it counts points. So one frame is of
/// another size.
QRect X11PanelHost::wantedGeometry() const
{
    return m_isRescaling ? extent().adjusted(0, 0, 0, 1) : extent();
}

void X11PanelHost::endRescaling()
{
    if (std::exchange(m_isRescaling, false)) {
        QTimer::singleShot(0, this, [this] { place(m_frame); }); // Once that frame is drawn.
    }
}

void X11PanelHost::setInputRegion(const QRegion& region)
{
    m_inputRegion = region;
    apply();
}

void X11PanelHost::orderFront()
{
    if (m_window) {
        m_window->show();
        m_window->raise();
    }
}

QRect X11PanelHost::cardFrame() const
{
    return m_window ? m_inputRegion.boundingRect().translated(m_frame.topLeft()) : QRect();
}

bool X11PanelHost::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::PlatformSurface: followSurface(*event); break;
    case QEvent::UpdateRequest: endRescaling(); break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return tellRepeat(static_cast<QKeyEvent&>(*event));
    case QEvent::Show:
    case QEvent::Expose:
    case QEvent::Resize: apply(); break;
    default: break; // NOLINT: Qt's events are not ours to list
    }
    return LinuxPanelHost::eventFilter(object, event);
}

/// Sends a repeat that was taken for a press again, as what it is.
bool X11PanelHost::tellRepeat(QKeyEvent& event)
{
    const bool isRepeat = m_keyRepeat.isRepeat(event);
    if (event.type() != QEvent::KeyPress || event.isAutoRepeat() || !isRepeat) {
        return false;
    }
    QKeyEvent repeat(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                     event.nativeVirtualKey(), event.nativeModifiers(), event.text(), true,
                     static_cast<quint16>(event.count()), event.device());
    repeat.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(m_window, &repeat);
    event.setAccepted(repeat.isAccepted());
    return true;
}

void X11PanelHost::followSurface(const QEvent& event)
{
    const auto type = static_cast<const QPlatformSurfaceEvent&>(event).surfaceEventType();
    const auto isThere = type == QPlatformSurfaceEvent::SurfaceCreated;
    follow(isThere ? nativeWindow() : xcb_window_t(XCB_NONE));
    apply();
}

} // namespace quib
