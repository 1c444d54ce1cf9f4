#pragma once

#include <QString>

#include <array>

namespace quib {

/// The players that now playing knows.
enum class Player { Spotify, Music };

/// The preferred one first.
inline constexpr std::array Players{Player::Spotify, Player::Music};

/// What scripts and views call the player.
QString rawText(Player player);
/// By which macOS finds the player.
QString bundleIdentifier(Player player);

} // namespace quib
