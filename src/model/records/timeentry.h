#pragma once

#include <QDateTime>
#include <QString>
#include <QUuid>

#include <optional>

namespace quib {

/// A stretch of work. While `end` is absent, its timer runs.
struct TimeEntry {
    QUuid id;
    std::optional<QUuid> clientID; ///< Absent for unassigned time. The client may be gone.
    QDateTime start;
    std::optional<QDateTime> end;
    QString note;

    bool operator==(const TimeEntry&) const = default;
};

} // namespace quib

/// A list of them grows without each being taken along.
Q_DECLARE_TYPEINFO(quib::TimeEntry, Q_RELOCATABLE_TYPE);
