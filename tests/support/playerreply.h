#pragma once

#include "integrations/media/playerlink.h"

#include <QTest>

#include <memory>
#include <optional>

/// What the player says about itself.
inline QString replyOf(quib::PlayerLink& link, quib::Player player)
{
    const auto text = std::make_shared<std::optional<QString>>();
    link.query(player, [text](const QString& reply) { *text = reply; });
    return QTest::qWaitFor([&text] { return text->has_value(); }) ? **text
                                                                  : QStringLiteral("(no answer)");
}
