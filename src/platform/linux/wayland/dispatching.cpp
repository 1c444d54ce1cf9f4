#include "platform/linux/wayland/dispatching.h"

#include <QDeadlineTimer>

#include <cerrno>

#include <poll.h>

#include <wayland-client-core.h>

namespace quib {

namespace {

/// Whether there is something to read before the deadline.
bool hasAnswer(wl_display* display, const QDeadlineTimer& deadline)
{
    pollfd connection{.fd = wl_display_get_fd(display), .events = POLLIN, .revents = 0};
    int ready = 0;
    do {
        ready = poll(&connection, 1, int(deadline.remainingTime()));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

} // namespace

bool dispatchUntil(wl_display* display, wl_event_queue* queue, std::chrono::milliseconds patience,
                   const std::function<bool()>& isSo)
{
    const QDeadlineTimer deadline(patience);
    while (wl_display_dispatch_queue_pending(display, queue) >= 0 && !isSo()) {
        if (wl_display_prepare_read_queue(display, queue) != 0) {
            continue; // Something has come meanwhile.
        }
        wl_display_flush(display);
        if (!hasAnswer(display, deadline)) {
            wl_display_cancel_read(display);
            return false;
        }
        if (wl_display_read_events(display) < 0) {
            return false;
        }
    }
    return isSo();
}

} // namespace quib
