#pragma once

#include <QDateTime>

#include <array>
#include <optional>
#include <string_view>

namespace quib {

/// "2026-03-02T09:15:00Z": the one form of a moment in files.
using IsoDate = std::array<char, 20>;

/// The moment in UTC, down to the whole second below it; absent outside the years 0 to 9999.
std::optional<IsoDate> isoDate(const QDateTime& moment);

/// The moment written exactly so, on a day that the calendar has; absent for any other text.
std::optional<QDateTime> parseIsoDate(std::string_view text);

} // namespace quib
