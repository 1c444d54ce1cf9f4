#pragma once

#include "app/notch/geometry.h"
#include "app/notch/hover.h"
#include "app/notch/notchmodel.h"
#include "app/shell/commands.h"
#include "app/shell/pointerpoll.h"
#include "app/shell/statusmenu.h"
#include "integrations/calendar/calendarcontroller.h"
#include "integrations/media/mediacontroller.h"
#include "integrations/opening/actions.h"
#include "model/store.h"
#include "model/time/clock.h"
#include "model/time/scheduler.h"
#include "platform/platform.h"

#include <QObject>

#include <memory>
#include <optional>

namespace quib {

class NotchPanel;
class PanelEngine;
struct ViewContext;

/// The owner of everything that lives as long as the process. It reads the world through the
/// seams, asks the pure functions of app/notch what to do, and does it.
class AppDelegate : public Commands {
    Q_OBJECT

public:
    explicit AppDelegate(Platform platform, Clock clock = systemClock,
                         Scheduler schedule = scheduleOnMainLoop);
    ~AppDelegate() override;

    const Platform& platform() const { return m_platform; }
    NotchModel& model() { return m_model; }
    Store& store() { return m_store; }
    const MediaController& media() const { return m_media; }
    const CalendarController& calendar() const { return m_calendar; }
    /// What every view is made with; borrowed from the delegate.
    ViewContext viewContext();
    /// Where the pointer opens the card, in global points.
    QRectF collapsedRect() const;

    /// Shows the panel, whose views the engine makes.
    void applicationDidFinishLaunching(std::unique_ptr<PanelEngine> engine);
    /// What the user does not see before the panel is there: the workspace, the services and the
    /// status item.
    void applicationDidShow();
    void applicationWillTerminate();
    /// Measures the notch and places the panel. Without any screen the last geometry stays.
    void layout();
    /// One look at the pointer.
    void checkHover();
    void expand(bool toShelf) override;
    /// After 0.06 s, or at the next turn of the main loop. The tab stays.
    void collapse(bool immediately);
    /// Opens the panel and pins it, or it would collapse at once: the pointer is elsewhere.
    void openQuib();

    void setupStatusItem();
    void rebuildMenu();
    void rebuildMenuStates(StatusMenu& menu) const;
    void togglePin();
    void toggleLogin() const;
    void editShortcuts() override;
    void showData() const;
    void quit() override;
    void pick(bool directories, const std::optional<QUrl>& startIn, Completion completion) override;
    QString applicationName(const QString& path) const override;
    bool takeKeyboard() override;
    void giveBackKeyboard() override;
    void dismiss() override;
    StatusMenu* menu() override { return &m_menu; }
    bool isMenuInStatusBar() const override;

private:
    void cancelCollapse();
    void followMenu();
    void runCommand(const QString& title);
    void installMouseMonitors();
    void followWhatDecides();
    void trimMemoryLater();
    void followExpansion();
    void followHoverRect();
    void followLock();
    void followDesktop();
    void globalClick(quint32 time);
    void activate();
    bool isKeptOpen() const;
    QRectF hoverRect() const;
    HoverTick tickAt(const PointerState& pointer) const;

    Platform m_platform;
    Scheduler m_schedule;
    NotchModel m_model;
    Store m_store;
    MediaController m_media;
    CalendarController m_calendar;
    Actions m_actions;
    StatusMenu m_menu;
    std::unique_ptr<NotchPanel> m_panel;
    Screen m_screen; ///< As of the last layout.
    PointerPoll m_poll;
    std::unique_ptr<QObject> m_showWork; ///< Present until applicationDidShow().
    std::unique_ptr<QObject> m_trimWork;
    std::unique_ptr<QObject> m_collapseWork; ///< Present while a collapse is pending.
    std::optional<quint32> m_endingClick; ///< The click that the pending collapse is due to.
};

} // namespace quib
