#pragma once

#include "app/notch/desktop.h"
#include "app/notch/filepicker.h"
#include "app/notch/loginitem.h"
#include "app/notch/panelhost.h"
#include "app/notch/pointersource.h"
#include "app/notch/screensource.h"
#include "app/notch/sessionlock.h"
#include "app/notch/singleinstance.h"
#include "app/notch/statusitem.h"
#include "integrations/appcatalog.h"
#include "integrations/calendarstore.h"
#include "integrations/fileprobe.h"
#include "integrations/iconsource.h"
#include "integrations/opener.h"
#include "integrations/playerlink.h"

#include <functional>
#include <memory>

namespace quib {

/// The desktop this program runs on: one of each seam.
struct Platform {
    std::unique_ptr<ScreenSource> screens;
    std::unique_ptr<PointerSource> pointer;
    std::unique_ptr<PanelHost> panelHost;
    std::unique_ptr<SingleInstance> instance;
    std::unique_ptr<SessionLock> sessionLock;
    std::unique_ptr<Desktop> desktop;
    std::unique_ptr<AppCatalog> applications;
    std::unique_ptr<Opener> opener;
    std::unique_ptr<PlayerLink> player;
    std::unique_ptr<CalendarStore> calendar;
    std::unique_ptr<IconSource> icons;
    std::unique_ptr<FileProbe> files;
    std::unique_ptr<StatusItem> statusItem;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<FilePicker> filePicker;
    /// Ends the event loop in order when the system asks the process to end.
    std::unique_ptr<QObject> quitSignals;
    /// Makes the calling thread, not the main one, one of utility priority.
    std::function<void()> enterBackground = [] {};
    /// Gives the memory that is free back to the system. Takes a few milliseconds.
    std::function<void()> trimMemory = [] {};
};

/// Settles how the process gets its memory. To be called before there is a second thread.
void prepareMemory();

/// By which of Qt's platforms a panel can be shown on a desktop, or why by none.
struct WindowSystem {
    QByteArray qtPlatform; ///< As Qt takes it; empty where there is none.
    QString problem; ///< Without a full stop; empty where there is none.

    bool operator==(const WindowSystem&) const = default;
};

/// For the desktop that the environment tells of. Needs no application object.
WindowSystem chooseWindowSystem();

/// Hides what hangs from the application object while that is made; to be held until then. Null
/// where nothing hangs.
std::unique_ptr<QObject> hideWhatHangs();

/// The one door. Defined in exactly one folder below this one; the build picks the folder. Needs a
/// QGuiApplication on that desktop.
Platform makePlatform();

/// What remains where nothing is shown: from `desktop` to `files`; the rest is null.
Platform makePlatformWithoutDisplay();

} // namespace quib
