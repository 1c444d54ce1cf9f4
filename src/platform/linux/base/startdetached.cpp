#include "platform/linux/base/startdetached.h"

#include <system_error>
#include <thread>
#include <utility>

namespace quib {

bool startDetached(std::function<void()> work)
{
    try {
        std::thread(std::move(work)).detach();
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

} // namespace quib
