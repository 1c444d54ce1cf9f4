#include "views/models/clientlistmodel.h"

#include "views/core/noclient.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <cstdlib>
#include <iterator>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

QHash<QUuid, int> openTasksPerClient(const QList<TaskItem>& tasks)
{
    QHash<QUuid, int> counts;
    for (const auto& task : tasks) {
        if (task.clientID && !task.done) {
            ++counts[*task.clientID];
        }
    }
    return counts;
}

/// "Build, timer running, 3 open tasks".
QString detailsOf(const Client& client, bool isTimed, int openTasks)
{
    QStringList details{title(client.status)};
    if (isTimed) {
        details << u"timer running"_s;
    }
    if (openTasks > 0) {
        details << (openTasks == 1 ? u"1 open task"_s : u"%1 open tasks"_s.arg(openTasks));
    }
    return details.join(u", "_s);
}

} // namespace

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

ClientListModel::ClientListModel(QObject* parent)
    : StoreListModel({&Store::clientsChanged, &Store::tasksChanged, &Store::entriesChanged}, parent)
{
    setRoles(m_clients,
             {{"clientID", &ClientRecord::id},
              {"name", &ClientRecord::name},
              {"status", &ClientRecord::status},
              {"isTimed", &ClientRecord::isTimed},
              {"openTasks", &ClientRecord::openTasks},
              {"details", &ClientRecord::details}});
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

QString ClientListModel::heading() const
{
    return u"%1 clients"_s.arg(count());
}

int ClientListModel::rowOf(const QUuid& id) const
{
    const auto found = std::ranges::find(m_clients, id, &ClientRecord::id);
    return found == m_clients.end() ? -1 : static_cast<int>(found - m_clients.begin());
}

QUuid ClientListModel::clientAt(int row) const
{
    return row >= 0 && row < count() ? m_clients.at(row).id : NoClient::id();
}

int ClientListModel::rowBeside(int row, int by) const
{
    const int left = row < 0 ? std::max(by, 1) : by;
    const int direction = left < 0 ? -1 : 1;
    int found = row;
    int steps = std::abs(left);
    for (int next = row + direction; steps > 0 && next >= 0 && next < count(); next += direction) {
        if (rowOf(m_clients.at(next).id) == next) {
            found = next;
            --steps;
        }
    }
    return found;
}

void ClientListModel::follow()
{
    show(m_clients, wanted(), &ClientRecord::id);
}

QList<ClientRecord> ClientListModel::wanted() const
{
    if (!store()) {
        return {};
    }
    const auto& data = store()->data();
    const auto clients
        = m_selection == Selection::All ? data.clients : clientsWithTasks(data.clients, data.tasks);
    const auto openTasks = openTasksPerClient(data.tasks);
    const auto running = store()->runningEntry();
    QList<ClientRecord> records;
    for (const auto& client : clients) {
        const bool isTimed = running && running->clientID == client.id;
        const auto tasks = openTasks.value(client.id);
        records.append({.id = client.id,
                        .name = client.name,
                        .status = rawText(client.status),
                        .isTimed = isTimed,
                        .openTasks = tasks,
                        .details = detailsOf(client, isTimed, tasks)});
    }
    return records;
}

} // namespace quib
