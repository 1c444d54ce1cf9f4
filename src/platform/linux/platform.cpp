#include "platform/platform.h"

#include "platform/linux/autostartentry.h"
#include "platform/linux/background.h"
#include "platform/linux/desktoplock.h"
#include "platform/linux/diskprobe.h"
#include "platform/linux/edscalendarstore.h"
#include "platform/linux/gioappcatalog.h"
#include "platform/linux/gioopener.h"
#include "platform/linux/linuxinstance.h"
#include "platform/linux/mprisplayerlink.h"
#include "platform/linux/pickerprogram.h"
#include "platform/linux/portaldesktop.h"
#include "platform/linux/quitsignals.h"
#include "platform/linux/statusnotifier.h"
#include "platform/linux/themeiconsource.h"
#include "platform/linux/x11/xcbpanelhost.h"
#include "platform/linux/x11/xcbpointersource.h"
#include "platform/linux/x11/xcbscreensource.h"
#include "platform/linux/x11/xserver.h"

#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr std::chrono::milliseconds MomentForTheBus = 50ms; ///< Many times what it needs.

/// Qt looks for screen readers by the session bus and once: until 6.8 with the first item that is
/// made, from then on with the application object, for which hideWhatHangs() has waited.
void awaitReaders(SessionBus& bus)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    bus.wait(hasServiceForReaders() ? 5 * MomentForTheBus : MomentForTheBus);
#else
    bus.wait(MomentForTheBus);
#endif
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

} // namespace

bool hasDisplay()
{
    return isServerReachable();
}

std::unique_ptr<QObject> hideWhatHangs()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    return nullptr; // The application object does not meet the bus.
#else
    return hideHungSessionBus();
#endif
}

Platform makePlatform()
{
    const auto bus = std::make_shared<SessionBus>();
    auto platform = makeSeamsWithoutDisplay(bus);
    platform.screens = std::make_unique<XcbScreenSource>();
    platform.pointer = std::make_unique<XcbPointerSource>();
    auto panelHost = std::make_unique<XcbPanelHost>();
    platform.filePicker = std::make_unique<PickerProgram>(*panelHost);
    platform.panelHost = std::move(panelHost);
    platform.instance = std::make_unique<LinuxInstance>(bus);
    platform.sessionLock
        = std::make_unique<DesktopLock>(bus, std::make_shared<Bus>(systemBusAddress()));
    platform.statusItem = std::make_unique<StatusNotifier>(bus);
    platform.loginItem = std::make_unique<AutostartEntry>();
    platform.quitSignals = std::make_unique<QuitSignals>();
    platform.enterBackground = enterBackground;
    awaitReaders(*bus);
    return platform;
}

Platform makePlatformWithoutDisplay()
{
    return makeSeamsWithoutDisplay(std::make_shared<SessionBus>());
}

} // namespace quib
