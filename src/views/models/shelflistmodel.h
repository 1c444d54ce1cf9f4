#pragma once

#include "views/models/storelistmodel.h"

#include <qqmlintegration.h>

namespace quib {

/// The files on the shelf of a store as rows, newest first.
class ShelfListModel : public quib::StoreListModel {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ShelfListModel(QObject* parent = nullptr);

private:
    void follow() override;

    QList<ShelfItem> m_items;
};

} // namespace quib
