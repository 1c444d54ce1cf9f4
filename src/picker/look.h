#pragma once

#include <QString>

namespace quib {

/// Dresses the windows of this program in the colours and letters of the panel, and finds icons
/// where the desktop names no theme. Needs a QApplication.
void wearOurLook(const QString& fontFamily);

} // namespace quib
