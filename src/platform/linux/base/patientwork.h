#pragma once

#include <QList>
#include <QObject>
#include <QSet>

#include <chrono>
#include <functional>
#include <memory>

namespace quib {

/// Work that may hang for ever, as on a dead disk. Each job has a thread of its own that is never
/// joined: one that hangs is given up after a while, and goes down with the program. So it holds up
/// neither other work nor the end. To be used on the main thread.
class PatientWork final : public QObject {
    Q_OBJECT

public:
    enum class Arrival { InTime, Late };
    enum class GivenUp { Hung, NotTried };

    struct Limits {
        std::chrono::milliseconds patience; ///< Who takes longer has most likely hung.
        qsizetype atOnce = 2;
        qsizetype hung = 8; ///< With so many nothing more is tried.
    };

    struct Job {
        /// On a thread of its own. What it returns is called on the main thread.
        std::function<std::function<void(Arrival)>()> work;
        /// On the main thread, instead of an arrival in time. Only what hung may still arrive.
        std::function<void(GivenUp)> giveUp;
    };

    explicit PatientWork(const Limits& limits);
    /// Nothing arrives any more.
    ~PatientWork() override;

    /// Begins later, in the order of the calls.
    void add(Job job);

protected:
    /// Threads have posted what they found.
    void customEvent(QEvent* event) override;

private:
    class Letterbox;

    void begin();
    void start(const Job& job);
    void arrive(int number, const std::function<void(Arrival)>& take);
    void giveUp(int number, const Job& job);

    Limits m_limits;
    std::shared_ptr<Letterbox> m_letterbox;
    QList<Job> m_queue;
    int m_number = 0; ///< Of the last thread.
    QSet<int> m_running;
    QSet<int> m_hung;
};

} // namespace quib
