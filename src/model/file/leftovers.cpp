#include "model/file/leftovers.h"

#include "model/file/descriptor.h"
#include "model/file/linktarget.h"
#include "model/file/temporaryname.h"

#include <cerrno>
#include <csignal>
#include <set>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quib {

namespace {

/// What has our own number was left by another that had it before us.
bool isGone(pid_t process)
{
    return process == ::getpid() || (::kill(process, 0) != 0 && errno == ESRCH);
}

bool isOwnFile(const Descriptor& file)
{
    struct stat facts { };
    return file.isOpen() && ::fstat(file.number(), &facts) == 0 && S_ISREG(facts.st_mode)
        && facts.st_uid == ::geteuid();
}

/// Processes of other containers and hosts have numbers that say nothing here, but they hold locks.
bool isLocked(const Descriptor& file)
{
    return ::flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

bool isLeftover(const std::filesystem::path& path)
{
    const auto maker = makerOf(path.filename().native());
    if (!maker || !isGone(*maker)) {
        return false;
    }
    const Descriptor file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return isOwnFile(file) && !isLocked(file);
}

void removeLeftoversIn(const std::filesystem::path& folder)
{
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (isLeftover(entry->path())) {
            ::unlink(entry->path().c_str());
        }
    }
}

} // namespace

void removeLeftovers(const std::filesystem::path& file)
{
    for (const auto& folder : std::set{file.parent_path(), linkTarget(file).parent_path()}) {
        removeLeftoversIn(folder);
    }
}

} // namespace quib
