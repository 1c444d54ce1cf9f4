#pragma once

namespace quib {

/// What the pointer poll saw on one tick.
struct HoverTick {
    bool pointerInside = false; ///< In the card when expanded, in the notch when collapsed.
    bool buttonHeld = false;
    bool expanded = false;
    bool keptOpen = false; ///< Pinned, or held open by a dialog.
    bool collapsePending = false;

    bool operator==(const HoverTick&) const = default;
};

enum class HoverAction { None, Expand, ExpandToShelf, ScheduleCollapse, CancelCollapse };

/// The one thing to do about a tick. Pure: the caller owns the clock, the pointer and the panel.
HoverAction decideHover(const HoverTick& tick);

enum class ClickAction { None, Collapse, CloseMenu };

/// What to do at once about a left click, seen on `tick`. The button says nothing here.
ClickAction decideClick(const HoverTick& tick);

} // namespace quib
