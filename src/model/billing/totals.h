#pragma once

#include "model/records/client.h"
#include "model/records/timeentry.h"

#include <QList>

#include <vector>

namespace quib {

/// The time worked for one client.
struct ClientTotal {
    std::optional<Client> client; ///< Absent for unassigned time, and where the client is gone.
    double seconds = 0;

    bool operator==(const ClientTotal&) const = default;
};

/// The time worked per client since a moment. Made once per change of the entries; asked at every
/// tick, when only running timers make a difference.
class Tally {
public:
    Tally(const QList<TimeEntry>& entries, const QDateTime& since);

    const QDateTime& since() const { return m_since; }

    /// Most time first. Unassigned time is a group of its own, and so is each deleted client's.
    QList<ClientTotal> totals(const QList<Client>& clients, const QDateTime& now) const;

private:
    struct Group {
        std::optional<QUuid> clientID;
        qint64 finished = 0; ///< Milliseconds.
        bool hasFinished = false;
        std::vector<qint64> running; ///< When each running timer counts from.
    };

    /// Milliseconds; absent when no entry of the group counts.
    std::optional<qint64> sumOf(const Group& group, const QDateTime& now) const;

    QDateTime m_since;
    std::vector<Group> m_groups; ///< In the order in which the entries name them.
};

} // namespace quib
