#include "views/models/shelflistmodel.h"

#include "views/core/followsource.h"

#include <QFileInfo>

namespace quib {

namespace {

/// The last part of a path, without looking at the disk; all of "/".
QString nameOf(const QString& path)
{
    const auto name = QFileInfo(path).fileName();
    return name.isEmpty() ? path : name;
}

} // namespace

void ShelfListModel::setStore(Store* store)
{
    if (followSource(m_store, store, this, &ShelfListModel::follow, &Store::shelfChanged)) {
        Q_EMIT storeChanged();
    }
}

int ShelfListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant ShelfListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto& item = m_items.at(index.row());
    switch (role) {
    case IdRole: return item.id;
    case PathRole: return item.path;
    case NameRole: return nameOf(item.path);
    }
    return {};
}

QHash<int, QByteArray> ShelfListModel::roleNames() const
{
    return {{IdRole, "itemID"}, {PathRole, "path"}, {NameRole, "name"}};
}

void ShelfListModel::follow()
{
    show(m_items, m_store ? m_store->data().shelf : QList<ShelfItem>());
}

} // namespace quib
