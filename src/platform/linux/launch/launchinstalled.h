#pragma once

#include <QStringList>

namespace quib {

/// Launches the first of these desktop entries that is installed; none installed, nothing happens.
/// Returns at once: the entries are looked for on a detached thread, which may hang on a dead disk.
void launchFirstInstalled(const QStringList& entries);

} // namespace quib
