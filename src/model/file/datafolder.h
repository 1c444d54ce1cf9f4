#pragma once

#include <filesystem>

namespace quib {

/// Where this program keeps its files: the value of QUIB_DATA_DIR exactly as it stands, byte by
/// byte, when it is set, else a folder in the user's data home. Made with its parents each time it
/// is asked for.
std::filesystem::path dataFolder();

/// The workspace's file in that folder.
std::filesystem::path dataFile();

} // namespace quib
