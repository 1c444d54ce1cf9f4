#pragma once

namespace quib {

/// Dresses the windows of this program in the colours of the panel, and finds icons where the
/// desktop names no theme. Needs a QApplication.
void wearOurColors();

} // namespace quib
