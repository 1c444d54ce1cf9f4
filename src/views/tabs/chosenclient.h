#pragma once

#include "model/store.h"
#include "views/core/noclient.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// What a picker shows of the client that is chosen in it.
class ChosenClient : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)
    Q_PROPERTY(QUuid clientID READ clientID WRITE setClientID NOTIFY clientIDChanged)
    Q_PROPERTY(bool exists READ exists NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY changed)

public:
    using QObject::QObject;

    Store* store() const { return m_store; }
    QUuid clientID() const { return m_clientID; } ///< No client where none is chosen.
    bool exists() const { return m_client.has_value(); }
    QString name() const; ///< Empty without a client, or where the client is gone.
    QString status() const; ///< Raw text; empty like the name.

    /// Borrowed: no client exists once the store is gone.
    void setStore(Store* store);
    void setClientID(const QUuid& id);

Q_SIGNALS:
    void storeChanged();
    void clientIDChanged();
    void changed();

private:
    void follow();

    QPointer<Store> m_store;
    QUuid m_clientID = NoClient::id();
    std::optional<Client> m_client;
};

} // namespace quib
