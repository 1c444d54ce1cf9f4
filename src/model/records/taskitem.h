#pragma once

#include <QDateTime>
#include <QString>
#include <QUuid>

#include <optional>

namespace quib {

/// One thing to do.
struct TaskItem {
    QUuid id;
    QString title;
    std::optional<QUuid> clientID; ///< Absent for a general task. The client may be gone.
    bool done = false;
    QDateTime created;

    bool operator==(const TaskItem&) const = default;
};

} // namespace quib
