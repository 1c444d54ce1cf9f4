#pragma once

#include "model/store.h"

#include <QObject>

#include <qqmlintegration.h>

namespace quib {

/// The operations of a store whose arguments QML cannot say: there the null id stands for none.
class StoreForViews : public QObject {
    Q_OBJECT
    QML_ANONYMOUS

public:
    /// Made by the QML engine, which hands over the store.
    explicit StoreForViews(QObject* store)
        : QObject(store)
        , m_store(qobject_cast<Store*>(store))
    {
    }

    Q_INVOKABLE void addTask(const QString& title, const QUuid& client);

private:
    Store* m_store;
};

} // namespace quib
