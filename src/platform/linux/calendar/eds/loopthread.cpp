#include "platform/linux/calendar/eds/loopthread.h"

#include <deque>
#include <future>
#include <mutex>
#include <utility>

namespace quib {

namespace {

struct GContextReleased {
    void operator()(GMainContext* context) const { g_main_context_unref(context); }
};

struct GLoopReleased {
    void operator()(GMainLoop* loop) const { g_main_loop_unref(loop); }
};

} // namespace

class LoopThread::Loop {
public:
    explicit Loop(Work atTheEnd)
        : m_atTheEnd(std::move(atTheEnd))
    {
    }

    /// The thread itself.
    void run()
    {
        g_main_context_push_thread_default(m_context.get());
        g_main_loop_run(m_loop.get());
        m_isOver = true;
        std::exchange(m_atTheEnd, nullptr)();
        while (g_main_context_iteration(m_context.get(), FALSE)) { }
        g_main_context_pop_thread_default(m_context.get());
        m_ended.set_value();
    }

    /// GLib's loop only wakes: what passes between the threads does so under a lock of ours.
    void post(Work work)
    {
        {
            const std::lock_guard lock(m_posting);
            m_posted.push_back(std::move(work));
        }
        auto* source = g_idle_source_new();
        g_source_set_priority(source, G_PRIORITY_DEFAULT);
        g_source_set_callback(source, doNext, this, nullptr);
        g_source_attach(source, m_context.get());
        g_source_unref(source);
    }

    void end()
    {
        post([this] { g_main_loop_quit(m_loop.get()); });
    }

    bool hasEndedBy(std::chrono::steady_clock::time_point latest)
    {
        return m_hasEnded.wait_until(latest) == std::future_status::ready;
    }

private:
    static gboolean doNext(gpointer loop)
    {
        auto* self = static_cast<Loop*>(loop);
        const auto work = self->takeNext();
        if (!self->m_isOver) {
            work();
        }
        return G_SOURCE_REMOVE;
    }

    Work takeNext()
    {
        const std::lock_guard lock(m_posting);
        auto work = std::move(m_posted.front());
        m_posted.pop_front();
        return work;
    }

    Work m_atTheEnd;
    bool m_isOver = false; ///< Of the thread alone.
    std::mutex m_posting;
    std::deque<Work> m_posted; ///< As many as there are sources that wake for them.
    std::unique_ptr<GMainContext, GContextReleased> m_context{g_main_context_new()};
    std::unique_ptr<GMainLoop, GLoopReleased> m_loop{g_main_loop_new(m_context.get(), FALSE)};
    std::promise<void> m_ended;
    std::future<void> m_hasEnded = m_ended.get_future();
};

LoopThread::LoopThread(Work atTheEnd)
    : m_loop(std::make_shared<Loop>(std::move(atTheEnd)))
    , m_thread([loop = m_loop] { loop->run(); })
{
}

LoopThread::~LoopThread()
{
    leave();
}

void LoopThread::post(Work work) const
{
    m_loop->post(std::move(work));
}

void LoopThread::end() const
{
    m_loop->end();
}

void LoopThread::leave()
{
    if (m_thread.joinable()) {
        end();
        m_thread.detach();
    }
}

void LoopThread::leaveBy(std::chrono::steady_clock::time_point latest)
{
    end();
    if (m_thread.joinable() && m_loop->hasEndedBy(latest)) {
        m_thread.join();
    }
    leave();
}

} // namespace quib
