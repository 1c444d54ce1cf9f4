#include "model/file/privatefolder.h"

#include <sys/stat.h>

namespace quib {

namespace {

bool isFolder(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

} // namespace

bool makePrivateFolder(const std::filesystem::path& folder)
{
    if (folder.empty() || isFolder(folder)) {
        return true;
    }
    if (!makePrivateFolder(folder.parent_path())) {
        return false;
    }
    if (::mkdir(folder.c_str(), S_IRWXU) == 0) {
        ::chmod(folder.c_str(), S_IRWXU); // A strict umask locks out the owner too.
    }
    return isFolder(folder);
}

} // namespace quib
