#include "views/models/opentasklistmodel.h"

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

OpenTaskListModel::OpenTaskListModel(QObject* parent)
    : StoreListModel({&Store::tasksChanged}, parent)
{
    setRoles(m_tasks, {{"taskID", &TaskItem::id}, {"title", &TaskItem::title}});
}

void OpenTaskListModel::follow()
{
    show(m_tasks, store() ? firstOpenTasks(store()->data().tasks) : QList<TaskItem>(),
         &TaskItem::id);
}

} // namespace quib
