#pragma once

#include "model/records/client.h"
#include "model/records/launchitem.h"
#include "model/records/shelfitem.h"
#include "model/records/taskitem.h"
#include "model/records/timeentry.h"

#include <QList>

namespace quib {

/// The whole workspace of one user. Copying it is cheap: the lists are shared until one changes.
struct QuibData {
    QList<Client> clients; ///< In display order, newest first.
    QList<TaskItem> tasks; ///< Newest first.
    QList<TimeEntry> entries; ///< Newest first.
    QList<ShelfItem> shelf; ///< Newest first.
    QList<LaunchItem> launch; ///< In the order of the buttons.
    QString notes;

    bool operator==(const QuibData&) const = default;
};

} // namespace quib
