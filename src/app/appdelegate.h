#pragma once

#include "app/notch/notchmodel.h"
#include "app/panellife.h"
#include "app/quibcommands.h"
#include "integrations/calendar/calendarcontroller.h"
#include "integrations/media/mediacontroller.h"
#include "integrations/opening/actions.h"
#include "model/store.h"
#include "model/time/clock.h"
#include "model/time/scheduler.h"
#include "platform/platform.h"

#include <QObject>

#include <memory>

namespace quib {

class NotchPanel;
class PanelEngine;
struct ViewContext;

/// The owner of everything that lives as long as the process, from launching to termination. What
/// runs while the card is open, and what only while it is closed, is started and ended here.
class AppDelegate : public QObject {
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
    PanelLife& life() { return m_life; }
    QuibCommands& commands() { return m_commands; }
    /// What every view is made with; borrowed from the delegate.
    ViewContext viewContext();

    /// Shows the panel, whose views the engine makes.
    void applicationDidFinishLaunching(std::unique_ptr<PanelEngine> engine);
    /// What the user does not see before the panel is there: the workspace, the services and the
    /// status item.
    void applicationDidShow();
    void applicationWillTerminate();

private:
    void trimMemoryLater();
    void followExpansion();
    void followLock();
    void followDesktop();

    Platform m_platform;
    Scheduler m_schedule;
    NotchModel m_model;
    Store m_store;
    MediaController m_media;
    CalendarController m_calendar;
    Actions m_actions;
    PanelLife m_life;
    QuibCommands m_commands;
    std::unique_ptr<NotchPanel> m_panel;
    std::unique_ptr<QObject> m_showWork; ///< Present until applicationDidShow().
    std::unique_ptr<QObject> m_trimWork;
};

} // namespace quib
