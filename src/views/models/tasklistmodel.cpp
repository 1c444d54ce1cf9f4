#include "views/models/tasklistmodel.h"

#include <QHash>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace quib {

QList<TaskItem> visibleTasks(const QList<TaskItem>& tasks, const std::optional<QUuid>& filter)
{
    QList<TaskItem> visible;
    std::ranges::copy_if(tasks, std::back_inserter(visible),
                         [&](const TaskItem& task) { return !filter || task.clientID == filter; });
    std::stable_partition(visible.begin(), visible.end(),
                          [](const TaskItem& task) { return !task.done; });
    return visible;
}

TaskListModel::TaskListModel(QObject* parent)
    : StoreListModel({&Store::clientsChanged, &Store::tasksChanged}, parent)
{
    setRoles(m_tasks,
             {{"taskID", &TaskRecord::id},
              {"title", &TaskRecord::title},
              {"done", &TaskRecord::done},
              {"clientName", &TaskRecord::clientName},
              {"clientStatus", &TaskRecord::clientStatus}});
}

void TaskListModel::setFilter(const QUuid& filter)
{
    if (m_filter == filter) {
        return;
    }
    m_filter = filter;
    follow();
    Q_EMIT filterChanged();
}

int TaskListModel::newestRow() const
{
    const auto tasks = store() ? store()->data().tasks : QList<TaskItem>();
    const auto found = tasks.isEmpty()
        ? m_tasks.end()
        : std::ranges::find(m_tasks, tasks.front().id, &TaskRecord::id);
    return found == m_tasks.end() ? -1 : static_cast<int>(found - m_tasks.begin());
}

void TaskListModel::follow()
{
    show(m_tasks, wanted(), &TaskRecord::id);
    countDone();
}

void TaskListModel::countDone()
{
    const auto done = store() ? std::ranges::count_if(store()->data().tasks, &TaskItem::done) : 0;
    const auto title = done > 0 ? u"Clear %1 done"_s.arg(done) : QString();
    if (m_clearDoneTitle != title) {
        m_clearDoneTitle = title;
        Q_EMIT clearDoneTitleChanged();
    }
}

QList<TaskRecord> TaskListModel::wanted() const
{
    if (!store()) {
        return {};
    }
    QHash<QUuid, const Client*> clients;
    for (const auto& client : store()->data().clients) {
        if (!clients.contains(client.id)) { // Of clients with one id the first counts.
            clients.insert(client.id, &client);
        }
    }
    QList<TaskRecord> records;
    for (const auto& task : visibleTasks(store()->data().tasks, clientOrNone(m_filter))) {
        const auto* client = task.clientID ? clients.value(*task.clientID) : nullptr;
        records.append({.id = task.id,
                        .title = task.title,
                        .done = task.done,
                        .clientName = client ? client->name : QString(),
                        .clientStatus = client ? rawText(client->status) : QString()});
    }
    return records;
}

} // namespace quib
