#include "app/appdelegate.h"

#include "app/notchpanel.h"
#include "app/panelengine.h"
#include "shortcuts/shortcuts.h"
#include "views/shapes/unseen.h"

#include <QRegion>

#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto LatestShow = 1s; // A panel that lies below a locker or on no screen draws nothing.
constexpr auto LettingGoDelay = 2s; // Nobody goes to and fro any more.
constexpr auto TrimDelay = 1s; // A frame after that has freed what was let go of.

} // namespace

AppDelegate::AppDelegate(Platform platform, Clock clock, Scheduler schedule)
    : m_platform(std::move(platform))
    , m_schedule(schedule)
    , m_store({.clock = clock,
               .schedule = schedule,
               .findApplication
               = [applications = m_platform.applications](
                     const QString& name) { return applications->applicationNamed(name); },
               .enterBackground = m_platform.enterBackground})
    , m_media(*m_platform.player, std::move(schedule))
    , m_calendar(m_platform.calendar.get(), std::move(clock))
    , m_actions(*m_platform.opener)
    , m_poll(*m_platform.pointer, m_schedule)
{
    connect(&m_menu, &StatusMenu::aboutToOpen, this, [this] { rebuildMenuStates(m_menu); });
    connect(&m_menu, &StatusMenu::chosen, this, &AppDelegate::runCommand);
}

AppDelegate::~AppDelegate() = default;

ViewContext AppDelegate::viewContext()
{
    return {.model = m_model,
            .store = m_store,
            .media = m_media,
            .calendar = m_calendar,
            .shortcuts = Shortcuts::shared(),
            .actions = m_actions,
            .icons = *m_platform.icons,
            .files = *m_platform.files,
            .commands = *this};
}

void AppDelegate::applicationDidFinishLaunching(std::unique_ptr<PanelEngine> engine)
{
    Store::removeLeftovers();
    Shortcuts::shared().reload();
    m_panel = std::make_unique<NotchPanel>(viewContext(), *m_platform.panelHost, std::move(engine));
    layout();
    m_platform.panelHost->setInputRegion({});
    m_platform.panelHost->orderFront();
    connect(&m_model, &NotchModel::isExpandedChanged, this, &AppDelegate::followExpansion);
    connect(&m_store, &Store::entriesChanged, this, &AppDelegate::followHoverRect);
    connect(m_platform.screens.get(), &ScreenSource::changed, this, &AppDelegate::layout);
    installMouseMonitors();
    connect(m_platform.instance.get(), &SingleInstance::activated, this, &AppDelegate::activate);
    connect(m_platform.desktop.get(), &Desktop::isMotionReducedChanged, this,
            &AppDelegate::followDesktop);
    followDesktop();
    connect(m_platform.sessionLock.get(), &SessionLock::isLockedChanged, this,
            &AppDelegate::followLock);
    followLock();
    m_showWork = m_schedule(LatestShow, [this] { applicationDidShow(); });
    connect(m_panel.get(), &QQuickWindow::frameSwapped, this, &AppDelegate::applicationDidShow,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void AppDelegate::applicationDidShow()
{
    if (!std::exchange(m_showWork, nullptr)) {
        return;
    }
    m_store.beginLoading();
    m_platform.reachServices();
    setupStatusItem();
    trimMemoryLater();
}

void AppDelegate::applicationWillTerminate()
{
    m_store.saveNow();
}

void AppDelegate::layout()
{
    const auto screen = chooseScreen(m_platform.screens->screens());
    if (!screen) {
        return; // Screens are being rearranged.
    }
    m_screen = *screen;
    const auto notch = notchOf(m_screen);
    m_model.setHasNotch(notch.isReal);
    m_model.setNotchSize(notch.size);
    m_platform.panelHost->place(panelFrame(m_screen));
    followHoverRect();
}

/// The closed card has pictures; starting and building views leave holes behind.
void AppDelegate::trimMemoryLater()
{
    m_trimWork = m_schedule(LettingGoDelay, [this] {
        Unseen::letGo(m_panel->contentItem());
        m_trimWork = m_schedule(TrimDelay, [this] {
            m_trimWork.reset();
            m_platform.trimMemory();
        });
    });
}

void AppDelegate::followExpansion()
{
    auto& host = *m_platform.panelHost;
    followHoverRect();
    m_trimWork.reset();
    m_poll.setKeptAwake(m_model.isExpanded());
    if (m_model.isExpanded()) {
        host.orderFront(); // Some window managers raise full-screen windows above everything.
        host.setInputRegion(CardInPanel.toRect());
        m_media.startPolling();
        m_calendar.reload();
        return;
    }
    host.setInputRegion({});
    m_media.stopPolling();
    giveBackKeyboard();
    trimMemoryLater();
}

/// Nobody but the user sees the card. What was to stay open does so again after the unlocking.
void AppDelegate::followLock()
{
    const bool isLocked = m_platform.sessionLock->isLocked();
    m_model.setLocked(isLocked);
    m_calendar.setAsleep(isLocked);
    if (isLocked) {
        cancelCollapse();
        m_model.setExpanded(false);
    } else if (isKeptOpen()) {
        expand(false);
    }
}

void AppDelegate::followDesktop()
{
    m_model.setMotionReduced(m_platform.desktop->isMotionReduced());
}

void AppDelegate::activate()
{
    openQuib();
    if (m_model.isExpanded()) {
        m_platform.panelHost->takeKeyboard();
    }
}

} // namespace quib
