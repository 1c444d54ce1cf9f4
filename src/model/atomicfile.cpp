#include "model/atomicfile.h"

#include "model/linktarget.h"
#include "model/temporaryfile.h"

#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quib {

namespace {

constexpr mode_t OwnersAlone = S_IRUSR | S_IWUSR;
constexpr mode_t Everybodys = OwnersAlone | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
constexpr mode_t Permissions = S_IRWXU | S_IRWXG | S_IRWXO;

/// With its kind; absent where there is nothing.
std::optional<mode_t> modeOf(const std::filesystem::path& path)
{
    struct stat facts { };
    return ::lstat(path.c_str(), &facts) == 0 ? std::optional(facts.st_mode) : std::nullopt;
}

/// Absent where the umask decides.
std::optional<mode_t> modeFor(std::optional<mode_t> old, NewFile kind)
{
    if (old) {
        return *old & Permissions;
    }
    return kind == NewFile::Private ? std::optional(OwnersAlone) : std::nullopt;
}

/// A rename outlives a loss of power only once its folder is on disk.
void syncFolder(const std::filesystem::path& folder)
{
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ::fsync(descriptor.number());
}

} // namespace

bool replaceFile(const std::filesystem::path& path, const QByteArray& bytes, NewFile kind)
{
    const auto target = linkTarget(path);
    const auto old = modeOf(target);
    if (old && (!S_ISREG(*old) || ::access(target.c_str(), W_OK) != 0)) {
        return false;
    }
    const auto folder = target.parent_path();
    const auto mode = modeFor(old, kind);
    TemporaryFile file(folder, mode ? OwnersAlone : Everybodys);
    if (mode) {
        file.setMode(*mode);
    }
    if (!file.write(bytes) || !file.reachesDisk() || !file.takePlaceOf(target)) {
        return false;
    }
    syncFolder(folder);
    return true;
}

} // namespace quib
