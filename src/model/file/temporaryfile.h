#pragma once

#include "model/file/descriptor.h"

#include <QByteArrayView>

#include <filesystem>

#include <sys/types.h>

namespace quib {

/// A file under a name of its own that can take the place of another in one step. Until then it is
/// locked, as a sign that its process lives, and gone if it does not come to that.
class TemporaryFile {
public:
    /// A mode is cut by the umask.
    TemporaryFile(const std::filesystem::path& folder, mode_t mode);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Each is false when it fails. Bytes are written behind those of before.
    bool write(QByteArrayView bytes) const;
    bool reachesDisk() const;
    bool takePlaceOf(const std::filesystem::path& path);

    /// Stays as it is where the user is not of the group. Some file systems have no groups.
    void setGroup(gid_t group) const;

    /// Not cut by the umask. Some file systems have no modes.
    void setMode(mode_t mode) const;

private:
    std::filesystem::path m_path; ///< Empty once it has taken the place.
    Descriptor m_file;
};

} // namespace quib
