#include "platform/linux/window/screenchanges.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace quib {

void followScreens(QObject& context, const std::function<void()>& changed)
{
    const auto follow = [&context, changed](const QScreen* screen) {
        QObject::connect(screen, &QScreen::geometryChanged, &context, changed);
        QObject::connect(screen, &QScreen::availableGeometryChanged, &context, changed);
    };
    std::ranges::for_each(QGuiApplication::screens(), follow);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context, follow);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context, changed);
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &context, changed);
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &context, changed);
}

} // namespace quib
