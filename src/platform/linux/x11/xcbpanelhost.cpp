#include "platform/linux/x11/xcbpanelhost.h"

#include "platform/linux/x11/base/xserver.h"
#include "platform/linux/x11/stacking.h"

#include <QTransform>
#include <QtMath>

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

/// A pixel belongs to it where its middle does. Filled so much finer, for a region's curves are
/// lines between whole numbers, which is seen in its corners.
QRegion toPixels(const QPainterPath& points, double scale)
{
    constexpr double Finer = 8;
    const auto pixelFrom = [](double edge) { return qCeil(edge / Finer - 0.5); };
    QRegion pixels;
    for (const auto& polygon :
         points.toFillPolygons(QTransform::fromScale(scale * Finer, scale * Finer))) {
        for (const QRectF fine : QRegion(polygon.toPolygon(), points.fillRule())) {
            pixels += QRect(QPoint(pixelFrom(fine.left()), pixelFrom(fine.top())),
                            QPoint(pixelFrom(fine.right()) - 1, pixelFrom(fine.bottom()) - 1));
        }
    }
    return pixels;
}

} // namespace

XcbPanelHost::XcbPanelHost()
{
    connect(&m_compositor, &CompositorWatch::changed, this, &XcbPanelHost::followCompositor);
}

void XcbPanelHost::setVisibleShape(const QPainterPath& shape)
{
    m_visibleShape = shape;
    if (window() != nullptr && !m_compositor.isRunning()) {
        m_shape.setBoundingOfFrame(toPixels(shape, window()->devicePixelRatio()));
    }
}

void XcbPanelHost::orderFront()
{
    X11PanelHost::orderFront();
    m_stayAbove.setResting(false);
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

void XcbPanelHost::placeBelow(quint32 window)
{
    const auto above = topLevelOf(window);
    if (nativeWindow() == XCB_NONE || above == XCB_NONE) {
        return;
    }
    m_stayAbove.setResting(true);
    putRightBelow(nativeWindow(), above);
}

void XcbPanelHost::follow(xcb_window_t native)
{
    m_shape.setWindow(native);
    m_stayAbove.setWindow(native);
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

void XcbPanelHost::apply()
{
    if (window() != nullptr) {
        m_shape.setInput(toPixels(inputRegion(), window()->devicePixelRatio()));
        m_keyboard.setRefusing(inputRegion().isEmpty() ? nativeWindow() : xcb_window_t(XCB_NONE));
    }
    applyVisibleShape();
}

void XcbPanelHost::applyVisibleShape()
{
    if (window() == nullptr) {
        return;
    }
    if (m_compositor.isRunning() || !m_visibleShape) {
        m_shape.setBounding(std::nullopt);
    } else {
        m_shape.setBounding(toPixels(*m_visibleShape, window()->devicePixelRatio()));
    }
}

} // namespace quib
