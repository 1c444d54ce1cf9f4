#include "views/models/launchlistmodel.h"

#include "integrations/opening/actions.h"

#include <QDir>

namespace quib {

namespace {

/// Of what shows its own picture; empty for a website.
QString pathOfItem(const LaunchItem& item)
{
    return pathOf(item.target, QDir::homePath());
}

} // namespace

LaunchListModel::LaunchListModel(QObject* parent)
    : StoreListModel({&Store::launchChanged}, parent)
{
    setRoles(m_items,
             {{"itemID", &LaunchItem::id},
              {"name", &LaunchItem::name},
              {"target", &LaunchItem::target},
              {"path", pathOfItem}});
}

void LaunchListModel::follow()
{
    show(m_items, store() ? store()->data().launch : QList<LaunchItem>(), &LaunchItem::id);
}

} // namespace quib
