#pragma once

#include "model/store.h"
#include "views/models/recordlistmodel.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// The first of the tasks that are not done, in stored order; at most three.
QList<TaskItem> firstOpenTasks(const QList<TaskItem>& tasks);

/// The first open tasks of a store as rows.
class OpenTaskListModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)

public:
    enum Role { IdRole = Qt::UserRole, TitleRole };

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
    QList<TaskItem> m_tasks;
};

} // namespace quib
