#include "model/file/temporaryfile.h"

#include "model/file/temporaryname.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <tuple>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quib {

TemporaryFile::TemporaryFile(const std::filesystem::path& folder, mode_t mode)
    : m_path(folder / temporaryName())
    , m_file(::open(m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode))
{
    ::flock(m_file.number(), LOCK_EX | LOCK_NB);
}

TemporaryFile::~TemporaryFile()
{
    if (m_file.isOpen() && !m_path.empty()) {
        ::unlink(m_path.c_str());
    }
}

bool TemporaryFile::write(QByteArrayView bytes) const
{
    for (qsizetype written = 0; written < bytes.size();) {
        const auto count = ::write(m_file.number(), bytes.data() + written,
                                   static_cast<std::size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR) {
            return false;
        }
        written += std::max<ssize_t>(count, 0);
    }
    return m_file.isOpen();
}

bool TemporaryFile::reachesDisk() const
{
    // Some file systems have no such notion.
    return ::fsync(m_file.number()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool TemporaryFile::takePlaceOf(const std::filesystem::path& path)
{
    const bool isDone = std::rename(m_path.c_str(), path.c_str()) == 0;
    if (isDone) {
        m_path.clear();
    }
    return isDone;
}

void TemporaryFile::setGroup(gid_t group) const
{
    constexpr auto SameUser = static_cast<uid_t>(-1);
    std::ignore = ::fchown(m_file.number(), SameUser, group);
}

void TemporaryFile::setMode(mode_t mode) const
{
    ::fchmod(m_file.number(), mode);
}

} // namespace quib
