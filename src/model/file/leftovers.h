#pragma once

#include <filesystem>

namespace quib {

/// Removes what replaceFile() has left where its process was killed half-way: beside the file, and
/// beside what it stands for when it is a link. Only regular files of this user's, of exactly our
/// form, whose process is gone. For the one program that uses the folder, before its first save.
void removeLeftovers(const std::filesystem::path& file);

} // namespace quib
