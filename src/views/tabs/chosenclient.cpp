#include "views/tabs/chosenclient.h"

#include "views/core/followsource.h"

namespace quib {

QString ChosenClient::name() const
{
    return m_client ? m_client->name : QString();
}

QString ChosenClient::status() const
{
    return m_client ? rawText(m_client->status) : QString();
}

void ChosenClient::setStore(Store* store)
{
    if (followSource(m_store, store, this, &ChosenClient::follow, {&Store::clientsChanged})) {
        Q_EMIT storeChanged();
    }
}

void ChosenClient::setClientID(const QUuid& id)
{
    if (m_clientID == id) {
        return;
    }
    m_clientID = id;
    follow();
    Q_EMIT clientIDChanged();
}

void ChosenClient::follow()
{
    auto client = m_store ? m_store->client(clientOrNone(m_clientID)) : std::nullopt;
    if (m_client != client) {
        m_client = std::move(client);
        Q_EMIT changed();
    }
}

} // namespace quib
