#include "platform/linux/calendar/eds/edsthread.h"

#include "platform/linux/base/gowned.h"
#include "platform/linux/calendar/eds/calendarreader.h"

#include <chrono>
#include <future>
#include <mutex>
#include <utility>

namespace quib {

namespace {

using namespace std::chrono_literals;

/// What expands many recurring events hears of its end later than others.
constexpr auto LongestGoodbye = 1s;

struct GContextReleased {
    void operator()(GMainContext* context) const { g_main_context_unref(context); }
};

struct GLoopReleased {
    void operator()(GMainLoop* loop) const { g_main_loop_unref(loop); }
};

} // namespace

class EdsThread::Loop {
public:
    explicit Loop(std::function<void()> changed)
        : m_changed(std::move(changed))
    {
    }

    /// The thread itself.
    void run()
    {
        g_main_context_push_thread_default(m_context.get());
        m_reader.emplace(m_cancellable.get(), [this] { tell(m_changed); });
        g_main_loop_run(m_loop.get());
        m_reader.reset();
        while (g_main_context_iteration(m_context.get(), FALSE)) { }
        g_main_context_pop_thread_default(m_context.get());
        m_ended.set_value();
    }

    void read(const Span& span, const Answer& answer)
    {
        post([this, span, answer] {
            const auto entries = m_reader->read(span);
            tell([&answer, &entries] { answer(entries); });
        });
    }

    /// From now on nobody is told anything.
    void end()
    {
        {
            const std::lock_guard lock(m_telling);
            m_hasEnded = true;
        }
        g_cancellable_cancel(m_cancellable.get());
        post([this] { g_main_loop_quit(m_loop.get()); });
    }

    /// Waits for a moment.
    bool hasEnded()
    {
        return m_ended.get_future().wait_for(LongestGoodbye) == std::future_status::ready;
    }

private:
    using Work = std::function<void()>;

    void post(Work work)
    {
        auto* source = g_idle_source_new();
        g_source_set_priority(source, G_PRIORITY_DEFAULT);
        g_source_set_callback(
            source,
            [](gpointer data) -> gboolean {
                (*static_cast<Work*>(data))();
                return G_SOURCE_REMOVE;
            },
            std::make_unique<Work>(std::move(work)).release(),
            [](gpointer data) { const std::unique_ptr<Work> released(static_cast<Work*>(data)); });
        g_source_attach(source, m_context.get());
        g_source_unref(source);
    }

    void tell(const Work& news)
    {
        const std::lock_guard lock(m_telling);
        if (!m_hasEnded) {
            news();
        }
    }

    Work m_changed;
    std::unique_ptr<GMainContext, GContextReleased> m_context{g_main_context_new()};
    std::unique_ptr<GMainLoop, GLoopReleased> m_loop{g_main_loop_new(m_context.get(), FALSE)};
    GOwned<GCancellable> m_cancellable{g_cancellable_new()};
    std::optional<CalendarReader> m_reader; ///< Of the thread alone.
    std::mutex m_telling;
    bool m_hasEnded = false;
    std::promise<void> m_ended;
};

EdsThread::EdsThread(std::function<void()> changed)
    : m_loop(std::make_shared<Loop>(std::move(changed)))
    , m_thread([loop = m_loop] { loop->run(); })
{
}

EdsThread::~EdsThread()
{
    if (!m_thread.joinable()) {
        return;
    }
    m_loop->end();
    if (m_loop->hasEnded()) {
        m_thread.join();
    } else {
        m_thread.detach();
    }
}

void EdsThread::read(const QDateTime& from, const QDateTime& to, Answer answer)
{
    m_loop->read({.from = from, .to = to}, answer);
}

void EdsThread::leave()
{
    m_loop->end();
    m_thread.detach();
}

} // namespace quib
