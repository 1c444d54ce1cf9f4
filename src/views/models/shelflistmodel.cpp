#include "views/models/shelflistmodel.h"

#include <QFileInfo>

namespace quib {

namespace {

/// The last part of a path, without looking at the disk; all of "/".
QString nameOf(const ShelfItem& item)
{
    const auto name = QFileInfo(item.path).fileName();
    return name.isEmpty() ? item.path : name;
}

} // namespace

ShelfListModel::ShelfListModel(QObject* parent)
    : StoreListModel({&Store::shelfChanged}, parent)
{
    setRoles(m_items, {{"itemID", &ShelfItem::id}, {"path", &ShelfItem::path}, {"name", nameOf}});
}

void ShelfListModel::follow()
{
    show(m_items, store() ? store()->data().shelf : QList<ShelfItem>(), &ShelfItem::id);
}

} // namespace quib
