#include "app/appdelegate.h"

#include "app/notchpanel.h"
#include "app/panelengine.h"
#include "shortcuts/shortcuts.h"
#include "views/shapes/unseen.h"

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
    , m_media(*m_platform.player, schedule)
    , m_calendar(m_platform.calendar.get(), std::move(clock))
    , m_actions(*m_platform.opener)
    , m_life(m_platform, m_model, m_store, std::move(schedule))
    , m_commands(m_platform, m_model, m_life)
{
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
            .commands = m_commands};
}

void AppDelegate::applicationDidFinishLaunching(std::unique_ptr<PanelEngine> engine)
{
    Store::removeLeftovers();
    Shortcuts::shared().reload();
    m_panel = std::make_unique<NotchPanel>(viewContext(), *m_platform.panelHost, std::move(engine));
    m_life.begin();
    connect(&m_model, &NotchModel::isExpandedChanged, this, &AppDelegate::followExpansion);
    connect(m_platform.instance.get(), &SingleInstance::activated, &m_life, &PanelLife::activate);
    connect(m_platform.instance.get(), &SingleInstance::pinAsked, &m_commands,
            &QuibCommands::togglePin);
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
    m_commands.setupStatusItem();
    trimMemoryLater();
}

void AppDelegate::applicationWillTerminate()
{
    m_store.saveNow();
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
    m_trimWork.reset();
    if (m_model.isExpanded()) {
        m_media.startPolling();
        m_calendar.reload();
    } else {
        m_media.stopPolling();
        trimMemoryLater();
    }
}

void AppDelegate::followLock()
{
    const bool isLocked = m_platform.sessionLock->isLocked();
    m_calendar.setAsleep(isLocked);
    m_life.setLocked(isLocked);
}

void AppDelegate::followDesktop()
{
    m_model.setMotionReduced(m_platform.desktop->isMotionReduced());
}

} // namespace quib
