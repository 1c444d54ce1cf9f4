#include "platform/linux/calendar/eds/calendarworker.h"

#include <utility>

namespace quib {

struct CalendarWorker::State {
    GOwned<ESource> source;
    Span span;
    GOwned<GCancellable> cancellable;
    CalendarClient::Listener listener;
    std::unique_ptr<CalendarClient> client; ///< Null where it can't be opened.

    std::optional<QList<CalendarEntry>> read()
    {
        if (!client || client->isDead()) {
            client = CalendarClient::connect(source.get(), span, cancellable.get(), listener);
        }
        return client ? client->read() : std::nullopt;
    }
};

CalendarWorker::CalendarWorker(ESource* source, Span span, GCancellable* cancellable,
                               CalendarClient::Listener listener)
    : CalendarWorker(std::make_shared<State>(
        State{.source = GOwned<ESource>(E_SOURCE(g_object_ref(source))),
              .span = std::move(span),
              .cancellable = GOwned<GCancellable>(G_CANCELLABLE(g_object_ref(cancellable))),
              .listener = std::move(listener),
              .client = nullptr}))
{
}

CalendarWorker::CalendarWorker(const std::shared_ptr<State>& state)
    : m_state(state)
    , m_thread([state] { state->client.reset(); })
{
}

void CalendarWorker::read(Answer answer) const
{
    m_thread.post([state = m_state, answer = std::move(answer)] { answer(state->read()); });
}

} // namespace quib
