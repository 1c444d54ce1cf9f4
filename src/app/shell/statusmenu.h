#pragma once

#include "app/shell/menuitem.h"

#include <QAbstractListModel>

#include <qqmlintegration.h>

namespace quib {

/// The commands of the status menu, as the status bar and the panel show them.
class StatusMenu : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Created by the application delegate")

public:
    enum Role { TitleRole = Qt::UserRole, CheckedRole, SeparatorRole };

    using QAbstractListModel::QAbstractListModel;

    const QList<MenuItem>& items() const { return m_items; }
    void setItems(const QList<MenuItem>& items);
    /// Passed over when no item has that title.
    void setChecked(const QString& title, bool checked);

    /// Tells who listens to bring the check marks up to date.
    Q_INVOKABLE void open() { Q_EMIT aboutToOpen(); }
    /// Runs the command of that row.
    Q_INVOKABLE void choose(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void aboutToOpen();
    void chosen(const QString& title);

private:
    QList<MenuItem> m_items;
};

} // namespace quib
