#pragma once

#include "model/time/clock.h"
#include "model/time/scheduler.h"
#include "model/time/utc.h"

#include <QPointer>

#include <algorithm>
#include <utility>
#include <vector>

/// Time that a test turns by hand: a clock, and a scheduler whose work falls due in advance().
class HandClock {
public:
    QDateTime now{QDate(2026, 3, 2), QTime(9, 0), quib::Utc}; ///< A Monday.
    int scheduled = 0; ///< How often work was put in, cancelled work too.
    int ran = 0; ///< How often work was run.

    quib::Clock clock()
    {
        return [this] { return now; };
    }

    quib::Scheduler scheduler()
    {
        return [this](std::chrono::milliseconds delay, std::function<void()> work) {
            auto handle = std::make_unique<QObject>();
            m_waiting.push_back({now.addMSecs(delay.count()), handle.get(), std::move(work)});
            ++scheduled;
            return handle;
        };
    }

    /// Runs what falls due on the way, in order, each piece at its own moment.
    void advance(std::chrono::milliseconds time)
    {
        const auto end = now.addMSecs(time.count());
        while (auto next = takeNext(end)) {
            now = std::max(now, next->due);
            ++ran;
            next->run();
        }
        now = end;
    }

    /// How much work would still run.
    qsizetype waiting()
    {
        forgetCancelled();
        return std::ssize(m_waiting);
    }

private:
    struct Work {
        QDateTime due;
        QPointer<QObject> handle; ///< Null once the work was cancelled.
        std::function<void()> run;
    };

    void forgetCancelled()
    {
        std::erase_if(m_waiting, [](const Work& work) { return work.handle.isNull(); });
    }

    std::optional<Work> takeNext(const QDateTime& end)
    {
        forgetCancelled();
        const auto next = std::ranges::min_element(m_waiting, {}, &Work::due);
        if (next == m_waiting.end() || next->due > end) {
            return {};
        }
        auto work = std::move(*next);
        m_waiting.erase(next);
        return work;
    }

    std::vector<Work> m_waiting;
};
