#pragma once

#include <QTimeZone>

namespace quib {

/// Where the system says it is now, which the user may change while we run. Invalid where only its
/// C library knows.
QTimeZone systemTimeZone();

} // namespace quib
