#include "model/billing/totals.h"

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

} // namespace

Tally::Tally(const QList<TimeEntry>& entries, const QDateTime& since)
    : m_since(since)
{
    const auto from = since.toMSecsSinceEpoch();
    QHash<QUuid, std::optional<std::size_t>> rows;
    std::optional<std::size_t> unassigned;
    for (const auto& entry : entries) {
        const auto end = entry.end ? entry.end->toMSecsSinceEpoch() : from;
        if (end < from) {
            continue;
        }
        auto& row = entry.clientID ? rows[*entry.clientID] : unassigned;
        if (!row) {
            row = m_groups.size();
            m_groups.push_back({.clientID = entry.clientID});
        }
        auto& group = m_groups[*row];
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

} // namespace quib
