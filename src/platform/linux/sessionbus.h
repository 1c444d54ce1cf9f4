#pragma once

#include <QDBusConnection>

namespace quib {

bool hasSessionBus();

/// The user's session bus; a connection that is not connected where there is none. Asking Qt's own
/// way would start a stray bus then, that no other program is on.
QDBusConnection sessionBus();

} // namespace quib
