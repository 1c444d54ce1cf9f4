#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>

namespace quib {

/// A new name for a file that this process is about to move into its place. Hidden, ours, and of a
/// form that nobody else would choose.
std::string temporaryName();

/// The process that made such a name; absent for any other name.
std::optional<pid_t> makerOf(std::string_view name);

} // namespace quib
