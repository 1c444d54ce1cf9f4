#include "views/tabs/clients/clienteditor.h"

#include "model/locale/rate.h"
#include "views/core/followsource.h"

#include <QVariantMap>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

std::optional<QUrl> locationOf(const QString& folder)
{
    return folder.isEmpty() ? std::nullopt : std::optional(QUrl::fromLocalFile(folder));
}

void setFolder(Store& store, const QUuid& id, const QUrl& chosen)
{
    auto client = store.client(id);
    const auto path = chosen.adjusted(QUrl::StripTrailingSlash).toLocalFile();
    if (client && !path.isEmpty()) {
        client->folderPath = path;
        store.updateClient(*client);
    }
}

} // namespace

ClientEditor::ClientEditor(QObject* parent)
    : QObject(parent)
{
}

QString ClientEditor::status() const
{
    return m_client ? rawText(m_client->status) : QString();
}

QString ClientEditor::statusTitle() const
{
    return m_client ? title(m_client->status) : QString();
}

QVariantList ClientEditor::statusChoices() const
{
    QVariantList choices;
    for (const auto status : AllClientStatuses) {
        const bool isPresent = m_client && m_client->status == status;
        choices << QVariantMap{{u"title"_s, title(status)}, {u"checked"_s, isPresent}};
    }
    return choices;
}

int ClientEditor::statusRow() const
{
    if (!m_client) {
        return -1;
    }
    const auto* found = std::ranges::find(AllClientStatuses, m_client->status);
    return static_cast<int>(found - AllClientStatuses.begin());
}

QString ClientEditor::rateText() const
{
    return m_store && m_client ? quib::rateText(m_client->hourlyRate, m_store->locale())
                               : QString();
}

void ClientEditor::setStore(Store* store)
{
    const bool isOther = followSource(m_store, store, this, &ClientEditor::follow,
                                      {&Store::clientsChanged, &Store::entriesChanged});
    if (isOther) {
        Q_EMIT storeChanged();
    }
}

void ClientEditor::setClientID(const QUuid& id)
{
    if (m_clientID == id) {
        return;
    }
    m_clientID = id;
    follow();
    Q_EMIT clientIDChanged();
}

void ClientEditor::setName(const QString& name)
{
    write(&Client::name, name);
}

void ClientEditor::chooseStatus(int row)
{
    if (row >= 0 && row < static_cast<int>(AllClientStatuses.size())) {
        write(&Client::status, AllClientStatuses.at(static_cast<std::size_t>(row)));
    }
}

void ClientEditor::setSiteURL(const QString& address)
{
    write(&Client::siteURL, address);
}

void ClientEditor::setRateText(const QString& text)
{
    const auto rate = m_store ? rateOf(text, m_store->locale()) : std::nullopt;
    if (rate) {
        write(&Client::hourlyRate, *rate);
    }
}

void ClientEditor::setNotes(const QString& notes)
{
    write(&Client::notes, notes);
}

void ClientEditor::chooseFolder(Commands* commands) const
{
    if (!commands || !m_client) {
        return;
    }
    const auto setChosen = [store = m_store, id = m_clientID](const QUrl& chosen) {
        if (store) {
            setFolder(*store, id, chosen);
        }
    };
    commands->pick(true, locationOf(m_client->folderPath), setChosen);
}

void ClientEditor::startTimer()
{
    if (m_store && m_client) {
        m_store->startTimer(m_clientID, {});
    }
}

void ClientEditor::follow()
{
    followTimer();
    auto client = m_store ? m_store->client(clientOrNone(m_clientID)) : std::nullopt;
    if (m_client == client) {
        return;
    }
    const auto before = std::exchange(m_client, std::move(client));
    Q_EMIT changed();
    const bool hasStatusOfBefore = before && m_client && before->status == m_client->status;
    if (!hasStatusOfBefore) {
        Q_EMIT statusChanged();
    }
}

void ClientEditor::followTimer()
{
    const auto running = m_store ? m_store->runningEntry() : std::nullopt;
    const bool isTimed = running && running->clientID == m_clientID;
    if (std::exchange(m_isTimed, isTimed) != isTimed) {
        Q_EMIT isTimedChanged();
    }
}

template <typename Value>
void ClientEditor::write(Value Client::*field, const Value& value)
{
    auto client = m_store && exists() ? m_store->client(m_clientID) : std::nullopt;
    if (client) {
        (*client).*field = value;
        m_store->updateClient(*client);
    }
}

} // namespace quib
