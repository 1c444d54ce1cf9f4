#include "model/totals.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace quib {

namespace {

constexpr double MillisecondsPerSecond = 1000;

std::optional<Client> clientOf(const std::optional<QUuid>& id, const QList<Client>& clients)
{
    const auto found = std::ranges::find(clients, id, &Client::id);
    return found == clients.end() ? std::nullopt : std::optional(*found);
}

/// Finds the group of an entry. Runs of entries for one client are the rule, so the last answer is
/// tried first.
class GroupIndex {
public:
    /// The row of the client's group, or `next` when it has none so far.
    std::size_t rowOf(const std::optional<QUuid>& clientID, std::size_t next)
    {
        if (m_hasLast && clientID == m_lastID) {
            return m_lastRow;
        }
        m_hasLast = true;
        m_lastID = clientID;
        m_lastRow = find(clientID, next);
        return m_lastRow;
    }

private:
    std::size_t find(const std::optional<QUuid>& clientID, std::size_t next)
    {
        auto& row = clientID ? m_rows[*clientID] : m_unassigned;
        row = row.value_or(next);
        return *row;
    }

    bool m_hasLast = false;
    std::optional<QUuid> m_lastID;
    std::size_t m_lastRow = 0;
    std::optional<std::size_t> m_unassigned;
    QHash<QUuid, std::optional<std::size_t>> m_rows;
};

} // namespace

Tally::Tally(const QList<TimeEntry>& entries, const QDateTime& since)
    : m_since(since)
{
    const auto from = since.toMSecsSinceEpoch();
    GroupIndex index;
    for (const auto& entry : entries) {
        const auto end = entry.end ? entry.end->toMSecsSinceEpoch() : from;
        if (end < from) {
            continue;
        }
        const auto row = index.rowOf(entry.clientID, m_groups.size());
        if (row == m_groups.size()) {
            m_groups.push_back({.clientID = entry.clientID});
        }
        auto& group = m_groups[row];
        const auto start = std::max(entry.start.toMSecsSinceEpoch(), from);
        if (entry.end) {
            group.finished += end - start;
            group.hasFinished = true;
        } else {
            group.running.push_back(start);
        }
    }
}

std::optional<qint64> Tally::sumOf(const Group& group, const QDateTime& now) const
{
    const bool hasRunning = now >= m_since && !group.running.empty();
    if (!group.hasFinished && !hasRunning) {
        return {};
    }
    auto sum = group.finished;
    if (hasRunning) {
        const auto moment = now.toMSecsSinceEpoch();
        for (const auto start : group.running) {
            sum += moment - start;
        }
    }
    return sum;
}

QList<ClientTotal> Tally::totals(const QList<Client>& clients, const QDateTime& now) const
{
    using Sum = std::pair<qint64, const Group*>;
    std::vector<Sum> sums;
    for (const auto& group : m_groups) {
        if (const auto sum = sumOf(group, now)) {
            sums.emplace_back(*sum, &group);
        }
    }
    std::ranges::stable_sort(sums, std::ranges::greater(), &Sum::first);

    QList<ClientTotal> totals;
    totals.reserve(std::ssize(sums));
    for (const auto& [sum, group] : sums) {
        totals.append({.client = clientOf(group->clientID, clients),
                       .seconds = static_cast<double>(sum) / MillisecondsPerSecond});
    }
    return totals;
}

QList<TimeEntry> entriesSince(const QList<TimeEntry>& entries, const QDateTime& since,
                              const QDateTime& now)
{
    QList<TimeEntry> found;
    std::ranges::copy_if(entries, std::back_inserter(found),
                         [&](const TimeEntry& entry) { return entry.end.value_or(now) >= since; });
    return found;
}

QList<ClientTotal> totals(const QList<TimeEntry>& entries, const QList<Client>& clients,
                          const QDateTime& since, const QDateTime& now)
{
    return Tally(entries, since).totals(clients, now);
}

} // namespace quib
