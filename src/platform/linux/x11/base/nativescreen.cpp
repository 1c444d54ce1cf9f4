#include "platform/linux/x11/base/nativescreen.h"

#include <QGuiApplication>
#include <QScreen>

namespace quib {

namespace {

/// The screen that shows the pixel; between screens the main one. Null where there is none.
const QScreen* screenAt(QPoint native)
{
    for (const auto* screen : QGuiApplication::screens()) {
        if (nativeGeometry(*screen).contains(native)) {
            return screen;
        }
    }
    return QGuiApplication::primaryScreen();
}

} // namespace

QRect nativeGeometry(const QScreen& screen)
{
    const auto points = screen.geometry();
    const auto scale = screen.devicePixelRatio();
    return {points.x(), points.y(), qRound(points.width() * scale),
            qRound(points.height() * scale)};
}

QPointF toPoints(QPoint native)
{
    const auto* screen = screenAt(native);
    if (screen == nullptr) {
        return native;
    }
    const QPointF corner = screen->geometry().topLeft();
    return corner + (native - corner) / screen->devicePixelRatio();
}

} // namespace quib
