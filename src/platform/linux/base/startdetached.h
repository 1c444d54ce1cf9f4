#pragma once

#include <functional>

namespace quib {

/// Does the work on a thread that nobody waits for. False where the system has no thread to give.
bool startDetached(std::function<void()> work);

} // namespace quib
