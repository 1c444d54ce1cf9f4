#include "views/models/recordlistmodel.h"

namespace quib {

int RecordListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const
{
    const auto number = static_cast<std::size_t>(role - Qt::UserRole);
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || number >= m_roles.size()) {
        return {};
    }
    return m_roles[number].value(index.row());
}

QHash<int, QByteArray> RecordListModel::roleNames() const
{
    QHash<int, QByteArray> names;
    for (int role = Qt::UserRole; const auto& known : m_roles) {
        names.insert(role++, known.name);
    }
    return names;
}

} // namespace quib
