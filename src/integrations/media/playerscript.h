#pragma once

#include "integrations/media/player.h"

namespace quib {

/// The AppleScript sources that the PlayerLink of macOS runs.

/// Returns "title||artist||state", or nothing when the player is stopped. Running it launches a
/// player that does not run.
QString refreshScript(Player player);
/// Sends one verb, such as "playpause".
QString commandScript(Player player, const QString& verb);

} // namespace quib
