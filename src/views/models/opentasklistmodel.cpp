#include "views/models/opentasklistmodel.h"

#include "views/core/followsource.h"

namespace quib {

namespace {

constexpr qsizetype MostTasks = 3;

} // namespace

QList<TaskItem> firstOpenTasks(const QList<TaskItem>& tasks)
{
    QList<TaskItem> open;
    for (const auto& task : tasks) {
        if (open.size() == MostTasks) {
            break;
        }
        if (!task.done) {
            open.append(task);
        }
    }
    return open;
}

void OpenTaskListModel::setStore(Store* store)
{
    if (followSource(m_store, store, this, &OpenTaskListModel::follow, &Store::tasksChanged)) {
        Q_EMIT storeChanged();
    }
}

int OpenTaskListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tasks.size());
}

QVariant OpenTaskListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto& task = m_tasks.at(index.row());
    switch (role) {
    case IdRole: return task.id;
    case TitleRole: return task.title;
    }
    return {};
}

QHash<int, QByteArray> OpenTaskListModel::roleNames() const
{
    return {{IdRole, "taskID"}, {TitleRole, "title"}};
}

void OpenTaskListModel::follow()
{
    show(m_tasks, m_store ? firstOpenTasks(m_store->data().tasks) : QList<TaskItem>());
}

} // namespace quib
