#pragma once

#include "model/store.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// What can be done with the notes of a store as a whole.
class Notebook : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)

public:
    using QObject::QObject;

    Store* store() const { return m_store; }

    /// Borrowed: there are no notes once the store is gone.
    void setStore(Store* store);

    /// To the clipboard, as plain text, even where there are none.
    Q_INVOKABLE void copyAll() const;
    /// What to add to the end of the notes to stamp them with the present moment.
    Q_INVOKABLE QString timestamp() const;

Q_SIGNALS:
    void storeChanged();

private:
    QPointer<Store> m_store;
};

} // namespace quib
