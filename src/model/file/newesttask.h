#pragma once

#include <functional>
#include <mutex>
#include <thread>

namespace quib {

/// Runs one task after another on a thread of its own, which is there while there is a task; of
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
    void runAll();
    std::function<void()> take(); ///< Empty when the thread is to end.
    void join();

    std::function<void()> m_enterThread;
    std::mutex m_mutex; ///< Of the next two.
    std::function<void()> m_waiting;
    bool m_isRunning = false;
    std::thread m_thread;
};

} // namespace quib
