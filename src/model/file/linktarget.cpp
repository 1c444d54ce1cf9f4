#include "model/file/linktarget.h"

namespace quib {

namespace {

constexpr int MostLinks = 40; // As systems have it.

} // namespace

std::filesystem::path linkTarget(const std::filesystem::path& path)
{
    std::error_code error;
    auto target = std::filesystem::absolute(path, error);
    for (int links = 0; std::filesystem::is_symlink(target, error) && links < MostLinks; ++links) {
        target = target.parent_path() / std::filesystem::read_symlink(target, error);
    }
    return target;
}

} // namespace quib
