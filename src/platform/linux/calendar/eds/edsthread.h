#pragma once

#include "platform/linux/calendar/edscalendars.h"

#include <thread>

namespace quib {

/// A thread with a loop of GLib's own, on which the calendars are read and watched.
class EdsThread final : public EdsCalendars {
public:
    explicit EdsThread(std::function<void()> changed);
    ~EdsThread() override;
    EdsThread(const EdsThread&) = delete;
    EdsThread& operator=(const EdsThread&) = delete;

    void read(const QDateTime& from, const QDateTime& to, Answer answer) override;
    void leave() override;

private:
    class Loop;

    std::shared_ptr<Loop> m_loop; ///< The thread's too, for as long as it may run.
    std::thread m_thread;
};

} // namespace quib
