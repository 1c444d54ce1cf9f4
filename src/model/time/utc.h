#pragma once

#include <QTimeZone>

namespace quib {

/// UTC, as the makers of moments take it.
#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
inline constexpr auto Utc = Qt::UTC; // Its QTimeZone has no word for UTC that costs nothing.
#else
inline constexpr auto Utc = QTimeZone::UTC; // Qt 6.9 deprecates makers that take Qt::UTC.
#endif

} // namespace quib
