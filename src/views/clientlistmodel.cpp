#include "views/clientlistmodel.h"

#include "views/storelink.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace quib {

QList<Client> clientsWithTasks(const QList<Client>& clients, const QList<TaskItem>& tasks)
{
    QSet<QUuid> named;
    for (const auto& task : tasks) {
        if (task.clientID) {
            named.insert(*task.clientID);
        }
    }
    QList<Client> found;
    std::ranges::copy_if(clients, std::back_inserter(found),
                         [&](const Client& client) { return named.contains(client.id); });
    return found;
}

void ClientListModel::setStore(Store* store)
{
    if (followStore(m_store, store, this, &ClientListModel::follow, &Store::clientsChanged,
                    &Store::tasksChanged)) {
        Q_EMIT storeChanged();
    }
}

void ClientListModel::setSelection(Selection selection)
{
    if (m_selection == selection) {
        return;
    }
    m_selection = selection;
    follow();
    Q_EMIT selectionChanged();
}

int ClientListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_clients.size());
}

QVariant ClientListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto& client = m_clients.at(index.row());
    switch (role) {
    case IdRole: return client.id;
    case NameRole: return client.name;
    case StatusRole: return rawText(client.status);
    }
    return {};
}

QHash<int, QByteArray> ClientListModel::roleNames() const
{
    return {{IdRole, "clientID"}, {NameRole, "name"}, {StatusRole, "status"}};
}

void ClientListModel::follow()
{
    if (!m_store) {
        show(m_clients, QList<Client>());
        return;
    }
    const auto& data = m_store->data();
    show(m_clients,
         m_selection == Selection::All ? data.clients : clientsWithTasks(data.clients, data.tasks));
}

} // namespace quib
