#pragma once

#include "app/shell/commands.h"
#include "model/store.h"

#include <QPointer>

#include <qqmlintegration.h>

namespace quib {

/// Adds quick-launch buttons to a store.
class LaunchEditor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quib::Store* store READ store WRITE setStore NOTIFY storeChanged REQUIRED)

public:
    using QObject::QObject;

    Store* store() const { return m_store; }
    /// Borrowed: nothing is added once it is gone.
    void setStore(Store* store);

    /// A new button at the end. False, and nothing done, without an address.
    Q_INVOKABLE bool addLink(const QString& name, const QString& address);
    /// Lets the user choose an application for a new button, whether or not this still lives by
    /// then.
    Q_INVOKABLE void addApplication(quib::Commands* commands);

Q_SIGNALS:
    void storeChanged();

private:
    QPointer<Store> m_store;
};

} // namespace quib
