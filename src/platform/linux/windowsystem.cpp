#include "platform/linux/windowsystem.h"

#include "platform/linux/wayland/layershell.h"
#include "platform/linux/x11/base/xserver.h"

#include <QList>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

// The beginnings of what Qt calls them; "wayland-egl" is one too.
constexpr QByteArrayView Wayland = "wayland";
constexpr QByteArrayView X11 = "xcb";

QString whyNone(const Surroundings& surroundings)
{
    if (!surroundings.asked.isEmpty()) {
        return u"the panel can not be shown by QT_QPA_PLATFORM=%1 here"_s.arg(
            QString::fromLocal8Bit(surroundings.asked));
    }
    return surroundings.isWaylandSession
        ? u"this Wayland compositor has no layer shell, and there is no X display to show the "
          u"panel on"_s
        : u"there is no X display to show the panel on"_s;
}

} // namespace

WindowSystem chooseWindowSystem(const Surroundings& surroundings)
{
    const auto serves = [&surroundings](const QByteArray& platform) {
        return platform.startsWith(Wayland) ? surroundings.hasLayerShell()
                                            : platform.startsWith(X11) && surroundings.hasXServer();
    };
    auto left = (surroundings.asked.isEmpty() ? "wayland;xcb"_ba : surroundings.asked).split(';');
    while (!left.isEmpty() && !serves(left.first())) {
        left.removeFirst();
    }
    return {.qtPlatform = left.join(';'),
            .problem = left.isEmpty() ? whyNone(surroundings) : QString()};
}

Surroundings lookAround()
{
    return {.asked = qgetenv("QT_QPA_PLATFORM"),
            .isWaylandSession = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"),
            .hasLayerShell = isLayerShellOffered,
            .hasXServer = isServerReachable};
}

} // namespace quib
