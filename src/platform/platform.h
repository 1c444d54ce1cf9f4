#pragma once

#include "app/shell/desktop.h"
#include "app/shell/filepicker.h"
#include "app/shell/loginitem.h"
#include "app/shell/panelhost.h"
#include "app/shell/pointersource.h"
#include "app/shell/screensource.h"
#include "app/shell/sessionlock.h"
#include "app/shell/singleinstance.h"
#include "app/shell/statusitem.h"
#include "integrations/calendar/calendarstore.h"
#include "integrations/media/playerlink.h"
#include "integrations/opening/appcatalog.h"
#include "integrations/opening/fileprobe.h"
#include "integrations/opening/iconsource.h"
#include "integrations/opening/opener.h"

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
    std::shared_ptr<AppCatalog> applications; ///< May be asked by a thread that outlives the rest.
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
    /// Begins to talk with the services of the desktop, which takes threads and processor time.
    std::function<void()> reachServices = [] {};
    /// Gives the memory that is free back to the system. Takes a few milliseconds.
    std::function<void()> trimMemory = [] {};
};

/// Settles how the process gets its memory. To be called before there is a second thread.
void prepareMemory();

/// A file that is to become larger than the system lets it is an error of its write then, as a full
/// disk is, and not the end of the process.
void prepareLimits();

/// By which of Qt's platforms a panel can be shown on a desktop, or why by none.
struct WindowSystem {
    QByteArray qtPlatform; ///< As Qt takes it; empty where there is none.
    QString problem; ///< Without a full stop; empty where there is none.

    bool operator==(const WindowSystem&) const = default;
};

/// For the desktop that the environment tells of. Needs no application object.
WindowSystem chooseWindowSystem();

/// What is known of the services of the desktop before there is an application object.
struct ServicesAtStart {
    std::unique_ptr<QObject> hidden; ///< Hides what hangs while that object is made; null: nothing.
    bool arePrompt = false; ///< Whoever meets them does not wait for them.
};

/// Takes up to a quarter of a second where they hang.
ServicesAtStart lookAtServices();

/// The one door. Defined in exactly one folder below this one; the build picks the folder. Needs a
/// QGuiApplication on that desktop. Services that are not known to be prompt are waited for a
/// moment, and hidden from whoever would wait longer.
Platform makePlatform(bool areServicesPrompt = false);

/// What remains where nothing is shown: from `desktop` to `files`; the rest is null.
Platform makePlatformWithoutDisplay();

} // namespace quib
