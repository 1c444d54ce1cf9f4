#include "app/panellife.h"

#include <QRegion>

#include <utility>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto CollapseDelay = 60ms;

} // namespace

PanelLife::PanelLife(const Platform& platform, NotchModel& model, const Store& store,
                     Scheduler schedule)
    : m_platform(platform)
    , m_model(model)
    , m_store(store)
    , m_schedule(std::move(schedule))
    , m_poll(m_platform.pointer.get(), m_schedule)
{
}

QRectF PanelLife::collapsedRect() const
{
    return quib::collapsedRect(m_screen, m_model.notchSize(), m_store.hasRunningEntry());
}

void PanelLife::begin()
{
    auto& host = *m_platform.panelHost;
    layout();
    host.setInputRegion({});
    host.orderFront();
    connect(&m_model, &NotchModel::isExpandedChanged, this, &PanelLife::followExpansion);
    connect(&m_store, &Store::entriesChanged, this, &PanelLife::followHoverRect);
    connect(m_platform.screens.get(), &ScreenSource::changed, this, &PanelLife::layout);
    installMouseMonitors();
}

void PanelLife::layout()
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

void PanelLife::checkHover()
{
    if (m_screen.frame.isEmpty() || m_platform.sessionLock->isLocked()) {
        return; // There has been no screen yet, or it shows the locker.
    }
    switch (decideHover(tickAt(m_poll.look()))) {
    case HoverAction::None: return;
    case HoverAction::Expand: expand(false); return;
    case HoverAction::ExpandToShelf: expand(true); return;
    case HoverAction::ScheduleCollapse: collapse(false); return;
    case HoverAction::CancelCollapse: cancelCollapse(); return;
    }
}

void PanelLife::expand(bool toShelf)
{
    if (m_platform.sessionLock->isLocked()) {
        return;
    }
    cancelCollapse();
    if (toShelf) {
        m_model.setTab(Tab::Shelf);
    }
    m_model.setExpanded(true);
}

void PanelLife::collapse(bool immediately)
{
    m_collapseWork = m_schedule(immediately ? 0ms : CollapseDelay, [this] {
        m_collapseWork.reset();
        m_model.setExpanded(false);
    });
}

void PanelLife::dismiss()
{
    if (!isKeptOpen()) {
        cancelCollapse();
        m_model.setExpanded(false);
    }
}

void PanelLife::openQuib()
{
    expand(false);
    m_model.setPinned(true);
}

void PanelLife::activate()
{
    openQuib();
    if (m_model.isExpanded()) {
        m_platform.panelHost->takeKeyboard();
    }
}

void PanelLife::setLocked(bool isLocked)
{
    m_model.setLocked(isLocked);
    if (isLocked) {
        cancelCollapse();
        m_model.setExpanded(false);
    } else if (isKeptOpen()) {
        expand(false);
    }
}

void PanelLife::giveBackKeyboard()
{
    m_platform.panelHost->giveBackKeyboard(std::exchange(m_endingClick, std::nullopt));
}

void PanelLife::installMouseMonitors()
{
    connect(m_platform.pointer.get(), &PointerSource::clicked, this, &PanelLife::globalClick);
    connect(&m_poll, &PointerPoll::due, this, &PanelLife::checkHover);
    followWhatDecides();
    m_poll.begin();
}

/// A pointer that rests tells nothing when something else changes what is to be done about it.
void PanelLife::followWhatDecides()
{
    const auto look = [this] { m_poll.wake(); };
    connect(&m_model, &NotchModel::isExpandedChanged, this, look, Qt::QueuedConnection);
    connect(&m_model, &NotchModel::isPinnedChanged, this, look, Qt::QueuedConnection);
    connect(&m_model, &NotchModel::isLockedChanged, this, look, Qt::QueuedConnection);
    connect(&m_store, &Store::entriesChanged, this, look, Qt::QueuedConnection);
    connect(m_platform.screens.get(), &ScreenSource::changed, this, look, Qt::QueuedConnection);
}

void PanelLife::followExpansion()
{
    auto& host = *m_platform.panelHost;
    followHoverRect();
    m_poll.setKeptAwake(m_model.isExpanded());
    if (m_model.isExpanded()) {
        host.orderFront(); // Some window managers raise full-screen windows above everything.
        host.setInputRegion(CardInPanel.toRect());
        return;
    }
    host.setInputRegion({});
    giveBackKeyboard();
}

/// Of the window only: the pointer can not be beyond the screen's edge.
void PanelLife::followHoverRect()
{
    const QRectF window({}, PanelSize);
    const auto rect = hoverRect().translated(-panelFrame(m_screen).topLeft()) & window;
    m_platform.panelHost->setHoverRect(rect.toAlignedRect());
}

void PanelLife::globalClick(quint32 time)
{
    switch (decideClick(tickAt(m_poll.look()))) {
    case ClickAction::None: return;
    case ClickAction::Collapse:
        m_endingClick = time;
        collapse(true);
        return;
    case ClickAction::CloseMenu:
        m_endingClick = time;
        Q_EMIT clickedElsewhere();
        m_endingClick.reset();
        return;
    }
}

void PanelLife::cancelCollapse()
{
    m_collapseWork.reset();
    m_endingClick.reset();
}

bool PanelLife::isKeptOpen() const
{
    return m_model.isPinned() || m_model.holdOpen > 0;
}

QRectF PanelLife::hoverRect() const
{
    return m_model.isExpanded() ? expandedRect(m_screen) : collapsedRect();
}

HoverTick PanelLife::tickAt(const PointerState& pointer) const
{
    return {.pointerInside = hoverRect().contains(pointer.position),
            .buttonHeld = pointer.leftHeld,
            .expanded = m_model.isExpanded(),
            .keptOpen = isKeptOpen(),
            .collapsePending = m_collapseWork != nullptr};
}

} // namespace quib
