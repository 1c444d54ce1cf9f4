#include "integrations/media/mediacontroller.h"

#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quib {

namespace {

constexpr auto PollInterval = 2s;
constexpr auto CommandTakesEffect = 250ms;

/// Three pieces or nothing: a title that holds the mark itself can't be told apart.
std::optional<MediaController::Track> trackFrom(Player player, const QString& reply)
{
    const auto pieces = reply.split("||"_L1);
    if (pieces.size() != 3) {
        return std::nullopt;
    }
    return MediaController::Track{.title = pieces.at(0),
                                  .artist = pieces.at(1),
                                  .playing = pieces.at(2) == "playing"_L1,
                                  .player = player};
}

} // namespace

MediaController::MediaController(PlayerLink& link, Scheduler schedule, QObject* parent)
    : QObject(parent)
    , m_link(link)
    , m_schedule(std::move(schedule))
{
    connect(&m_link, &PlayerLink::playersNamed, this, [this] {
        if (isPolling()) {
            refresh();
        }
    });
}

std::optional<Player> MediaController::activePlayer() const
{
    const auto* const found
        = std::ranges::find_if(Players, [this](Player player) { return m_link.isRunning(player); });
    return found == Players.end() ? std::nullopt : std::optional(*found);
}

void MediaController::startPolling()
{
    if (!isPolling()) {
        tick();
    }
}

void MediaController::stopPolling()
{
    m_timer.reset();
    m_afterCommand.reset();
    m_asksAgain = false;
}

void MediaController::tick()
{
    m_timer = m_schedule(PollInterval, [this] { tick(); });
    refresh();
}

void MediaController::refresh()
{
    if (m_isAsking) {
        m_asksAgain = true;
        return;
    }
    const auto player = activePlayer();
    if (!player) {
        setTrack(std::nullopt);
        return;
    }
    m_isAsking = true;
    m_link.query(*player, [self = QPointer(this), player = *player](const QString& reply) {
        if (self) {
            self->takeReply(player, reply);
        }
    });
}

void MediaController::takeReply(Player player, const QString& reply)
{
    m_isAsking = false;
    setTrack(trackFrom(player, reply));
    if (std::exchange(m_asksAgain, false)) {
        refresh();
    }
}

void MediaController::command(const QString& verb)
{
    const auto player = m_track ? m_track->player : activePlayer();
    if (player) {
        m_link.send(*player, verb);
    } else {
        m_link.launchSpotify();
    }
    m_afterCommand = m_schedule(CommandTakesEffect, [this] { refresh(); });
}

void MediaController::setTrack(std::optional<Track> track)
{
    if (m_track == track) {
        return;
    }
    m_track = std::move(track);
    Q_EMIT trackChanged();
}

} // namespace quib
