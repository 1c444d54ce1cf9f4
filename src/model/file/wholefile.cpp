#include "model/file/wholefile.h"

#include "model/file/descriptor.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace quib {

namespace {

constexpr qsizetype RoomBehind = 64; // As much as the reader of JSON asks for.
constexpr qsizetype Step = 65'536;

/// Opening a pipe would wait for its writer. One that is asked not to wait fails on files that
/// others hold a lease on, such as servers do.
bool isRegularFile(const std::filesystem::path& path)
{
    struct stat facts { };
    return ::stat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode);
}

/// Absent for what is no regular file.
std::optional<qsizetype> sizeOf(const Descriptor& file)
{
    struct stat facts { };
    const bool isFile
        = file.isOpen() && ::fstat(file.number(), &facts) == 0 && S_ISREG(facts.st_mode);
    return isFile ? std::optional<qsizetype>(facts.st_size) : std::nullopt;
}

/// Fills the bytes from there on, as far as it gets; negative when it fails.
ssize_t readSome(const Descriptor& file, QByteArray& bytes, qsizetype from)
{
    ssize_t count = -1;
    do {
        count = ::read(file.number(), bytes.data() + from,
                       static_cast<std::size_t>(bytes.size() - from));
    } while (count < 0 && errno == EINTR);
    return count;
}

} // namespace

std::optional<QByteArray> wholeFile(const std::filesystem::path& path, qsizetype largest)
{
    const Descriptor file(isRegularFile(path) ? ::open(path.c_str(), O_RDONLY | O_CLOEXEC) : -1);
    const auto size = sizeOf(file);
    if (!size || *size > largest) {
        return std::nullopt;
    }
    QByteArray bytes;
    bytes.reserve(*size + RoomBehind);
    bytes.resize(*size + 1); // Filled only where the size is a lie.
    qsizetype used = 0;
    while (const auto count = readSome(file, bytes, used)) {
        used += count;
        if (count < 0 || used > largest) {
            return std::nullopt;
        }
        if (used == bytes.size()) {
            bytes.resize(used + Step);
        }
    }
    bytes.resize(used);
    return bytes;
}

} // namespace quib
