#pragma once

#include "platform/linux/calendar/eds/calendarclient.h"
#include "platform/linux/calendar/eds/loopthread.h"

namespace quib {

/// One calendar on a thread of its own, so that one whose service hangs holds up no other.
class CalendarWorker {
public:
    /// Of the events; absent where what reads the calendar can't be reached.
    using Answer = std::function<void(std::optional<QList<CalendarEntry>>)>;

    /// The listener is called on the other thread. Throws std::system_error where there is no room
    /// for a thread.
    CalendarWorker(ESource* source, Span span, CalendarClient::Listener listener);
    /// As end().
    ~CalendarWorker();
    CalendarWorker(const CalendarWorker&) = delete;
    CalendarWorker& operator=(const CalendarWorker&) = delete;

    /// Connects first, where it has not or where the service has crashed. The answer is given on
    /// the other thread.
    void read(Answer answer) const;
    /// What it waits for is given up.
    void end() const;
    void leaveBy(std::chrono::steady_clock::time_point latest) { m_thread.leaveBy(latest); }

private:
    struct State;

    CalendarWorker(const std::shared_ptr<State>& state);

    std::shared_ptr<State> m_state; ///< The thread's too.
    LoopThread m_thread;
};

} // namespace quib
