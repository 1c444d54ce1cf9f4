#pragma once

#include <filesystem>

namespace quib {

/// Makes a folder with its parents where it is missing; what is made, nobody else may enter. False
/// when there is none afterwards.
bool makePrivateFolder(const std::filesystem::path& folder);

} // namespace quib
