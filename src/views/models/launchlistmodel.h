#pragma once

#include "app/shell/commands.h"
#include "model/store.h"
#include "views/models/recordlistmodel.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// The quick-launch buttons of a store as rows.
class LaunchListModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)

public:
    /// The path is what shows its own picture; empty for a website.
    enum Role { IdRole = Qt::UserRole, NameRole, TargetRole, PathRole };

    using RecordListModel::RecordListModel;

    Store* store() const { return m_store; }
    /// Borrowed: the rows are empty once the store is gone.
    void setStore(Store* store);

    /// A new button at the end. False, and nothing done, without an address.
    Q_INVOKABLE bool addLink(const QString& name, const QString& address);
    /// Lets the user choose an application for a new button.
    Q_INVOKABLE void addApplication(quib::Commands* commands);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void storeChanged();

private:
    void follow();

    QPointer<Store> m_store;
    QList<LaunchItem> m_items;
};

} // namespace quib
