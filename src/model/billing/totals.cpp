#include "model/billing/totals.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace quib {

namespace {

constexpr double MillisecondsPerSecond = 1000;

using Bits = std::array<quint64, 2>;

/// An id as two numbers, which compare faster than its eleven fields.
Bits bitsOf(const QUuid& id)
{
    return std::bit_cast<Bits>(id);
}

std::optional<Client> clientOf(const std::optional<QUuid>& id, const QList<Client>& clients)
{
    const auto found = std::ranges::find(clients, id, &Client::id);
    return found == clients.end() ? std::nullopt : std::optional(*found);
}

/// Finds the group of an entry. Nearly every answer comes from a small table of recent ones, at a
/// fraction of what a hash costs; ids are random, so a part of one says where to look.
class GroupIndex {
public:
    /// The row of the client's group, or `next` when it has none so far.
    std::size_t rowOf(const std::optional<QUuid>& clientID, std::size_t next)
    {
        if (!clientID) {
            m_unassigned = m_unassigned.value_or(next);
            return *m_unassigned;
        }
        auto& recent = m_recent[clientID->data1 % m_recent.size()];
        if (!recent.row || recent.id != bitsOf(*clientID)) {
            auto& row = m_rows[*clientID];
            row = row.value_or(next);
            recent = {bitsOf(*clientID), row};
        }
        return *recent.row;
    }

private:
    struct Recent {
        Bits id;
        std::optional<std::size_t> row;
    };

    std::optional<std::size_t> m_unassigned;
    std::array<Recent, 256> m_recent;
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
