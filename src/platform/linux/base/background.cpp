#include "platform/linux/base/background.h"

#include <sys/resource.h>

namespace quib {

namespace {

constexpr int Utility = 10; // As nice(1) has it when it is not told.
constexpr id_t ThisThread = 0; // To Linux; to POSIX the whole process, which is not wanted.

} // namespace

void enterBackground()
{
    if (getpriority(PRIO_PROCESS, ThisThread) < Utility) {
        setpriority(PRIO_PROCESS, ThisThread, Utility);
    }
}

} // namespace quib
