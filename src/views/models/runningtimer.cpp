#include "views/models/runningtimer.h"

#include "views/core/followsource.h"

namespace quib {

void RunningTimer::setStore(Store* store)
{
    if (followSource(m_store, store, this, &RunningTimer::follow,
                     {&Store::entriesChanged, &Store::clientsChanged})) {
        Q_EMIT storeChanged();
    }
}

void RunningTimer::setPlaceholder(const QString& placeholder)
{
    if (m_placeholder == placeholder) {
        return;
    }
    m_placeholder = placeholder;
    follow();
    Q_EMIT placeholderChanged();
}

void RunningTimer::follow()
{
    auto shown = wanted();
    if (m_shown == shown) {
        return;
    }
    m_shown = std::move(shown);
    Q_EMIT changed();
}

RunningTimer::Shown RunningTimer::wanted() const
{
    // The first question first: runningEntry() waits for the file, before which this is made.
    const bool isRunning = m_store && m_store->hasRunningEntry();
    const auto entry = isRunning ? m_store->runningEntry() : std::nullopt;
    if (!entry) {
        return {};
    }
    const auto client = m_store->client(entry->clientID);
    return {.isRunning = true,
            .since = entry->start,
            .clientName = client ? client->name : m_placeholder,
            .note = entry->note};
}

} // namespace quib
