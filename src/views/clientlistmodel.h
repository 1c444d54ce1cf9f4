#pragma once

#include "model/client.h"
#include "model/recordlistmodel.h"
#include "model/store.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// The clients of a store as rows, in display order.
class ClientListModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)
    Q_PROPERTY(Selection selection READ selection WRITE setSelection NOTIFY selectionChanged)

public:
    enum Role { IdRole = Qt::UserRole, NameRole, StatusRole };

    /// Which clients of the store are rows.
    enum class Selection { All, WithTasks };
    Q_ENUM(Selection)

    using RecordListModel::RecordListModel;

    Store* store() const { return m_store; }
    Selection selection() const { return m_selection; }

    /// Borrowed: the rows are empty once the store is gone.
    void setStore(Store* store);
    void setSelection(Selection selection);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void storeChanged();
    void selectionChanged();

private:
    void follow();

    QPointer<Store> m_store;
    Selection m_selection = Selection::All;
    QList<Client> m_clients;
};

/// The clients that at least one of the tasks names, in the order of the clients.
QList<Client> clientsWithTasks(const QList<Client>& clients, const QList<TaskItem>& tasks);

} // namespace quib
