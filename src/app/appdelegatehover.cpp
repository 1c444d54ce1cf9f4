// What the delegate does about the pointer.
#include "app/appdelegate.h"

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto CollapseDelay = 60ms;

} // namespace

QRectF AppDelegate::collapsedRect() const
{
    return quib::collapsedRect(m_screen, m_model.notchSize(), m_store.hasRunningEntry());
}

void AppDelegate::checkHover()
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

void AppDelegate::expand(bool toShelf)
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

void AppDelegate::collapse(bool immediately)
{
    m_collapseWork = m_schedule(immediately ? 0ms : CollapseDelay, [this] {
        m_collapseWork.reset();
        m_model.setExpanded(false);
    });
}

void AppDelegate::cancelCollapse()
{
    m_collapseWork.reset();
    m_endingClick.reset();
}

void AppDelegate::openQuib()
{
    expand(false);
    m_model.setPinned(true);
}

void AppDelegate::installMouseMonitors()
{
    connect(m_platform.pointer.get(), &PointerSource::clicked, this, &AppDelegate::globalClick);
    connect(&m_poll, &PointerPoll::due, this, &AppDelegate::checkHover);
    followWhatDecides();
    m_poll.begin();
}

/// A pointer that rests tells nothing when something else changes what is to be done about it.
void AppDelegate::followWhatDecides()
{
    const auto look = [this] { m_poll.wake(); };
    connect(&m_model, &NotchModel::isExpandedChanged, this, look, Qt::QueuedConnection);
    connect(&m_model, &NotchModel::isPinnedChanged, this, look, Qt::QueuedConnection);
    connect(&m_model, &NotchModel::isLockedChanged, this, look, Qt::QueuedConnection);
    connect(&m_store, &Store::entriesChanged, this, look, Qt::QueuedConnection);
    connect(m_platform.screens.get(), &ScreenSource::changed, this, look, Qt::QueuedConnection);
}

/// Of the window only: the pointer can not be beyond the screen's edge.
void AppDelegate::followHoverRect()
{
    const QRectF window({}, PanelSize);
    const auto rect = hoverRect().translated(-panelFrame(m_screen).topLeft()) & window;
    m_platform.panelHost->setHoverRect(rect.toAlignedRect());
}

void AppDelegate::globalClick(quint32 time)
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

bool AppDelegate::isKeptOpen() const
{
    return m_model.isPinned() || m_model.holdOpen > 0;
}

QRectF AppDelegate::hoverRect() const
{
    return m_model.isExpanded() ? expandedRect(m_screen) : collapsedRect();
}

HoverTick AppDelegate::tickAt(const PointerState& pointer) const
{
    return {.pointerInside = hoverRect().contains(pointer.position),
            .buttonHeld = pointer.leftHeld,
            .expanded = m_model.isExpanded(),
            .keptOpen = isKeptOpen(),
            .collapsePending = m_collapseWork != nullptr};
}

} // namespace quib
