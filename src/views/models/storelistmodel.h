#pragma once

#include "model/store.h"
#include "views/core/followsource.h"
#include "views/models/recordlistmodel.h"

namespace quib {

/// Base of the models whose rows come from a store.
class StoreListModel : public quib::RecordListModel {
    Q_OBJECT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)

public:
    Store* store() const { return m_store; }
    /// Borrowed: nothing of it is shown any more once it is gone.
    void setStore(Store* store);

Q_SIGNALS:
    void storeChanged();

protected:
    /// `changes` are those of the store that count for the rows.
    StoreListModel(std::vector<Change<Store>> changes, QObject* parent);

    /// Shows what there is now in the store, which may be none.
    virtual void follow() = 0;

private:
    QPointer<Store> m_store;
    std::vector<Change<Store>> m_changes;
};

} // namespace quib
