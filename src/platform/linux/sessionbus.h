#pragma once

#include <QDBusConnection>

namespace quib {

bool hasSessionBus();

/// The user's session bus; a connection that is not connected where there is none. Asking Qt's own
/// way would start a stray bus then, that no other program is on.
QDBusConnection sessionBus();
/// The same bus by a connection of its own, for objects whose paths others may use too.
QDBusConnection ownSessionBus(const QString& connectionName);

} // namespace quib
