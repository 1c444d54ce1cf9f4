#pragma once

#include <filesystem>

namespace quib {

/// The full path of the file that a link stands for, whether or not it exists yet; of any other
/// file its own. A link that leads round in a circle stays one.
std::filesystem::path linkTarget(const std::filesystem::path& path);

} // namespace quib
