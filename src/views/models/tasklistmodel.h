#pragma once

#include "views/core/noclient.h"
#include "views/models/storelistmodel.h"

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
class TaskListModel : public quib::StoreListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUuid filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(QString clearDoneTitle READ clearDoneTitle NOTIFY clearDoneTitleChanged)

public:
    explicit TaskListModel(QObject* parent = nullptr);

    QUuid filter() const { return m_filter; } ///< No client for the tasks of all and of none.
    /// "Clear 3 done", counting the whole store; empty while no task is done.
    QString clearDoneTitle() const { return m_clearDoneTitle; }

    void setFilter(const QUuid& filter);
    /// Of the store's first task; -1 where it is not shown.
    Q_INVOKABLE int newestRow() const;

Q_SIGNALS:
    void filterChanged();
    void clearDoneTitleChanged();

private:
    void follow() override;
    void countDone();
    QList<TaskRecord> wanted() const;

    QUuid m_filter = NoClient::id();
    QString m_clearDoneTitle;
    QList<TaskRecord> m_tasks;
};

} // namespace quib
