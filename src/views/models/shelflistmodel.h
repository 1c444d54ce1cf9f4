#pragma once

#include "model/store.h"
#include "views/models/recordlistmodel.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// The files on the shelf of a store as rows, newest first.
class ShelfListModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)

public:
    /// The name is the last part of the path.
    enum Role { IdRole = Qt::UserRole, PathRole, NameRole };

    using RecordListModel::RecordListModel;

    Store* store() const { return m_store; }
    /// Borrowed: the rows are empty once the store is gone.
    void setStore(Store* store);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void storeChanged();

private:
    void follow();

    QPointer<Store> m_store;
    QList<ShelfItem> m_items;
};

} // namespace quib
