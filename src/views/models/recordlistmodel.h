#pragma once

#include "views/models/listdiff.h"

#include <QAbstractListModel>

#include <algorithm>

namespace quib {

/// Base of the models that show a list of records, one row per record, keyed by `id`.
///
/// A derived model keeps the records that it shows and calls show() with the wanted ones. Only the
/// rows that came, went, moved or changed are announced, so a view keeps its delegates, its scroll
/// position and its focus.
class RecordListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    int count() const { return rowCount({}); }

Q_SIGNALS:
    void countChanged();

protected:
    template <typename Record>
    void show(QList<Record>& shown, const QList<Record>& wanted);

private:
    template <typename Record>
    static std::vector<QUuid> idsOf(const QList<Record>& records);
    template <typename Record>
    void take(const RowStep& step, QList<Record>& shown, const QList<Record>& wanted);
    template <typename Record>
    void refresh(QList<Record>& shown, const QList<Record>& wanted);
};

template <typename Record>
void RecordListModel::show(QList<Record>& shown, const QList<Record>& wanted)
{
    if (shown.isSharedWith(wanted)) {
        return;
    }
    const auto sizeBefore = shown.size();
    for (const auto& step : diffRows(idsOf(shown), idsOf(wanted))) {
        take(step, shown, wanted);
    }
    refresh(shown, wanted);
    if (shown.size() != sizeBefore) {
        Q_EMIT countChanged();
    }
}

template <typename Record>
std::vector<QUuid> RecordListModel::idsOf(const QList<Record>& records)
{
    std::vector<QUuid> ids(static_cast<std::size_t>(records.size()));
    std::ranges::transform(records, ids.begin(), &Record::id);
    return ids;
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

/// After the steps both lists hold the same ids; what else differs is taken over in place.
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
