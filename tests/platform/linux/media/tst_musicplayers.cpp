#include "platform/linux/media/musicplayers.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

class MusicPlayersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nameOf_data();
    void nameOf();
    void noMusicPlayer_data();
    void noMusicPlayer();
    void music_staysWhileItRuns();
    void music_quits_anotherTakesItsPlace();
    void gnomeMusic_takesThePlaceOfAnother();
    void spotify_comesAndGoes_leavesMusicAlone();
    void namesNeverHeardOf_removeNothing();
};

namespace {

/// Each after the common start of their names.
QStringList names(const QString& list)
{
    QStringList all;
    for (const auto& name : list.split(u' ', Qt::SkipEmptyParts)) {
        all << u"org.mpris.MediaPlayer2."_s + name;
    }
    return all;
}

QString name(const QString& end)
{
    return names(end).value(0);
}

} // namespace

void MusicPlayersTest::nameOf_data()
{
    QTest::addColumn<QString>("running");
    QTest::addColumn<QString>("spotify");
    QTest::addColumn<QString>("music");

    QTest::addRow("none") << u""_s << u""_s << u""_s;
    QTest::addRow("Spotify") << u"spotify"_s << u"spotify"_s << u""_s;
    QTest::addRow("Spotify with a number")
        << u"spotify.instance4711"_s << u"spotify.instance4711"_s << u""_s;
    QTest::addRow("not quite Spotify")
        << u"spotifyd ncspot.instance1"_s << u""_s << u"ncspot.instance1"_s;
    QTest::addRow("GNOME Music") << u"org.gnome.Music"_s << u""_s << u"org.gnome.Music"_s;
    QTest::addRow("GNOME Music of old") << u"GnomeMusic"_s << u""_s << u"GnomeMusic"_s;
    QTest::addRow("any other") << u"mpv.instance15390"_s << u""_s << u"mpv.instance15390"_s;
    QTest::addRow("the first of others") << u"vlc rhythmbox Lollypop"_s << u""_s << u"Lollypop"_s;
    QTest::addRow("GNOME Music before others")
        << u"amarok org.gnome.Music vlc"_s << u""_s << u"org.gnome.Music"_s;
    QTest::addRow("Spotify and another") << u"amarok spotify"_s << u"spotify"_s << u"amarok"_s;
    QTest::addRow("a player beside a browser")
        << u"firefox.instance_1_84 vlc"_s << u""_s << u"vlc"_s;
    QTest::addRow("a name that only holds a browser's")
        << u"operator knowledge zenith"_s << u""_s << u"knowledge"_s;
    QTest::addRow("a name that starts with its number")
        << u".instance1"_s << u""_s << u".instance1"_s;
}

void MusicPlayersTest::nameOf()
{
    QFETCH(const QString, running);
    QFETCH(const QString, spotify);
    QFETCH(const QString, music);
    MusicPlayers players;

    players.add(names(running));

    QCOMPARE(players.nameOf(Player::Spotify), name(spotify));
    QCOMPARE(players.nameOf(Player::Music), name(music));
}

void MusicPlayersTest::noMusicPlayer_data()
{
    QTest::addColumn<QString>("name");

    for (const auto* end : {"firefox.instance_1_84",
                            "chromium.instance10",
                            "chrome.instance10",
                            "google-chrome",
                            "brave.instance10",
                            "brave-browser",
                            "edge.instance10",
                            "microsoft-edge.instance3",
                            "opera.instance1",
                            "vivaldi.instance1",
                            "epiphany",
                            "webkit.instance42-1",
                            "org.gnome.Epiphany.Sandboxed.instance-2",
                            "org.mozilla.firefox",
                            "librewolf.instance_1_9",
                            "io.gitlab.librewolf-community",
                            "waterfox.instance_1_9",
                            "floorp.instance_1_9",
                            "zen.instance_1_9",
                            "falkon.instance9",
                            "qutebrowser.instance9",
                            "plasma-browser-integration",
                            "playerctld",
                            "kdeconnect.mpris_000001",
                            "GSConnect.PixelPhone"}) {
        QTest::addRow("%s", end) << name(QString::fromLatin1(end));
    }
    QTest::addRow("another service") << u"org.freedesktop.Notifications"_s;
    QTest::addRow("a connection") << u":1.42"_s;
    QTest::addRow("no player's name") << u"org.mpris.MediaPlayer2"_s;
    QTest::addRow("another's prefix") << u"org.mpris.MediaPlayer2x.vlc"_s;
}

void MusicPlayersTest::noMusicPlayer()
{
    QFETCH(const QString, name);
    MusicPlayers players;

    players.add({name});

    QCOMPARE(players.nameOf(Player::Spotify), QString());
    QCOMPARE(players.nameOf(Player::Music), QString());
}

void MusicPlayersTest::music_staysWhileItRuns()
{
    MusicPlayers players;
    players.add(names(u"rhythmbox"_s));

    players.add(names(u"amarok vlc"_s));
    players.remove(name(u"vlc"_s));
    players.add(names(u"rhythmbox"_s));

    QCOMPARE(players.nameOf(Player::Music), name(u"rhythmbox"_s));
}

void MusicPlayersTest::music_quits_anotherTakesItsPlace()
{
    MusicPlayers players;
    players.add(names(u"rhythmbox"_s));
    players.add(names(u"vlc amarok"_s));

    players.remove(name(u"rhythmbox"_s));
    QCOMPARE(players.nameOf(Player::Music), name(u"amarok"_s));
    players.remove(name(u"amarok"_s));
    players.remove(name(u"vlc"_s));

    QCOMPARE(players.nameOf(Player::Music), QString());
}

void MusicPlayersTest::gnomeMusic_takesThePlaceOfAnother()
{
    MusicPlayers players;
    players.add(names(u"amarok"_s));

    players.add(names(u"org.gnome.Music"_s));
    QCOMPARE(players.nameOf(Player::Music), name(u"org.gnome.Music"_s));
    players.remove(name(u"org.gnome.Music"_s));

    QCOMPARE(players.nameOf(Player::Music), name(u"amarok"_s));
}

void MusicPlayersTest::spotify_comesAndGoes_leavesMusicAlone()
{
    MusicPlayers players;
    players.add(names(u"vlc"_s));

    players.add(names(u"spotify"_s));
    QCOMPARE(players.nameOf(Player::Spotify), name(u"spotify"_s));
    QCOMPARE(players.nameOf(Player::Music), name(u"vlc"_s));
    players.remove(name(u"spotify"_s));

    QCOMPARE(players.nameOf(Player::Spotify), QString());
    QCOMPARE(players.nameOf(Player::Music), name(u"vlc"_s));
}

void MusicPlayersTest::namesNeverHeardOf_removeNothing()
{
    MusicPlayers players;
    players.add(names(u"vlc"_s));

    players.remove(name(u"amarok"_s));

    QCOMPARE(players.nameOf(Player::Music), name(u"vlc"_s));
}

QTEST_APPLESS_MAIN(MusicPlayersTest)
#include "tst_musicplayers.moc"
