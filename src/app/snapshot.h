#pragma once

#include <QString>

namespace quib {

class AppDelegate;

/// Pictures of the open panel, one for each tab, without a display.
namespace Snapshot {

/// Writes "home.png" and so on into the folder, which is not made. Whatever fails leaves its
/// picture out. Leaves the model expanded on the last tab, and the data untouched. Takes 0.4 s for
/// each tab, and up to 3 s in all while icons and calendars have yet to answer; meanwhile it runs
/// the event loop.
void run(const QString& folder, AppDelegate& delegate);

} // namespace Snapshot

} // namespace quib
