#pragma once

#include "model/records/client.h"
#include "views/models/storelistmodel.h"

#include <qqmlintegration.h>

namespace quib {

/// A client as lists show it.
struct ClientRecord {
    QUuid id;
    QString name;
    QString status; ///< Raw text.
    bool isTimed = false; ///< The running timer counts for this client.
    int openTasks = 0;
    QString details; ///< What colour and marks tell, for those who do not see them.

    bool operator==(const ClientRecord&) const = default;
};

/// The clients of a store as rows, in display order.
class ClientListModel : public quib::StoreListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Selection selection READ selection WRITE setSelection NOTIFY selectionChanged)
    Q_PROPERTY(QString heading READ heading NOTIFY countChanged)

public:
    /// Which clients of the store are rows.
    enum class Selection { All, WithTasks };
    Q_ENUM(Selection)

    explicit ClientListModel(QObject* parent = nullptr);

    Selection selection() const { return m_selection; }
    QString heading() const; ///< "3 clients", and so with every number.
    /// Of the first client of that id; -1 without one.
    Q_INVOKABLE int rowOf(const QUuid& id) const;
    Q_INVOKABLE QUuid clientAt(int row) const; ///< No client where there is no such row.
    /// The row that many clients below or, with a number below zero, above, or the last on the way
    /// there. Of clients of one id only the first counts. Without a row it begins with the first.
    Q_INVOKABLE int rowBeside(int row, int by) const;

    void setSelection(Selection selection);

Q_SIGNALS:
    void selectionChanged();

private:
    void follow() override;
    QList<ClientRecord> wanted() const;

    Selection m_selection = Selection::All;
    QList<ClientRecord> m_clients;
};

/// The clients that at least one of the tasks names, in the order of the clients.
QList<Client> clientsWithTasks(const QList<Client>& clients, const QList<TaskItem>& tasks);

} // namespace quib
