#include "platform/linux/autostartentry.h"

namespace quib {

bool AutostartEntry::isEnabled() const
{
    return false;
}

bool AutostartEntry::enable()
{
    return false;
}

bool AutostartEntry::disable()
{
    return false;
}

} // namespace quib
