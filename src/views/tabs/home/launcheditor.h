#pragma once

#include "app/shell/commands.h"
#include "model/store.h"

#include <qqmlintegration.h>

namespace quib {

/// Adds quick-launch buttons to a store.
class LaunchEditor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// A new button at the end. False, and nothing done, without an address or a store.
    Q_INVOKABLE static bool addLink(quib::Store* store, const QString& name,
                                    const QString& address);
    /// Lets the user choose an application for a new button. Nothing is added once the store or the
    /// shell is gone.
    Q_INVOKABLE static void addApplication(quib::Store* store, quib::Commands* commands);
};

} // namespace quib
