#pragma once

#include "model/locale/userlocale.h"

#include <QString>

#include <optional>

namespace quib {

/// A rate as a field shows it, in the manner of the user's country: as short as it can be without
/// becoming another number, and without groups. Empty for what is no number.
QString rateText(double rate, const UserLocale& locale);

/// The number that somebody typed, with the marks of their country or as programs write it: "35,5",
/// "35.5", "1 234", with their currency beside it or without. Absent for any other text, and for
/// what is too large to be a number.
std::optional<double> rateOf(const QString& text, const UserLocale& locale);

} // namespace quib
