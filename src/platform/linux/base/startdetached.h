#pragma once

#include <functional>
#include <future>

namespace quib {

/// Does the work on a thread that nothing waits for, neither other work nor the end of the program:
/// what hangs for ever, as on a dead disk, costs no more than that thread. Whoever must know when
/// it is done asks the future, which does not wait as it dies. The work throws nothing. No future
/// where the system has no thread to give.
std::future<void> startDetached(std::function<void()> work);

} // namespace quib
