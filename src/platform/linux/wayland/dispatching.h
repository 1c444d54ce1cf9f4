#pragma once

#include <chrono>
#include <functional>

struct wl_display;
struct wl_event_queue;

namespace quib {

/// Handles what the compositor sends on that queue until it is so; at once where it is so already.
/// False when the compositor has gone or it takes longer than the patience. Others may read from
/// the connection meanwhile.
bool dispatchUntil(wl_display* display, wl_event_queue* queue, std::chrono::milliseconds patience,
                   const std::function<bool()>& isSo);

} // namespace quib
