#pragma once

#include "integrations/playerlink.h"
#include "platform/linux/musicplayers.h"

#include <QDBusConnection>
#include <QDBusPendingCall>

namespace quib {

/// Players on the session bus that speak MPRIS. Without a bus none runs.
class MprisPlayerLink final : public PlayerLink {
    Q_OBJECT

public:
    explicit MprisPlayerLink(QDBusConnection bus);
    MprisPlayerLink();

    bool isRunning(Player player) const override;
    void query(Player player, Reply reply) override;
    void send(Player player, const QString& verb) override;
    void launchSpotify() override;

private:
    QDBusPendingCall ask(const QString& name) const;
    void followNames();
    void listNames();

    QDBusConnection m_bus;
    MusicPlayers m_players;
};

} // namespace quib
