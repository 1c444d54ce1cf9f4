#include "model/store.h"

#include "model/datafile.h"
#include "model/datafolder.h"
#include "model/fileaddress.h"
#include "model/leftovers.h"
#include "model/sampledata.h"

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

Store::Store(Surroundings surroundings, QObject* parent)
    : QObject(parent)
    , m_surroundings(std::move(surroundings))
    , m_saver(m_surroundings.schedule, m_surroundings.enterBackground)
{
    auto loaded = loadQuibData(dataFile());
    m_data = loaded ? *std::move(loaded)
                    : sampleData(m_surroundings.clock(), m_surroundings.findApplication);
    entriesWereReplaced();
}

std::filesystem::path Store::folder()
{
    return dataFolder();
}

void Store::setData(const QuibData& data)
{
    const std::array<std::pair<bool, Signal>, 6> changes{{
        {data.clients != m_data.clients, &Store::clientsChanged},
        {data.tasks != m_data.tasks, &Store::tasksChanged},
        {data.entries != m_data.entries, &Store::entriesChanged},
        {data.shelf != m_data.shelf, &Store::shelfChanged},
        {data.launch != m_data.launch, &Store::launchChanged},
        {data.notes != m_data.notes, &Store::notesChanged},
    }};
    m_data = data;
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
    const auto found = std::ranges::find(m_data.clients, id, &Client::id);
    return found == m_data.clients.end() ? std::nullopt : std::optional(*found);
}

QUuid Store::addClient()
{
    const auto id = QUuid::createUuid();
    m_data.clients.prepend({.id = id, .name = u"New client"_s, .hourlyRate = FirstRate});
    announce(&Store::clientsChanged);
    return id;
}

void Store::deleteClient(const QUuid& id)
{
    if (removeAll(m_data.clients, id)) {
        announce(&Store::clientsChanged);
    }
}

void Store::updateClient(const Client& client)
{
    const auto row = rowOf(m_data.clients, client.id);
    if (row < 0 || m_data.clients.at(row) == client) {
        return;
    }
    m_data.clients[row] = client;
    announce(&Store::clientsChanged);
}

void Store::addTask(const QString& title, const std::optional<QUuid>& client)
{
    const auto trimmed = title.trimmed();
    if (trimmed.isEmpty()) {
        return;
    }
    m_data.tasks.prepend({.id = QUuid::createUuid(),
                          .title = trimmed,
                          .clientID = client,
                          .created = m_surroundings.clock()});
    announce(&Store::tasksChanged);
}

void Store::toggleTask(const QUuid& id)
{
    const auto row = rowOf(m_data.tasks, id);
    if (row < 0) {
        return;
    }
    auto& task = m_data.tasks[row];
    task.done = !task.done;
    announce(&Store::tasksChanged);
}

void Store::deleteTask(const QUuid& id)
{
    if (removeAll(m_data.tasks, id)) {
        announce(&Store::tasksChanged);
    }
}

void Store::clearDoneTasks()
{
    if (m_data.tasks.removeIf([](const TaskItem& task) { return task.done; }) > 0) {
        announce(&Store::tasksChanged);
    }
}

void Store::addToShelf(const QList<QUrl>& urls)
{
    const auto isOnIt = [this](const QString& path) {
        const auto& shelf = std::as_const(m_data.shelf);
        return std::ranges::find(shelf, path, &ShelfItem::path) != shelf.end();
    };
    const auto sizeBefore = m_data.shelf.size();
    for (const auto& url : urls) {
        const auto path = pathOfFile(url);
        if (!path.isEmpty() && !isOnIt(path)) {
            m_data.shelf.prepend({.id = QUuid::createUuid(), .path = path});
        }
    }
    if (m_data.shelf.size() != sizeBefore) {
        announce(&Store::shelfChanged);
    }
}

void Store::removeFromShelf(const QUuid& id)
{
    if (removeAll(m_data.shelf, id)) {
        announce(&Store::shelfChanged);
    }
}

void Store::clearShelf()
{
    if (!m_data.shelf.isEmpty()) {
        m_data.shelf.clear();
        announce(&Store::shelfChanged);
    }
}

void Store::addLaunchItem(const LaunchItem& item)
{
    m_data.launch.append(item);
    announce(&Store::launchChanged);
}

void Store::removeLaunchItem(const QUuid& id)
{
    if (removeAll(m_data.launch, id)) {
        announce(&Store::launchChanged);
    }
}

void Store::setNotes(const QString& notes)
{
    if (notes == m_data.notes) {
        return;
    }
    m_data.notes = notes;
    announce(&Store::notesChanged);
}

void Store::removeLeftovers()
{
    quib::removeLeftovers(dataFile());
}

void Store::scheduleSave()
{
    m_saver.scheduleSave(m_data);
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
