#include "views/models/storelistmodel.h"

namespace quib {

StoreListModel::StoreListModel(std::vector<Change<Store>> changes, QObject* parent)
    : RecordListModel(parent)
    , m_changes(std::move(changes))
{
}

void StoreListModel::setStore(Store* store)
{
    if (followSource(m_store, store, this, &StoreListModel::follow, m_changes)) {
        Q_EMIT storeChanged();
    }
}

} // namespace quib
