#include "platform/linux/calendar/eds/edsthread.h"

#include "platform/linux/base/gowned.h"
#include "platform/linux/calendar/eds/calendarreader.h"

#include <mutex>
#include <utility>

namespace quib {

namespace {

using namespace std::chrono_literals;

/// What expands many recurring events hears of its end later than others.
constexpr auto LongestGoodbye = 1s;

} // namespace

/// What both sides know: the thread may outlive the other one.
class EdsThread::Shared {
public:
    explicit Shared(std::function<void()> changed)
        : m_changed(std::move(changed))
    {
    }

    /// On the thread, as the next two.
    void begin(CalendarReader::Post post)
    {
        m_reader.emplace(std::move(post), m_cancellable.get(), [this] { tell(m_changed); });
    }

    void read(const Span& span, const Answer& answer)
    {
        m_reader->read(span, [this, answer](const QList<CalendarEntry>& entries) {
            tell([&answer, &entries] { answer(entries); });
        });
    }

    void close() { m_reader.reset(); }

    /// From now on nobody is told anything.
    void end()
    {
        {
            const std::lock_guard lock(m_telling);
            m_hasEnded = true;
        }
        g_cancellable_cancel(m_cancellable.get());
    }

private:
    void tell(const std::function<void()>& news)
    {
        const std::lock_guard lock(m_telling);
        if (!m_hasEnded) {
            news();
        }
    }

    std::function<void()> m_changed;
    GOwned<GCancellable> m_cancellable{g_cancellable_new()};
    std::optional<CalendarReader> m_reader; ///< Of the thread alone.
    std::mutex m_telling;
    bool m_hasEnded = false;
};

EdsThread::EdsThread(std::function<void()> changed)
    : m_shared(std::make_shared<Shared>(std::move(changed)))
    , m_thread(std::make_shared<LoopThread>([shared = m_shared] { shared->close(); }))
{
    const auto post = [thread = std::weak_ptr(m_thread)](LoopThread::Work work) {
        if (const auto here = thread.lock()) {
            here->post(std::move(work));
        }
    };
    m_thread->post([shared = m_shared, post] { shared->begin(post); });
}

EdsThread::~EdsThread()
{
    m_shared->end();
    m_thread->leaveBy(std::chrono::steady_clock::now() + LongestGoodbye);
}

void EdsThread::read(const QDateTime& from, const QDateTime& to, Answer answer)
{
    m_thread->post([shared = m_shared, span = Span{.from = from, .to = to},
                    answer = std::move(answer)] { shared->read(span, answer); });
}

void EdsThread::leave()
{
    m_shared->end();
    m_thread->leave();
}

} // namespace quib
