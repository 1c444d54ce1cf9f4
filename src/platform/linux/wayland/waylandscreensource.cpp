#include "platform/linux/wayland/waylandscreensource.h"

#include "platform/linux/wayland/qtwayland.h"
#include "platform/linux/window/screenchanges.h"

#include <QGuiApplication>
#include <QScreen>

using namespace std::chrono_literals;

namespace quib {

WaylandScreenSource::WaylandScreenSource()
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(0ms);
    connect(&m_settle, &QTimer::timeout, this, &ScreenSource::changed);
    followScreens(*this, [this] { m_settle.start(); });
}

QList<Screen> WaylandScreenSource::screens() const
{
    QList<Screen> screens;
    for (auto* screen : QGuiApplication::screens()) {
        if (isReal(*screen)) {
            screens.append({.frame = screen->geometry(),
                            .visibleFrame = screen->availableGeometry(),
                            .isMain = screen == QGuiApplication::primaryScreen()});
        }
    }
    return screens;
}

} // namespace quib
