#include "platform/platform.h"

#include "platform/linux/base/background.h"
#include "platform/linux/base/log.h"
#include "platform/linux/base/memory.h"
#include "platform/linux/calendar/edscalendarstore.h"
#include "platform/linux/files/diskprobe.h"
#include "platform/linux/icons/themeiconsource.h"
#include "platform/linux/instance/linuxinstance.h"
#include "platform/linux/launch/gioappcatalog.h"
#include "platform/linux/launch/gioopener.h"
#include "platform/linux/media/mprisplayerlink.h"
#include "platform/linux/picker/pickerprogram.h"
#include "platform/linux/session/autostartentry.h"
#include "platform/linux/session/desktoplock.h"
#include "platform/linux/session/portaldesktop.h"
#include "platform/linux/session/quitsignals.h"
#include "platform/linux/statusitem/statusnotifier.h"
#include "platform/linux/wayland/lostcompositor.h"
#include "platform/linux/wayland/qtwayland.h"
#include "platform/linux/wayland/waylandpanelhost.h"
#include "platform/linux/wayland/waylandscreensource.h"
#include "platform/linux/window/windowpointer.h"
#include "platform/linux/windowsystem.h"
#include "platform/linux/x11/base/xserver.h"
#include "platform/linux/x11/xcbpanelhost.h"
#include "platform/linux/x11/xcbpointersource.h"
#include "platform/linux/x11/xcbscreensource.h"
#include "platform/linux/x11/xwaylandpanelhost.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <csignal>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr std::chrono::milliseconds MomentForTheBus = 50ms; ///< Many times what it needs.

/// Where the service for screen readers keeps its socket, whatever shows the windows.
bool hasFolderForReaders()
{
    const auto folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !folder.isEmpty() && QFileInfo::exists(folder + u"/at-spi"_s);
}

/// Qt looks for screen readers by the session bus and once, at the latest with the first item that
/// is made.
void awaitReaders(SessionBus& bus)
{
    bus.wait(hasServiceForReaders() || hasFolderForReaders() ? 5 * MomentForTheBus
                                                             : MomentForTheBus);
}

Platform makeSeamsWithoutDisplay(const std::shared_ptr<SessionBus>& bus)
{
    auto desktop = std::make_unique<PortalDesktop>(bus);
    auto icons = std::make_unique<ThemeIconSource>();
    QObject::connect(desktop.get(), &PortalDesktop::iconThemeNamed, icons.get(),
                     &ThemeIconSource::setTheme);
    return {.desktop = std::move(desktop),
            .applications = std::make_unique<GioAppCatalog>(),
            .opener = std::make_unique<GioOpener>(bus),
            .player = std::make_unique<MprisPlayerLink>(bus),
            .calendar = std::make_unique<EdsCalendarStore>(bus),
            .icons = std::move(icons),
            .files = std::make_unique<DiskProbe>()};
}

void showOnX(Platform& platform)
{
    platform.screens = std::make_unique<XcbScreenSource>();
    platform.pointer = std::make_unique<XcbPointerSource>();
    auto host = std::make_unique<XcbPanelHost>();
    platform.filePicker = std::make_unique<PickerProgram>(*host);
    platform.panelHost = std::move(host);
}

void showThroughXwayland(Platform& platform)
{
    platform.screens = std::make_unique<XcbScreenSource>();
    auto pointer = std::make_unique<WindowPointer>();
    auto host = std::make_unique<XwaylandPanelHost>(*pointer);
    platform.pointer = std::move(pointer);
    platform.filePicker = std::make_unique<PickerProgram>(*host);
    platform.panelHost = std::move(host);
}

void showOnWayland(Platform& platform)
{
    platform.screens = std::make_unique<WaylandScreenSource>();
    auto pointer = std::make_unique<WindowPointer>();
    auto host = std::make_unique<WaylandPanelHost>(*pointer);
    platform.pointer = std::move(pointer);
    platform.filePicker = std::make_unique<PickerProgram>(*host);
    platform.panelHost = std::move(host);
}

} // namespace

void prepareMemory()
{
    useOneHeap();
}

void prepareLimits()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

WindowSystem chooseWindowSystem()
{
    return chooseWindowSystem(lookAround());
}

ServicesAtStart lookAtServices()
{
    const auto bus = lookAtSessionBus();
    return {.hidden = bus.isThere ? nullptr : hideSessionBus(), .arePrompt = bus.isPrompt};
}

Platform makePlatform(bool areServicesPrompt)
{
    const auto bus = std::make_shared<SessionBus>(areServicesPrompt ? SessionBus::State::Prompt
                                                                    : SessionBus::State::Unknown);
    const auto systemBus = std::make_shared<Bus>(systemBusAddress(), Bus::Reach::Later);
    auto platform = makeSeamsWithoutDisplay(bus);
    const auto isWayland = QGuiApplication::platformName().startsWith("wayland"_L1);
    qCDebug(windowLog) << QGuiApplication::platformName() << "shows the panel"
                       << (isWayland || !isXwayland() ? "" : "through Xwayland");
    if (isWayland) {
        showOnWayland(platform);
    } else if (isXwayland()) {
        showThroughXwayland(platform);
    } else {
        showOnX(platform);
    }
    platform.instance = std::make_unique<LinuxInstance>(bus);
    platform.sessionLock = std::make_unique<DesktopLock>(bus, systemBus);
    platform.statusItem = std::make_unique<StatusNotifier>(bus);
    platform.loginItem = std::make_unique<AutostartEntry>();
    platform.quitSignals = std::make_unique<QuitSignals>();
    if (isWayland) {
        new LostCompositor(qtDisplay(), platform.quitSignals.get());
    }
    platform.enterBackground = enterBackground;
    platform.trimMemory = trimMemory;
    platform.reachServices = [bus, systemBus] {
        bus->reach();
        systemBus->reach();
    };
    if (!areServicesPrompt) {
        awaitReaders(*bus);
    }
    return platform;
}

Platform makePlatformWithoutDisplay()
{
    return makeSeamsWithoutDisplay(std::make_shared<SessionBus>());
}

} // namespace quib
