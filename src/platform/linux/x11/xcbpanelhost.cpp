#include "platform/linux/x11/xcbpanelhost.h"

#include "platform/linux/x11/stacking.h"
#include "platform/linux/x11/xserver.h"

#include <QCoreApplication>
#include <QPlatformSurfaceEvent>
#include <QTimer>
#include <QTransform>

#include <utility>

namespace quib {

namespace {

/// Whole pixels, outwards.
QRegion toPixels(const QRegion& points, double scale)
{
    QRegion pixels;
    for (const auto& rect : points) {
        pixels += QRectF(rect.x() * scale, rect.y() * scale, rect.width() * scale,
                         rect.height() * scale)
                      .toAlignedRect();
    }
    return pixels;
}

QRegion toPixels(const QPainterPath& points, double scale)
{
    QRegion pixels;
    for (const auto& polygon : points.toFillPolygons(QTransform::fromScale(scale, scale))) {
        pixels += QRegion(polygon.toPolygon(), points.fillRule());
    }
    return pixels;
}

} // namespace

XcbPanelHost::XcbPanelHost()
{
    connect(&m_compositor, &CompositorWatch::changed, this, &XcbPanelHost::followCompositor);
}

void XcbPanelHost::adopt(QWindow& window)
{
    m_window = &window;
    m_scale = window.devicePixelRatio();
    window.setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    window.installEventFilter(this);
    connect(&window, &QWindow::screenChanged, this, &XcbPanelHost::applyShapes);
    m_shape.setWindow(nativeWindow());
    m_stayAbove.setWindow(nativeWindow());
    applyShapes();
}

void XcbPanelHost::place(const QRectF& frame)
{
    if (!m_window) {
        return;
    }
    m_frame = frame.toRect();
    // Qt 6.4 would go on drawing on a surface of as many pixels: it counts points. So one frame is
    // of another size.
    const auto scaleBefore = std::exchange(m_scale, m_window->devicePixelRatio());
    m_isRescaling = m_scale != scaleBefore;
    m_window->setGeometry(m_isRescaling ? m_frame.adjusted(0, 0, 0, 1) : m_frame);
    applyShapes();
    m_window->requestUpdate();
}

void XcbPanelHost::endRescaling()
{
    if (std::exchange(m_isRescaling, false)) {
        QTimer::singleShot(0, this, [this] { place(m_frame); }); // Once that frame is drawn.
    }
}

void XcbPanelHost::setInputRegion(const QRegion& region)
{
    m_inputRegion = region;
    applyInputRegion();
}

void XcbPanelHost::setVisibleShape(const QPainterPath& shape)
{
    m_visibleShape = shape;
    applyVisibleShape();
}

void XcbPanelHost::orderFront()
{
    if (m_window) {
        m_window->show();
        m_window->raise();
        m_stayAbove.setResting(false);
    }
}

bool XcbPanelHost::takeKeyboard()
{
    return nativeWindow() != XCB_NONE && m_keyboard.take(nativeWindow());
}

void XcbPanelHost::giveBackKeyboard(std::optional<quint32> click)
{
    if (nativeWindow() != XCB_NONE) {
        m_keyboard.giveBack(nativeWindow(), click);
    }
}

QRect XcbPanelHost::cardFrame() const
{
    return m_window ? m_inputRegion.boundingRect().translated(m_window->position()) : QRect();
}

void XcbPanelHost::placeBelow(quint32 window)
{
    const auto above = topLevelOf(window);
    if (nativeWindow() == XCB_NONE || above == XCB_NONE) {
        return;
    }
    m_stayAbove.setResting(true);
    putRightBelow(nativeWindow(), above);
}

bool XcbPanelHost::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::PlatformSurface: followSurface(*event); break;
    case QEvent::UpdateRequest: endRescaling(); break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return tellRepeat(static_cast<QKeyEvent&>(*event));
    case QEvent::Show:
    case QEvent::Expose:
    case QEvent::Resize: applyShapes(); break;
    default: break; // NOLINT: Qt's events are not ours to list
    }
    return LinuxPanelHost::eventFilter(object, event);
}

/// Sends a repeat that was taken for a press again, as what it is.
bool XcbPanelHost::tellRepeat(QKeyEvent& event)
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

/// Qt may give the window a new native one at any time.
void XcbPanelHost::followSurface(const QEvent& event)
{
    const auto type = static_cast<const QPlatformSurfaceEvent&>(event).surfaceEventType();
    const auto isThere = type == QPlatformSurfaceEvent::SurfaceCreated;
    m_shape.setWindow(isThere ? nativeWindow() : XCB_NONE);
    m_stayAbove.setWindow(isThere ? nativeWindow() : XCB_NONE);
    applyShapes();
}

void XcbPanelHost::followCompositor()
{
    applyVisibleShape();
    if (nativeWindow() != XCB_NONE && m_compositor.overlooksOldWindows()) {
        introduceAnew();
    }
}

/// To its parent once more: that is told like a new window, and puts it above everything.
void XcbPanelHost::introduceAnew()
{
    const auto window = nativeWindow();
    const auto above = nextAbove(window);
    giveToRoot(window);
    if (above != XCB_NONE) {
        putRightBelow(window, above);
    }
}

void XcbPanelHost::applyInputRegion()
{
    if (m_window) {
        m_shape.setInput(toPixels(m_inputRegion, m_window->devicePixelRatio()));
        m_keyboard.setRefusing(m_inputRegion.isEmpty() ? nativeWindow() : xcb_window_t(XCB_NONE));
    }
}

void XcbPanelHost::applyVisibleShape()
{
    if (!m_window) {
        return;
    }
    if (m_compositor.isRunning() || !m_visibleShape) {
        m_shape.setBounding(std::nullopt);
    } else {
        m_shape.setBounding(toPixels(*m_visibleShape, m_window->devicePixelRatio()));
    }
}

void XcbPanelHost::applyShapes()
{
    applyInputRegion();
    applyVisibleShape();
}

/// Does not make one.
xcb_window_t XcbPanelHost::nativeWindow() const
{
    const auto isThere = m_window && m_window->handle() != nullptr && qtConnection() != nullptr;
    return isThere ? xcb_window_t(m_window->winId()) : xcb_window_t(XCB_NONE);
}

} // namespace quib
