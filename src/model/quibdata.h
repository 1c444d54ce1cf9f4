#pragma once

#include "model/client.h"
#include "model/launchitem.h"
#include "model/shelfitem.h"
#include "model/taskitem.h"
#include "model/timeentry.h"

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
