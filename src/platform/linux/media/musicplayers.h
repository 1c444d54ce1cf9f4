#pragma once

#include "integrations/media/player.h"

#include <QStringList>

namespace quib {

/// The music players on the bus, and who of them stands for which player. Spotify is itself. Music
/// is GNOME Music where it runs, else another player, which it stays for as long as that runs.
/// Browsers, doubles of other players and phones are no music players.
class MusicPlayers {
public:
    /// The name on the bus; empty when the player does not run.
    QString nameOf(Player player) const;

    /// Any names on the bus, new or known.
    void add(const QStringList& names);
    void remove(const QString& name);

private:
    void choose();

    QStringList m_names; ///< Sorted.
    QString m_music;
};

} // namespace quib
