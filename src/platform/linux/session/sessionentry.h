#pragma once

#include <QString>

namespace quib {

/// True when a session starts what that desktop entry says; not for a file that is no entry, or one
/// whose program is gone.
bool startsSomething(const QString& path);

} // namespace quib
