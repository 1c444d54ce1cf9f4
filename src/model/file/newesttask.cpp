#include "model/file/newesttask.h"

#include <system_error>
#include <utility>

namespace quib {

NewestTask::NewestTask(std::function<void()> enterThread)
    : m_enterThread(std::move(enterThread))
{
}

NewestTask::~NewestTask()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void NewestTask::start(std::function<void()> task)
{
    std::unique_lock lock(m_mutex);
    m_waiting.swap(task); // What waited goes when the lock has.
    if (m_thread.joinable()) {
        m_changed.notify_all();
        return;
    }
    try {
        m_thread = std::thread(&NewestTask::run, this);
    } catch (const std::system_error&) {
        runNext(lock);
    }
}

void NewestTask::finish()
{
    std::unique_lock lock(m_mutex);
    m_waiting = nullptr;
    m_changed.wait(lock, [this] { return !m_isRunning; });
}

void NewestTask::run()
{
    m_enterThread();
    std::unique_lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_waiting || m_isEnding; });
        if (!m_waiting) {
            return;
        }
        runNext(lock);
    }
}

void NewestTask::runNext(std::unique_lock<std::mutex>& lock)
{
    auto task = std::exchange(m_waiting, nullptr);
    m_isRunning = true;
    lock.unlock();
    task();
    task = nullptr; // Lets go of all it has, which may be much.
    lock.lock();
    m_isRunning = false;
    m_changed.notify_all();
}

} // namespace quib
