#include "platform/linux/eds/edsplugin.h"

#include "platform/linux/eds/edsthread.h"

#include <utility>

namespace quib {

std::unique_ptr<EdsCalendars> EdsPluginObject::open(std::function<void()> changed)
{
    return std::make_unique<EdsThread>(std::move(changed));
}

} // namespace quib
