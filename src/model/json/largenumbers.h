#pragma once

#include <QByteArray>

#include <optional>

namespace quib {

/// The same JSON text without numbers that the reader refuses: an integer beyond 64 bits is written
/// with an exponent, a number beyond any double is an empty object, which no member of ours may be.
/// What is no valid number stays. Absent when there is nothing to change.
std::optional<QByteArray> withoutLargeNumbers(const QByteArray& json);

} // namespace quib
