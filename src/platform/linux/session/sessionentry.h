#pragma once

#include <QString>

namespace quib {

/// True when a session starts what that desktop entry says; not for a file that is no entry, or one
/// whose program is gone. Read without GIO's own reader: what hangs elsewhere may hold its one
/// lock.
bool startsSomething(const QString& path);

} // namespace quib
