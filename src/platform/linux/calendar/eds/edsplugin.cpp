#include "platform/linux/calendar/eds/edsplugin.h"

#include "platform/linux/calendar/eds/edsthread.h"

#include <system_error>
#include <utility>

namespace quib {

std::unique_ptr<EdsCalendars> EdsPluginObject::open(std::function<void()> changed)
{
    try {
        return std::make_unique<EdsThread>(std::move(changed));
    } catch (const std::system_error&) {
        return nullptr;
    }
}

} // namespace quib
