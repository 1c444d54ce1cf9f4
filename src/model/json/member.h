#pragma once

#include <string_view>
#include <tuple>

namespace quib {

/// A member of a record, and the key that it has in a file.
template <typename Record, typename Value>
struct Member {
    std::string_view key;
    Value Record::*value;
};

/// The members of a kind of record in the order of their keys, told once for all who read or write
/// one: specialised where the record's file form is described.
template <typename Record>
inline constexpr std::tuple<> Members{};

} // namespace quib
