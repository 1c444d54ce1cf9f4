#include "views/storeforviews.h"

namespace quib {

void StoreForViews::addTask(const QString& title, const QUuid& client)
{
    m_store->addTask(title, client.isNull() ? std::nullopt : std::optional(client));
}

} // namespace quib
