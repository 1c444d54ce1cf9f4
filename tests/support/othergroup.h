#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include <unistd.h>

/// One that new files are not of and that the user may give them to; absent where there is none.
inline std::optional<gid_t> otherGroup()
{
    if (::geteuid() == 0) {
        return ::getegid() + 1;
    }
    std::array<gid_t, 64> groups{};
    const auto count = static_cast<std::size_t>(
        std::max(::getgroups(static_cast<int>(groups.size()), groups.data()), 0));
    for (const auto group : std::span(groups).first(count)) {
        if (group != ::getegid()) {
            return group;
        }
    }
    return std::nullopt;
}
