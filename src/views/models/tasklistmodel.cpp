#include "views/models/tasklistmodel.h"

#include "views/core/followsource.h"

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

void TaskListModel::setStore(Store* store)
{
    if (followSource(m_store, store, this, &TaskListModel::follow, &Store::clientsChanged,
                     &Store::tasksChanged)) {
        Q_EMIT storeChanged();
    }
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

int TaskListModel::addTask(const QString& title, const QUuid& client)
{
    if (!m_store) {
        return -1;
    }
    const auto& tasks = m_store->data().tasks;
    const auto before = tasks.size();
    m_store->addTask(title, clientOrNone(client));
    if (tasks.size() == before) {
        return -1;
    }
    const auto row = std::ranges::find(m_tasks, tasks.front().id, &TaskRecord::id);
    return row == m_tasks.end() ? -1 : static_cast<int>(row - m_tasks.begin());
}

int TaskListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tasks.size());
}

QVariant TaskListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto& task = m_tasks.at(index.row());
    switch (role) {
    case IdRole: return task.id;
    case TitleRole: return task.title;
    case DoneRole: return task.done;
    case ClientNameRole: return task.clientName;
    case ClientStatusRole: return task.clientStatus;
    }
    return {};
}

QHash<int, QByteArray> TaskListModel::roleNames() const
{
    return {{IdRole, "taskID"},
            {TitleRole, "title"},
            {DoneRole, "done"},
            {ClientNameRole, "clientName"},
            {ClientStatusRole, "clientStatus"}};
}

void TaskListModel::follow()
{
    show(m_tasks, wanted());
    countDone();
}

void TaskListModel::countDone()
{
    const auto done = m_store ? std::ranges::count_if(m_store->data().tasks, &TaskItem::done) : 0;
    const auto title = done > 0 ? u"Clear %1 done"_s.arg(done) : QString();
    if (m_clearDoneTitle != title) {
        m_clearDoneTitle = title;
        Q_EMIT clearDoneTitleChanged();
    }
}

QList<TaskRecord> TaskListModel::wanted() const
{
    if (!m_store) {
        return {};
    }
    QHash<QUuid, const Client*> clients;
    for (const auto& client : m_store->data().clients) {
        if (!clients.contains(client.id)) { // Of clients with one id the first counts.
            clients.insert(client.id, &client);
        }
    }
    QList<TaskRecord> records;
    for (const auto& task : visibleTasks(m_store->data().tasks, clientOrNone(m_filter))) {
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
