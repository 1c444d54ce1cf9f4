#include "platform/linux/base/patientwork.h"

#include "platform/linux/base/startdetached.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <condition_variable>
#include <mutex>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto LongestFarewell = 200ms;

} // namespace

/// How a thread reaches the main one for as long as there is somebody.
class PatientWork::Letterbox {
public:
    explicit Letterbox(PatientWork& owner)
        : m_owner(&owner)
    {
    }

    void expect()
    {
        const std::scoped_lock lock(m_mutex);
        ++m_expected;
    }

    void post(std::function<void()> letter)
    {
        const std::scoped_lock lock(m_mutex);
        --m_expected;
        m_letters.push_back(std::move(letter));
        if (m_owner) {
            QCoreApplication::postEvent(m_owner, new QEvent(QEvent::User)); // Which Qt takes.
        }
        m_posted.notify_all();
    }

    std::vector<std::function<void()>> take()
    {
        const std::scoped_lock lock(m_mutex);
        return std::exchange(m_letters, {});
    }

    /// Lets those that are about to end do so: the program may be ending around them.
    void close(qsizetype hung)
    {
        std::unique_lock lock(m_mutex);
        m_owner = nullptr;
        m_posted.wait_for(lock, LongestFarewell, [&] { return m_expected <= hung; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_posted;
    PatientWork* m_owner;
    std::vector<std::function<void()>> m_letters;
    qsizetype m_expected = 0;
};

PatientWork::PatientWork(const Limits& limits)
    : m_limits(limits)
    , m_letterbox(std::make_shared<Letterbox>(*this))
{
}

PatientWork::~PatientWork()
{
    m_letterbox->close(m_hung.size());
}

void PatientWork::add(Job job)
{
    m_queue.append(std::move(job));
    QMetaObject::invokeMethod(this, &PatientWork::begin, Qt::QueuedConnection);
}

void PatientWork::customEvent(QEvent* /*event*/)
{
    for (const auto& letter : m_letterbox->take()) {
        letter();
    }
}

void PatientWork::begin()
{
    while (!m_queue.isEmpty() && m_running.size() < m_limits.atOnce) {
        const auto job = m_queue.takeFirst();
        if (m_hung.size() < m_limits.hung) {
            start(job);
        } else {
            job.giveUp(GivenUp::NotTried);
        }
    }
}

void PatientWork::start(const Job& job)
{
    const int number = ++m_number;
    const auto done = startDetached([this, letterbox = m_letterbox, number, work = job.work] {
        letterbox->post([this, number, take = work()] { arrive(number, take); });
    });
    if (!done.valid()) {
        job.giveUp(GivenUp::NotTried);
        return;
    }
    m_running.insert(number);
    m_letterbox->expect();
    QTimer::singleShot(m_limits.patience, this, [this, number, job] { giveUp(number, job); });
}

void PatientWork::arrive(int number, const std::function<void(Arrival)>& take)
{
    m_hung.remove(number);
    take(m_running.remove(number) ? Arrival::InTime : Arrival::Late);
    begin();
}

void PatientWork::giveUp(int number, const Job& job)
{
    if (m_running.remove(number)) {
        m_hung.insert(number);
        job.giveUp(GivenUp::Hung);
        begin();
    }
}

} // namespace quib
