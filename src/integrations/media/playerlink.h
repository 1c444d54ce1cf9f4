#pragma once

#include "integrations/media/player.h"

#include <QObject>
#include <QString>

#include <functional>

namespace quib {

/// The music players of the desktop. Implemented once per platform; on the main thread. Nothing
/// here waits, and nothing but launchSpotify() ever starts a player.
class PlayerLink : public QObject {
    Q_OBJECT

public:
    /// "title||artist||state", where a state of "playing" plays and any other does not. Empty when
    /// the player is stopped, hung or gone.
    using Reply = std::function<void(const QString& text)>;

    /// From memory: asks nobody. False until the desktop has named its players.
    virtual bool isRunning(Player player) const = 0;
    /// Answers exactly once, later; never when this is destroyed before.
    virtual void query(Player player, Reply reply) = 0;
    /// "previous track", "playpause" or "next track"; any other verb, and a player that does not
    /// run, is passed over.
    virtual void send(Player player, const QString& verb) = 0;
    /// Does nothing where it is not installed.
    virtual void launchSpotify() = 0;

Q_SIGNALS:
    /// The desktop has named its players for the first time.
    void playersNamed();
};

} // namespace quib
