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
    join();
}

void NewestTask::start(std::function<void()> task)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_waiting.swap(task); // What waited goes when the lock has.
        if (std::exchange(m_isRunning, true)) {
            return;
        }
    }
    join(); // The last thread has nothing more to do.
    try {
        m_thread = std::thread([this] {
            m_enterThread();
            runAll();
        });
    } catch (const std::system_error&) {
        runAll();
    }
}

void NewestTask::finish()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_waiting = nullptr;
    }
    join();
}

void NewestTask::runAll()
{
    while (const auto task = take()) {
        task();
    }
}

std::function<void()> NewestTask::take()
{
    const std::scoped_lock lock(m_mutex);
    m_isRunning = m_waiting != nullptr;
    return std::exchange(m_waiting, nullptr);
}

void NewestTask::join()
{
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

} // namespace quib
