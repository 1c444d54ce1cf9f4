#include "model/store.h"

#include "model/file/datafolder.h"
#include "model/file/leftovers.h"
#include "model/texts/fileaddress.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr double FirstRate = 30;

template <typename Record>
bool removeAll(QList<Record>& records, const QUuid& id)
{
    return records.removeIf([&](const Record& record) { return record.id == id; }) > 0;
}

/// Row of the first record of that id; -1 without one. Looks only, so that the list stays shared.
template <typename Record>
qsizetype rowOf(const QList<Record>& records, const QUuid& id)
{
    const auto found = std::ranges::find(records, id, &Record::id);
    return found == records.end() ? -1 : found - records.begin();
}

} // namespace

std::filesystem::path Store::folder()
{
    return dataFolder();
}

void Store::setData(const QuibData& data)
{
    const auto& before = this->data();
    const std::array<std::pair<bool, Signal>, 6> changes{{
        {data.clients != before.clients, &Store::clientsChanged},
        {data.tasks != before.tasks, &Store::tasksChanged},
        {data.entries != before.entries, &Store::entriesChanged},
        {data.shelf != before.shelf, &Store::shelfChanged},
        {data.launch != before.launch, &Store::launchChanged},
        {data.notes != before.notes, &Store::notesChanged},
    }};
    workspace() = data;
    entriesWereReplaced();
    for (const auto& [differs, changed] : changes) {
        if (differs) {
            Q_EMIT(this->*changed)();
        }
    }
    if (std::ranges::any_of(changes, &std::pair<bool, Signal>::first)) {
        scheduleSave();
    }
}

std::optional<Client> Store::client(const std::optional<QUuid>& id) const
{
    const auto& clients = data().clients;
    const auto found = std::ranges::find(clients, id, &Client::id);
    return found == clients.end() ? std::nullopt : std::optional(*found);
}

QUuid Store::addClient()
{
    const auto id = QUuid::createUuid();
    workspace().clients.prepend({.id = id, .name = u"New client"_s, .hourlyRate = FirstRate});
    announce(&Store::clientsChanged);
    return id;
}

void Store::deleteClient(const QUuid& id)
{
    if (removeAll(workspace().clients, id)) {
        announce(&Store::clientsChanged);
    }
}

void Store::updateClient(const Client& client)
{
    const auto row = rowOf(data().clients, client.id);
    if (row < 0 || data().clients.at(row) == client) {
        return;
    }
    workspace().clients[row] = client;
    announce(&Store::clientsChanged);
}

bool Store::addTask(const QString& title, const std::optional<QUuid>& client)
{
    const auto trimmed = title.trimmed();
    if (trimmed.isEmpty()) {
        return false;
    }
    workspace().tasks.prepend({.id = QUuid::createUuid(),
                               .title = trimmed,
                               .clientID = client,
                               .created = m_surroundings.clock()});
    announce(&Store::tasksChanged);
    return true;
}

void Store::toggleTask(const QUuid& id)
{
    const auto row = rowOf(data().tasks, id);
    if (row < 0) {
        return;
    }
    auto& task = workspace().tasks[row];
    task.done = !task.done;
    announce(&Store::tasksChanged);
}

void Store::deleteTask(const QUuid& id)
{
    if (removeAll(workspace().tasks, id)) {
        announce(&Store::tasksChanged);
    }
}

void Store::clearDoneTasks()
{
    if (workspace().tasks.removeIf([](const TaskItem& task) { return task.done; }) > 0) {
        announce(&Store::tasksChanged);
    }
}

void Store::addToShelf(const QList<QUrl>& urls)
{
    const auto isOnIt = [this](const QString& path) {
        const auto& shelf = data().shelf;
        return std::ranges::find(shelf, path, &ShelfItem::path) != shelf.end();
    };
    const auto sizeBefore = data().shelf.size();
    for (const auto& url : urls) {
        const auto path = pathOfFile(url);
        if (!path.isEmpty() && !isOnIt(path)) {
            workspace().shelf.prepend({.id = QUuid::createUuid(), .path = path});
        }
    }
    if (data().shelf.size() != sizeBefore) {
        announce(&Store::shelfChanged);
    }
}

void Store::removeFromShelf(const QUuid& id)
{
    if (removeAll(workspace().shelf, id)) {
        announce(&Store::shelfChanged);
    }
}

void Store::clearShelf()
{
    if (!data().shelf.isEmpty()) {
        workspace().shelf.clear();
        announce(&Store::shelfChanged);
    }
}

void Store::addLaunchItem(const LaunchItem& item)
{
    workspace().launch.append(item);
    announce(&Store::launchChanged);
}

void Store::removeLaunchItem(const QUuid& id)
{
    if (removeAll(workspace().launch, id)) {
        announce(&Store::launchChanged);
    }
}

void Store::setNotes(const QString& notes)
{
    if (notes == data().notes) {
        return;
    }
    workspace().notes = notes;
    announce(&Store::notesChanged);
}

void Store::removeLeftovers()
{
    quib::removeLeftovers(dataFile());
}

void Store::scheduleSave()
{
    m_saver.scheduleSave(data());
}

void Store::saveNow()
{
    m_saver.saveNow(m_data);
}

void Store::announce(Signal changed)
{
    Q_EMIT(this->*changed)();
    scheduleSave();
}

} // namespace quib
