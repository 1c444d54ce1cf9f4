#include "integrations/media/player.h"

using namespace Qt::StringLiterals;

namespace quib {

QString rawText(Player player)
{
    switch (player) {
    case Player::Spotify: return u"Spotify"_s;
    case Player::Music: return u"Music"_s;
    }
    Q_UNREACHABLE();
}

QString bundleIdentifier(Player player)
{
    switch (player) {
    case Player::Spotify: return u"com.spotify.client"_s;
    case Player::Music: return u"com.apple.Music"_s;
    }
    Q_UNREACHABLE();
}

} // namespace quib
