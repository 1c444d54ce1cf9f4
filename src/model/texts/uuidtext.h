#pragma once

#include <QUuid>

#include <array>
#include <optional>
#include <string_view>

namespace quib {

/// "6F1C0A2E-93B4-4D57-8E21-0C5D7A9B1F34": the one form of an id in files.
using UuidText = std::array<char, 36>;

UuidText uuidText(const QUuid& id);

/// The id written exactly so, in letters of either case; absent for any other text.
std::optional<QUuid> parseUuid(std::string_view text);

} // namespace quib
