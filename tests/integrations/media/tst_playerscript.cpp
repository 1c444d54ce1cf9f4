#include "integrations/media/playerscript.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

class PlayerScriptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void players_areNamedAsMacOSKnowsThem();
    void refreshScript_toTheLetter_data();
    void refreshScript_toTheLetter();
    void commandScript_toTheLetter_data();
    void commandScript_toTheLetter();
};

void PlayerScriptTest::players_areNamedAsMacOSKnowsThem()
{
    QCOMPARE(rawText(Player::Spotify), u"Spotify"_s);
    QCOMPARE(rawText(Player::Music), u"Music"_s);
    QCOMPARE(bundleIdentifier(Player::Spotify), u"com.spotify.client"_s);
    QCOMPARE(bundleIdentifier(Player::Music), u"com.apple.Music"_s);
}

void PlayerScriptTest::refreshScript_toTheLetter_data()
{
    QTest::addColumn<Player>("player");
    QTest::addColumn<QString>("firstLine");

    QTest::addRow("Spotify") << Player::Spotify << u"tell application \"Spotify\""_s;
    QTest::addRow("Music") << Player::Music << u"tell application \"Music\""_s;
}

void PlayerScriptTest::refreshScript_toTheLetter()
{
    QFETCH(const Player, player);
    QFETCH(const QString, firstLine);

    QCOMPARE(refreshScript(player),
             firstLine
                 + u"\n"
                   u"    if player state is stopped then return \"\"\n"
                   u"    set s to (player state as string)\n"
                   u"    return (name of current track) & \"||\" & (artist of current track)"
                   u" & \"||\" & s\n"
                   u"end tell"_s);
}

void PlayerScriptTest::commandScript_toTheLetter_data()
{
    QTest::addColumn<Player>("player");
    QTest::addColumn<QString>("verb");
    QTest::addColumn<QString>("script");

    QTest::addRow("play") << Player::Music << u"playpause"_s
                          << u"tell application \"Music\" to playpause"_s;
    QTest::addRow("next") << Player::Spotify << u"next track"_s
                          << u"tell application \"Spotify\" to next track"_s;
    QTest::addRow("previous") << Player::Spotify << u"previous track"_s
                              << u"tell application \"Spotify\" to previous track"_s;
}

void PlayerScriptTest::commandScript_toTheLetter()
{
    QFETCH(const Player, player);
    QFETCH(const QString, verb);

    QTEST(commandScript(player, verb), "script");
}

QTEST_APPLESS_MAIN(PlayerScriptTest)
#include "tst_playerscript.moc"
