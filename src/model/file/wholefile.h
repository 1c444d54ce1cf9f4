#pragma once

#include <QByteArray>

#include <filesystem>
#include <optional>

namespace quib {

/// All of a regular file, with room behind it that a parser may read; absent when it is none, can't
/// be read or is larger than that. A pipe without a writer is not waited for.
std::optional<QByteArray> wholeFile(const std::filesystem::path& path, qsizetype largest);

} // namespace quib
