#include "integrations/media/playerscript.h"

using namespace Qt::StringLiterals;

namespace quib {

namespace {

QString tell(Player player)
{
    return u"tell application \""_s + rawText(player) + u'"';
}

} // namespace

QString refreshScript(Player player)
{
    return tell(player) + uR"(
    if player state is stopped then return ""
    set s to (player state as string)
    return (name of current track) & "||" & (artist of current track) & "||" & s
end tell)"_s;
}

QString commandScript(Player player, const QString& verb)
{
    return tell(player) + u" to "_s + verb;
}

} // namespace quib
