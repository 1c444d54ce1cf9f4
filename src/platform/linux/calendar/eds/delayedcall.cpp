#include "platform/linux/calendar/eds/delayedcall.h"

#include <utility>

namespace quib {

void DelayedCall::start(std::chrono::milliseconds delay, std::function<void()> call)
{
    m_call = std::move(call);
    m_source.reset(g_timeout_source_new(static_cast<guint>(delay.count())));
    g_source_set_callback(m_source.get(), make, this, nullptr);
    g_source_attach(m_source.get(), g_main_context_get_thread_default());
}

gboolean DelayedCall::make(gpointer delayedCall)
{
    auto* self = static_cast<DelayedCall*>(delayedCall);
    self->stop();
    std::exchange(self->m_call, nullptr)();
    return G_SOURCE_REMOVE;
}

} // namespace quib
