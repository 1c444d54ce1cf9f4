#include "model/file/atomicfile.h"

#include "model/file/linktarget.h"
#include "model/file/temporaryfile.h"

#include <memory>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quib {

namespace {

constexpr mode_t OwnersAlone = S_IRUSR | S_IWUSR;
constexpr mode_t Everybodys = OwnersAlone | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
constexpr mode_t Permissions = S_IRWXU | S_IRWXG | S_IRWXO;

/// Absent where there is nothing.
std::optional<struct stat> factsOf(const std::filesystem::path& path)
{
    struct stat facts { };
    return ::lstat(path.c_str(), &facts) == 0 ? std::optional(facts) : std::nullopt;
}

/// What exists keeps its group and mode. For a new one that is not private the umask decides.
std::unique_ptr<TemporaryFile> newFile(const std::filesystem::path& folder,
                                       const std::optional<struct stat>& old, NewFile kind)
{
    const bool isUmaskAsked = !old && kind != NewFile::Private;
    auto file = std::make_unique<TemporaryFile>(folder, isUmaskAsked ? Everybodys : OwnersAlone);
    if (old) {
        file->setGroup(old->st_gid);
    }
    if (!isUmaskAsked) {
        file->setMode(old ? old->st_mode & Permissions : OwnersAlone);
    }
    return file;
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
    return replaceFile(
        path, [&](const ByteSink& sink) { return sink(bytes); }, kind);
}

bool replaceFile(const std::filesystem::path& path, const FileWriter& write, NewFile kind)
{
    const auto target = linkTarget(path);
    const auto old = factsOf(target);
    if (old && (!S_ISREG(old->st_mode) || ::access(target.c_str(), W_OK) != 0)) {
        return false;
    }
    const auto folder = target.parent_path();
    const auto file = newFile(folder, old, kind);
    const ByteSink sink = [&](QByteArrayView bytes) { return file->write(bytes); };
    if (!write(sink) || !file->reachesDisk() || !file->takePlaceOf(target)) {
        return false;
    }
    syncFolder(folder);
    return true;
}

} // namespace quib
