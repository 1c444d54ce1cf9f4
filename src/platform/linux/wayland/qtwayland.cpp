#include "platform/linux/wayland/qtwayland.h"

#include <QGuiApplication>
#include <QWindow>

#include <qpa/qplatformnativeinterface.h>

namespace quib {

wl_display* qtDisplay()
{
    auto* native = QGuiApplication::platformNativeInterface();
    return static_cast<wl_display*>(native->nativeResourceForIntegration("wl_display"));
}

void makeBareWhenCreated(QWindow& window)
{
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1"); // Qt looks at it again and again.
    window.setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
}

wl_surface* surfaceOf(QWindow& window)
{
    auto* native = QGuiApplication::platformNativeInterface();
    return static_cast<wl_surface*>(native->nativeResourceForWindow("surface", &window));
}

wl_output* outputOf(QScreen& screen)
{
    auto* native = QGuiApplication::platformNativeInterface();
    return static_cast<wl_output*>(native->nativeResourceForScreen("output", &screen));
}

bool isReal(QScreen& screen)
{
    return outputOf(screen) != nullptr;
}

} // namespace quib
