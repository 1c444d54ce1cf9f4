#pragma once

#include "integrations/media/playerlink.h"
#include "model/time/scheduler.h"

#include <QObject>

#include <memory>
#include <optional>

namespace quib {

/// The track now playing, asked for at once and then every two seconds while polling.
class MediaController : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasTrack READ hasTrack NOTIFY trackChanged)
    Q_PROPERTY(QString title READ title NOTIFY trackChanged)
    Q_PROPERTY(QString artist READ artist NOTIFY trackChanged)
    Q_PROPERTY(bool isPlaying READ isPlaying NOTIFY trackChanged)
    Q_PROPERTY(QString playerName READ playerName NOTIFY trackChanged)

public:
    using Player = quib::Player;

    /// What a player said last.
    struct Track {
        QString title;
        QString artist;
        bool playing = false;
        Player player = Player::Spotify; ///< Who answered.

        bool operator==(const Track&) const = default;
    };

    /// The link is borrowed and outlives this.
    explicit MediaController(PlayerLink& link, Scheduler schedule = scheduleOnMainLoop,
                             QObject* parent = nullptr);

    /// Absent when no player runs, or when the one that does is stopped or gives no answer. Stays
    /// as it is while nothing polls.
    const std::optional<Track>& track() const { return m_track; }
    bool hasTrack() const { return m_track.has_value(); }
    QString title() const { return m_track ? m_track->title : QString(); }
    QString artist() const { return m_track ? m_track->artist : QString(); }
    bool isPlaying() const { return m_track && m_track->playing; }
    QString playerName() const { return m_track ? rawText(m_track->player) : QString(); }
    /// The running player that is polled: Spotify where both run.
    std::optional<Player> activePlayer() const;
    bool isPolling() const { return m_timer != nullptr; }

    void startPolling();
    void stopPolling();
    /// One poll. Wanted while another is on its way, it follows that.
    void refresh();
    /// Sends "previous track", "playpause" or "next track" to the player of the track, else to the
    /// running one. Launches Spotify, and only Spotify, where none runs. Polls once, a quarter of a
    /// second later.
    Q_INVOKABLE void command(const QString& verb);

Q_SIGNALS:
    void trackChanged();

private:
    void tick();
    void takeReply(Player player, const QString& reply);
    void setTrack(std::optional<Track> track);

    PlayerLink& m_link;
    Scheduler m_schedule;
    std::optional<Track> m_track;
    std::unique_ptr<QObject> m_timer; ///< Null while nothing polls.
    std::unique_ptr<QObject> m_afterCommand;
    bool m_isAsking = false;
    bool m_asksAgain = false; ///< A poll was wanted while one was on its way.
};

} // namespace quib
