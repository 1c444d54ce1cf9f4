#pragma once

#include <QByteArray>

#include <filesystem>

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

} // namespace quib
