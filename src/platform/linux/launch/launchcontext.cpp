#include "platform/linux/launch/launchcontext.h"

#include <QByteArrayList>
#include <QFile>

#include <array>
#include <csignal>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

/// What we set for ourselves. The user may have set it too, to something else.
constexpr std::array SetByUs{"DBUS_SESSION_BUS_ADDRESS", "QT_QPA_PLATFORM",
                             "QT_QPA_UPDATE_IDLE_TIME", "QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT"};

/// What told us alone how we were started.
constexpr std::array MeantForUs{
    "DBUS_STARTER_ADDRESS",      "DBUS_STARTER_BUS_TYPE",         "DESKTOP_STARTUP_ID",
    "GIO_LAUNCHED_DESKTOP_FILE", "GIO_LAUNCHED_DESKTOP_FILE_PID", "XDG_ACTIVATION_TOKEN"};

/// As it was when the program started: what it sets later is not seen there.
QByteArrayList firstEnvironment()
{
    QFile file(u"/proc/self/environ"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\0') : QByteArrayList();
}

void restore(GAppLaunchContext& context, const char* name, const QByteArrayList& environment)
{
    g_app_launch_context_unsetenv(&context, name);
    const auto start = name + "="_ba;
    for (const auto& entry : environment) {
        if (entry.startsWith(start)) {
            g_app_launch_context_setenv(&context, name, entry.constData() + start.size());
        }
    }
}

} // namespace

GOwned<GAppLaunchContext> makeLaunchContext()
{
    GOwned<GAppLaunchContext> context(g_app_launch_context_new());
    for (const auto* name : MeantForUs) {
        g_app_launch_context_unsetenv(context.get(), name);
    }
    const auto environment = firstEnvironment();
    for (const auto* name : SetByUs) {
        restore(*context, name, environment);
    }
    return context;
}

void standAlone(gpointer /*nothing*/)
{
    setsid();
    sigset_t none{};
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    std::signal(SIGXFSZ, SIG_DFL); // Which we ignore.
}

} // namespace quib
