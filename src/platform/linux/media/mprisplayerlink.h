#pragma once

#include "integrations/media/playerlink.h"
#include "platform/linux/base/sessionbus.h"
#include "platform/linux/media/musicplayers.h"

#include <QDBusPendingCall>

class QDBusServiceWatcher;

namespace quib {

/// Players on the session bus that speak MPRIS. Without a bus none runs; once it is back, those
/// that are on it do.
class MprisPlayerLink final : public PlayerLink {
    Q_OBJECT

public:
    explicit MprisPlayerLink(std::shared_ptr<SessionBus> bus);
    ~MprisPlayerLink() override;
    MprisPlayerLink(const MprisPlayerLink&) = delete;
    MprisPlayerLink& operator=(const MprisPlayerLink&) = delete;

    bool isRunning(Player player) const override;
    void query(Player player, Reply reply) override;
    void send(Player player, const QString& verb) override;
    void launchSpotify() override;

private:
    QDBusPendingCall ask(const QString& name) const;
    void followPlayers();
    void forgetPlayers();
    void followNames();
    void listNames();

    std::shared_ptr<SessionBus> m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_names; ///< Null while there is no bus.
    MusicPlayers m_players;
};

} // namespace quib
