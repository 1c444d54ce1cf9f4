#pragma once

#include <string_view>
#include <tuple>
#include <type_traits>

namespace quib {

/// A member of a record, and the key that it has in a file.
template <typename Record, typename Value>
struct Member {
    std::string_view key;
    Value Record::*value;
};

template <typename Record, typename Value>
Member(std::string_view, Value Record::*) -> Member<Record, Value>;

/// The members of a kind of record in the order of their keys, told once for all who read or write
/// one: specialised where the record's file form is described.
template <typename Record>
inline constexpr std::tuple<> Members{};

template <typename Record>
concept HasMembers = std::tuple_size_v<std::remove_cvref_t<decltype(Members<Record>)>>
!= 0;

} // namespace quib
