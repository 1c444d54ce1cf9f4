#pragma once

#include "platform/linux/calendar/eds/loopthread.h"
#include "platform/linux/calendar/edscalendars.h"

namespace quib {

/// A thread on which the calendars are listed, and asked each on its own.
class EdsThread final : public EdsCalendars {
public:
    explicit EdsThread(std::function<void()> changed);
    ~EdsThread() override;
    EdsThread(const EdsThread&) = delete;
    EdsThread& operator=(const EdsThread&) = delete;

    void read(const QDateTime& from, const QDateTime& to, Answer answer) override;
    void leave() override;

private:
    class Shared;

    std::shared_ptr<Shared> m_shared; ///< The thread's too, for as long as it may run.
    std::shared_ptr<LoopThread> m_thread;
};

} // namespace quib
