#pragma once

#include "app/shell/commands.h"
#include "model/store.h"
#include "views/core/noclient.h"

#include <QPointer>
#include <QVariantList>

#include <qqmlintegration.h>

namespace quib {

/// One client of a store as an editor shows and changes it. What is written reaches the store at
/// once; nothing is written for a client that is gone.
class ClientEditor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)
    Q_PROPERTY(QUuid clientID READ clientID WRITE setClientID NOTIFY clientIDChanged)
    Q_PROPERTY(bool exists READ exists NOTIFY changed)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)
    Q_PROPERTY(QString statusTitle READ statusTitle NOTIFY statusChanged)
    Q_PROPERTY(QVariantList statusChoices READ statusChoices NOTIFY statusChanged)
    Q_PROPERTY(int statusRow READ statusRow NOTIFY statusChanged)
    Q_PROPERTY(QString siteURL READ siteURL WRITE setSiteURL NOTIFY changed)
    Q_PROPERTY(QString folderPath READ folderPath NOTIFY changed)
    Q_PROPERTY(QString rateText READ rateText WRITE setRateText NOTIFY changed)
    Q_PROPERTY(QString notes READ notes WRITE setNotes NOTIFY changed)
    Q_PROPERTY(bool isTimed READ isTimed NOTIFY isTimedChanged)

public:
    explicit ClientEditor(QObject* parent = nullptr);

    Store* store() const { return m_store; }
    QUuid clientID() const { return m_clientID; } ///< No client where none is chosen.
    bool exists() const { return m_client.has_value(); }
    QString name() const { return shown().name; } ///< Empty without a client, as all texts are.
    QString status() const; ///< Raw text.
    QString statusTitle() const;
    QVariantList statusChoices() const; ///< Of a menu, the present one checked.
    int statusRow() const; ///< Of the present one; -1 without a client.
    QString siteURL() const { return shown().siteURL; }
    QString folderPath() const { return shown().folderPath; }
    QString rateText() const;
    QString notes() const { return shown().notes; }
    bool isTimed() const { return m_isTimed; } ///< The running timer counts for this client.

    /// Borrowed: no client exists once the store is gone.
    void setStore(Store* store);
    void setClientID(const QUuid& id);
    void setName(const QString& name);
    Q_INVOKABLE void chooseStatus(int row);
    void setSiteURL(const QString& address);
    /// A text that is no number leaves the rate as it is.
    void setRateText(const QString& text);
    void setNotes(const QString& notes);
    /// What is chosen becomes the folder of the client that it was asked for, whatever this shows
    /// by then, and whether this still lives or not.
    Q_INVOKABLE void chooseFolder(quib::Commands* commands) const;
    Q_INVOKABLE void startTimer();

Q_SIGNALS:
    void storeChanged();
    void clientIDChanged();
    void changed();
    void statusChanged();
    void isTimedChanged();

private:
    void follow();
    void followTimer();
    Client shown() const { return m_client.value_or(Client()); }
    template <typename Value>
    void write(Value Client::*field, const Value& value);

    QPointer<Store> m_store;
    QUuid m_clientID = NoClient::id();
    std::optional<Client> m_client;
    bool m_isTimed = false;
};

} // namespace quib
