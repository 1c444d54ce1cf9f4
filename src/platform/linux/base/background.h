#pragma once

namespace quib {

/// Makes the calling thread one of utility priority: it gets the processor, and with it the disk,
/// after those whom somebody waits for. For good, since only the system's owner may go back.
void enterBackground();

} // namespace quib
