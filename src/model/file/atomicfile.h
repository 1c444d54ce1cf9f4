#pragma once

#include "model/texts/bytesink.h"

#include <QByteArray>

#include <filesystem>
#include <functional>

namespace quib {

/// Who may read a file that was not there before.
enum class NewFile {
    Private, ///< The user alone.
    Usual, ///< Whomever the umask lets.
};

/// Replaces a file whole and durably, or leaves the old one as it is and says false. A reader
/// sees the old bytes or the new ones, never a part. What is there keeps its mode. A symbolic link
/// is written through.
bool replaceFile(const std::filesystem::path& path, const QByteArray& bytes, NewFile kind);

/// Gives all that a file is to hold to a sink; false when the sink says so, or when the file is not
/// to be replaced after all.
using FileWriter = std::function<bool(const ByteSink& sink)>;

/// The same piece by piece, for what should not be in memory as a whole.
bool replaceFile(const std::filesystem::path& path, const FileWriter& write, NewFile kind);

} // namespace quib
