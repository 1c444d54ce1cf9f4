#include "platform/linux/calendar/eds/calendarworker.h"

#include <utility>

namespace quib {

struct CalendarWorker::State {
    GOwned<ESource> source;
    Span span;
    CalendarClient::Listener listener;
    GOwned<GCancellable> cancellable{g_cancellable_new()};
    std::unique_ptr<CalendarClient> client{}; ///< Null where it can't be opened.

    std::optional<QList<CalendarEntry>> read()
    {
        if (!client || client->isDead()) {
            client = CalendarClient::connect(source.get(), span, cancellable.get(), listener);
        }
        return client ? client->read() : std::nullopt;
    }
};

CalendarWorker::CalendarWorker(ESource* source, Span span, CalendarClient::Listener listener)
    : CalendarWorker(
        std::make_shared<State>(State{.source = GOwned<ESource>(E_SOURCE(g_object_ref(source))),
                                      .span = std::move(span),
                                      .listener = std::move(listener)}))
{
}

CalendarWorker::CalendarWorker(const std::shared_ptr<State>& state)
    : m_state(state)
    , m_thread([state] { state->client.reset(); })
{
}

CalendarWorker::~CalendarWorker()
{
    end();
}

void CalendarWorker::end() const
{
    g_cancellable_cancel(m_state->cancellable.get());
    m_thread.end();
}

void CalendarWorker::read(Answer answer) const
{
    m_thread.post([state = m_state, answer = std::move(answer)] { answer(state->read()); });
}

} // namespace quib
