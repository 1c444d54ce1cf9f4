#pragma once

#include <gio/gio.h>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace quib {

/// A thread with a loop of GLib's own, on which what is posted runs in order. What hangs there is
/// left to itself: the thread then ends when it comes back, or with the process.
class LoopThread {
public:
    using Work = std::function<void()>;

    /// Throws std::system_error where there is no room for a thread. The last work runs there after
    /// all other.
    explicit LoopThread(Work atTheEnd);
    /// As leave().
    ~LoopThread();
    LoopThread(const LoopThread&) = delete;
    LoopThread& operator=(const LoopThread&) = delete;

    /// From any thread. What is posted after the end is let go of without having run.
    void post(Work work) const;
    /// Lets the loop end once it is back from what it does. From any thread.
    void end() const;
    /// Ends it without waiting; again, after the end, it does nothing.
    void leave();
    /// Waits until it has ended, but no longer than that, and leaves it then.
    void leaveBy(std::chrono::steady_clock::time_point latest);

private:
    class Loop;

    std::shared_ptr<Loop> m_loop; ///< The thread's too, for as long as it may run.
    std::thread m_thread;
};

} // namespace quib
