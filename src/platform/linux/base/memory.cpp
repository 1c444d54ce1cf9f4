#include "platform/linux/base/memory.h"

#include <features.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace quib {

#ifdef __GLIBC__

namespace {

// Else it grows to the largest block that was ever freed, and what is below stays for good.
constexpr int LargestInHeap = 256 * 1024;

} // namespace

void useOneHeap()
{
    // A heap of its own grows by single pages, each by a system call, and nobody else uses what is
    // free there.
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, LargestInHeap);
}

void trimMemory()
{
    malloc_trim(0);
}

#else

void useOneHeap() { }

void trimMemory() { }

#endif

} // namespace quib
