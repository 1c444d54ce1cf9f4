#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace quib {

/// Runs one task after another on a thread of its own, which is there from the first of them; of
/// those that wait only the newest is kept. Belongs to one thread.
class NewestTask {
public:
    /// The thread does this first.
    explicit NewestTask(std::function<void()> enterThread);
    /// Waits for all that was started.
    ~NewestTask();
    NewestTask(const NewestTask&) = delete;
    NewestTask& operator=(const NewestTask&) = delete;

    /// The task throws nothing. Where the system has no thread to give, it is done before this
    /// returns.
    void start(std::function<void()> task);
    /// Waits for the task in progress; one that waits for it never starts.
    void finish();

private:
    void run();
    void runNext(std::unique_lock<std::mutex>& lock); ///< Locked again when it has run.

    std::function<void()> m_enterThread;
    std::mutex m_mutex; ///< Of the next three.
    std::function<void()> m_waiting;
    bool m_isRunning = false;
    bool m_isEnding = false;
    std::condition_variable m_changed; ///< One of them.
    std::thread m_thread;
};

} // namespace quib
