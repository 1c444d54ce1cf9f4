#include "views/models/launchlistmodel.h"

#include "integrations/opening/actions.h"
#include "views/core/followsource.h"
#include "views/models/launchlink.h"

#include <QDir>

namespace quib {

void LaunchListModel::setStore(Store* store)
{
    if (followSource(m_store, store, this, &LaunchListModel::follow, &Store::launchChanged)) {
        Q_EMIT storeChanged();
    }
}

bool LaunchListModel::addLink(const QString& name, const QString& address)
{
    if (!m_store || address.isEmpty()) {
        return false;
    }
    m_store->addLaunchItem(
        {.id = QUuid::createUuid(), .name = linkName(name, address), .target = address});
    return true;
}

void LaunchListModel::addApplication(Commands* commands)
{
    const QPointer<Commands> shell(commands);
    commands->pick(false, std::nullopt, [shell, store = m_store](const QUrl& chosen) {
        const auto path = chosen.adjusted(QUrl::StripTrailingSlash).toLocalFile();
        if (shell && store && !path.isEmpty()) {
            store->addLaunchItem(
                {.id = QUuid::createUuid(), .name = shell->applicationName(path), .target = path});
        }
    });
}

int LaunchListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant LaunchListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto& item = m_items.at(index.row());
    switch (role) {
    case IdRole: return item.id;
    case NameRole: return item.name;
    case TargetRole: return item.target;
    case PathRole: return pathOf(item.target, QDir::homePath());
    }
    return {};
}

QHash<int, QByteArray> LaunchListModel::roleNames() const
{
    return {{IdRole, "itemID"}, {NameRole, "name"}, {TargetRole, "target"}, {PathRole, "path"}};
}

void LaunchListModel::follow()
{
    show(m_items, m_store ? m_store->data().launch : QList<LaunchItem>());
}

} // namespace quib
