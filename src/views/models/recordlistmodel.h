#pragma once

#include "views/models/listdiff.h"

#include <QAbstractListModel>

#include <utility>

namespace quib {

/// Base of the models that show a list of records, one row per record.
///
/// A derived model keeps the records that it shows, tells once what views see of them, and calls
/// show() with the wanted ones. Only the rows that came, went, moved or changed are announced, so a
/// view keeps its delegates, its scroll position and its focus.
class RecordListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    int count() const { return m_count ? m_count() : 0; }
    int rowCount(const QModelIndex& parent = {}) const final;
    QVariant data(const QModelIndex& index, int role) const final;
    QHash<int, QByteArray> roleNames() const final;

Q_SIGNALS:
    void countChanged();

protected:
    /// What views see of a record, by name. The roles are Qt::UserRole and on, in this order.
    template <typename Record>
    using Roles
        = std::initializer_list<std::pair<QByteArray, std::function<QVariant(const Record&)>>>;

    /// The records stay the derived model's.
    template <typename Record>
    void setRoles(const QList<Record>& shown, Roles<std::type_identity_t<Record>> roles);
    /// `key` tells which record is which: a member, or a function of a record.
    template <typename Record, typename Key>
    void show(QList<Record>& shown, const QList<Record>& wanted, Key key);

private:
    struct Role {
        QByteArray name;
        std::function<QVariant(int row)> value;
    };

    template <typename Record>
    void take(const RowStep& step, QList<Record>& shown, const QList<Record>& wanted);
    template <typename Record>
    void refresh(QList<Record>& shown, const QList<Record>& wanted);

    std::function<int()> m_count;
    std::vector<Role> m_roles;
};

template <typename Record>
void RecordListModel::setRoles(const QList<Record>& shown,
                               Roles<std::type_identity_t<Record>> roles)
{
    m_count = [&shown] { return static_cast<int>(shown.size()); };
    for (const auto& role : roles) {
        m_roles.push_back({.name = role.first, .value = [&shown, value = role.second](int row) {
                               return value(shown.at(row));
                           }});
    }
}

template <typename Record, typename Key>
void RecordListModel::show(QList<Record>& shown, const QList<Record>& wanted, Key key)
{
    if (shown.isSharedWith(wanted)) {
        return;
    }
    const auto sizeBefore = shown.size();
    for (const auto& step : diffRows(shown, wanted, key)) {
        take(step, shown, wanted);
    }
    refresh(shown, wanted);
    if (shown.size() != sizeBefore) {
        Q_EMIT countChanged();
    }
}

template <typename Record>
void RecordListModel::take(const RowStep& step, QList<Record>& shown, const QList<Record>& wanted)
{
    switch (step.kind) {
    case RowStep::Kind::Remove:
        beginRemoveRows({}, step.row, step.row);
        shown.removeAt(step.row);
        endRemoveRows();
        return;
    case RowStep::Kind::Insert:
        beginInsertRows({}, step.row, step.row);
        shown.insert(step.row, wanted.at(step.source));
        endInsertRows();
        return;
    case RowStep::Kind::Move: // Qt counts the row that it goes before, as the rows stand now.
        beginMoveRows({}, step.source, step.source, {},
                      step.row > step.source ? step.row + 1 : step.row);
        shown.move(step.source, step.row);
        endMoveRows();
        return;
    }
    Q_UNREACHABLE();
}

/// After the steps both lists hold the same records; what differs in them is taken over in place.
template <typename Record>
void RecordListModel::refresh(QList<Record>& shown, const QList<Record>& wanted)
{
    for (int row = 0; row < static_cast<int>(wanted.size()); ++row) {
        if (shown.at(row) != wanted.at(row)) {
            shown[row] = wanted.at(row);
            Q_EMIT dataChanged(index(row), index(row));
        }
    }
}

} // namespace quib
