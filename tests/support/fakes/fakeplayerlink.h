#pragma once

#include "integrations/media/playerlink.h"

#include <QStringList>

#include <utility>
#include <vector>

/// Writes down what was asked of it, in order; answers when told to.
class FakePlayerLink final : public quib::PlayerLink {
public:
    QList<quib::Player> running;
    QStringList asked;

    bool isRunning(quib::Player player) const override { return running.contains(player); }
    void query(quib::Player player, Reply reply) override
    {
        asked << QStringLiteral("query ") + rawText(player);
        m_waiting.push_back(std::move(reply));
    }
    void send(quib::Player player, const QString& verb) override
    {
        asked << QStringLiteral("%1 to %2").arg(verb, rawText(player));
    }
    void launchSpotify() override { asked << QStringLiteral("launch Spotify"); }

    /// To everyone who waits.
    void answer(const QString& text)
    {
        for (const auto& reply : std::exchange(m_waiting, {})) {
            reply(text);
        }
    }

private:
    std::vector<Reply> m_waiting;
};
