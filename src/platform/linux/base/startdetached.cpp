#include "platform/linux/base/startdetached.h"

#include <system_error>
#include <thread>
#include <utility>

namespace quib {

std::future<void> startDetached(std::function<void()> work)
{
    std::packaged_task<void()> task(std::move(work));
    auto done = task.get_future();
    try {
        std::thread(std::move(task)).detach();
    } catch (const std::system_error&) {
        return {};
    }
    return done;
}

} // namespace quib
