#pragma once

#include "model/store.h"
#include "views/core/noclient.h"
#include "views/models/recordlistmodel.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// A task and what its row shows of its client.
struct TaskRecord {
    QUuid id;
    QString title;
    bool done = false;
    QString clientName; ///< Empty without a client, or where the client is gone.
    QString clientStatus; ///< Raw text; empty where the name does not count.

    bool operator==(const TaskRecord&) const = default;
};

/// The tasks that a filter lets through, open ones first, otherwise in stored order. Without a
/// filter all of them.
QList<TaskItem> visibleTasks(const QList<TaskItem>& tasks, const std::optional<QUuid>& filter);

/// The visible tasks of a store as rows.
class TaskListModel : public quib::RecordListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)
    Q_PROPERTY(QUuid filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(QString clearDoneTitle READ clearDoneTitle NOTIFY clearDoneTitleChanged)

public:
    enum Role { IdRole = Qt::UserRole, TitleRole, DoneRole, ClientNameRole, ClientStatusRole };

    using RecordListModel::RecordListModel;

    Store* store() const { return m_store; }
    QUuid filter() const { return m_filter; } ///< No client for the tasks of all and of none.
    /// "Clear 3 done", counting the whole store; empty while no task is done.
    QString clearDoneTitle() const { return m_clearDoneTitle; }

    /// Borrowed: the rows are empty once the store is gone.
    void setStore(Store* store);
    void setFilter(const QUuid& filter);
    /// A new task in the store, of a client or of none. Its row; -1 where none came or it is not
    /// shown.
    Q_INVOKABLE int addTask(const QString& title, const QUuid& client);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void storeChanged();
    void filterChanged();
    void clearDoneTitleChanged();

private:
    void follow();
    void countDone();
    QList<TaskRecord> wanted() const;

    QPointer<Store> m_store;
    QUuid m_filter = NoClient::id();
    QString m_clearDoneTitle;
    QList<TaskRecord> m_tasks;
};

} // namespace quib
