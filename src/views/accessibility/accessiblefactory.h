#pragma once

namespace quib {

/// From now on readers are told of windows and items in our way, also of those they know of
/// already.
void installAccessibleFactory();

} // namespace quib
