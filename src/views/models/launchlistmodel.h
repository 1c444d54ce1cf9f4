#pragma once

#include "views/models/storelistmodel.h"

#include <qqmlintegration.h>

namespace quib {

/// The quick-launch buttons of a store as rows.
class LaunchListModel : public quib::StoreListModel {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit LaunchListModel(QObject* parent = nullptr);

private:
    void follow() override;

    QList<LaunchItem> m_items;
};

} // namespace quib
