#include "app/notch/hover.h"

namespace quib {

namespace {

HoverAction decideInCard(const HoverTick& tick)
{
    return tick.collapsePending ? HoverAction::CancelCollapse : HoverAction::None;
}

HoverAction decideOutsideCard(const HoverTick& tick)
{
    // A pending collapse is left alone: its delay counts from the first tick outside.
    const bool stays = tick.keptOpen || tick.buttonHeld || tick.collapsePending;
    return stays ? HoverAction::None : HoverAction::ScheduleCollapse;
}

} // namespace

HoverAction decideHover(const HoverTick& tick)
{
    if (tick.expanded) {
        return tick.pointerInside ? decideInCard(tick) : decideOutsideCard(tick);
    }
    if (!tick.pointerInside) {
        return HoverAction::None;
    }
    return tick.buttonHeld ? HoverAction::ExpandToShelf : HoverAction::Expand;
}

ClickAction decideClick(const HoverTick& tick)
{
    if (!tick.expanded || tick.pointerInside) {
        return ClickAction::None;
    }
    return tick.keptOpen ? ClickAction::CloseMenu : ClickAction::Collapse;
}

} // namespace quib
