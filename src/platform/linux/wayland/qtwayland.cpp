#include "platform/linux/wayland/qtwayland.h"

#include <QGuiApplication>

#include <qpa/qplatformnativeinterface.h>

namespace quib {

wl_display* qtDisplay()
{
    auto* native = QGuiApplication::platformNativeInterface();
    return static_cast<wl_display*>(native->nativeResourceForIntegration("wl_display"));
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
