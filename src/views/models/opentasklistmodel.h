#pragma once

#include "views/models/storelistmodel.h"

#include <qqmlintegration.h>

namespace quib {

/// The first of the tasks that are not done, in stored order; at most three.
QList<TaskItem> firstOpenTasks(const QList<TaskItem>& tasks);

/// The first open tasks of a store as rows.
class OpenTaskListModel : public quib::StoreListModel {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit OpenTaskListModel(QObject* parent = nullptr);

private:
    void follow() override;

    QList<TaskItem> m_tasks;
};

} // namespace quib
