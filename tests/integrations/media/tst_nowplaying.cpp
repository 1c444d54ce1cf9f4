#include "integrations/media/mediafixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace quib;

using Track = MediaController::Track;

/// Which player counts, what it plays, and what the buttons tell it.
class NowPlayingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void activePlayer_isTheFirstThatRuns_data();
    void activePlayer_isTheFirstThatRuns();
    void reply_isSplit_data();
    void reply_isSplit();
    void both_spotifyIsPolledAndControlled();
    void playerQuits_theNextPollHasNoTrack();
    void command_goesToThePlayerOfTheTrack();
    void command_withoutATrack_goesToTheRunningPlayer();
    void command_asksAQuarterSecondLater();
    void command_noPlayer_launchesSpotifyOnly();
    void command_launchingSpotify_asksAQuarterSecondLater();
    void trackChanged_onlyWhenItChanges();
    void properties_tellTheTrack();
};

void NowPlayingTest::activePlayer_isTheFirstThatRuns_data()
{
    QTest::addColumn<QList<Player>>("running");
    QTest::addColumn<std::optional<Player>>("active");

    QTest::addRow("none") << QList<Player>{} << std::optional<Player>();
    QTest::addRow("Spotify") << QList{Player::Spotify} << std::optional(Player::Spotify);
    QTest::addRow("Music") << QList{Player::Music} << std::optional(Player::Music);
    QTest::addRow("both") << QList{Player::Music, Player::Spotify}
                          << std::optional(Player::Spotify);
}

void NowPlayingTest::activePlayer_isTheFirstThatRuns()
{
    QFETCH(const QList<Player>, running);
    QFETCH(const std::optional<Player>, active);
    MediaFixture f;

    f.link.running = running;

    QVERIFY(f.media.activePlayer() == active);
}

void NowPlayingTest::reply_isSplit_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<std::optional<Track>>("track");

    const auto none = std::optional<Track>();
    const auto track = [](const QString& title, const QString& artist, bool playing) {
        return std::optional(
            Track{.title = title, .artist = artist, .playing = playing, .player = Player::Music});
    };
    QTest::addRow("playing") << u"So What||Miles Davis||playing"_s
                             << track(u"So What"_s, u"Miles Davis"_s, true);
    QTest::addRow("paused") << u"So What||Miles Davis||paused"_s
                            << track(u"So What"_s, u"Miles Davis"_s, false);
    QTest::addRow("any other state") << u"A||B||fast forwarding"_s << track(u"A"_s, u"B"_s, false);
    QTest::addRow("the state counts to the letter")
        << u"A||B||Playing"_s << track(u"A"_s, u"B"_s, false);
    QTest::addRow("blanks belong to the state")
        << u"A||B||playing "_s << track(u"A"_s, u"B"_s, false);
    QTest::addRow("nothing known but the state") << u"||||playing"_s << track({}, {}, true);
    QTest::addRow("one stroke is a letter")
        << u"A | B||C|D||paused"_s << track(u"A | B"_s, u"C|D"_s, false);
    QTest::addRow("line breaks") << u"A\nB||C||playing"_s << track(u"A\nB"_s, u"C"_s, true);
    QTest::addRow("stopped") << QString() << none;
    QTest::addRow("the mark in the title") << u"A||B||C||playing"_s << none;
    QTest::addRow("two pieces") << u"A||playing"_s << none;
    QTest::addRow("one piece") << u"playing"_s << none;
}

void NowPlayingTest::reply_isSplit()
{
    QFETCH(const QString, reply);
    QFETCH(const std::optional<Track>, track);
    MediaFixture f;
    f.link.running = {Player::Music};
    f.poll(u"Before||Before||playing"_s);

    f.media.refresh();
    f.link.answer(reply);

    QVERIFY(f.media.track() == track);
}

void NowPlayingTest::both_spotifyIsPolledAndControlled()
{
    MediaFixture f;
    f.link.running = {Player::Music, Player::Spotify};

    f.media.refresh();
    f.link.answer(u"A||B||paused"_s);
    f.media.command(u"playpause"_s);

    QCOMPARE(f.media.track()->player, Player::Spotify);
    QCOMPARE(f.link.asked, (QStringList{u"query Spotify"_s, u"playpause to Spotify"_s}));
}

void NowPlayingTest::playerQuits_theNextPollHasNoTrack()
{
    MediaFixture f;
    f.link.running = {Player::Spotify};
    f.poll(u"A||B||playing"_s);

    f.link.running = {};
    f.media.refresh();

    QVERIFY(!f.media.track());
    QCOMPARE(f.link.asked, QStringList());
}

void NowPlayingTest::command_goesToThePlayerOfTheTrack()
{
    MediaFixture f;
    f.link.running = {Player::Music};
    f.poll(u"A||B||playing"_s);
    f.link.running = {Player::Spotify, Player::Music};

    f.media.command(u"next track"_s);

    QCOMPARE(f.link.asked, QStringList(u"next track to Music"_s));
}

void NowPlayingTest::command_withoutATrack_goesToTheRunningPlayer()
{
    MediaFixture f;
    f.link.running = {Player::Music};
    f.poll({});
    QVERIFY(!f.media.track());

    f.media.command(u"playpause"_s);

    QCOMPARE(f.link.asked, QStringList(u"playpause to Music"_s));
}

void NowPlayingTest::command_asksAQuarterSecondLater()
{
    MediaFixture f;
    f.link.running = {Player::Music};
    f.poll(u"A||B||playing"_s);

    f.media.command(u"previous track"_s);
    f.time.advance(249ms);
    QCOMPARE(f.link.asked, QStringList(u"previous track to Music"_s));
    f.time.advance(1ms);

    QCOMPARE(f.link.asked, (QStringList{u"previous track to Music"_s, u"query Music"_s}));
}

void NowPlayingTest::command_noPlayer_launchesSpotifyOnly()
{
    MediaFixture f;
    f.media.command(u"playpause"_s);
    f.time.advance(1h);

    QCOMPARE(f.link.asked, QStringList(u"launch Spotify"_s));
}

/// It may have come up by then.
void NowPlayingTest::command_launchingSpotify_asksAQuarterSecondLater()
{
    MediaFixture f;
    f.media.command(u"playpause"_s);
    f.link.running = {Player::Spotify};

    f.time.advance(249ms);
    QCOMPARE(f.link.asked, QStringList(u"launch Spotify"_s));
    f.time.advance(1ms);

    QCOMPARE(f.link.asked, (QStringList{u"launch Spotify"_s, u"query Spotify"_s}));
}

void NowPlayingTest::trackChanged_onlyWhenItChanges()
{
    MediaFixture f;
    const QSignalSpy changes(&f.media, &MediaController::trackChanged);
    f.link.running = {Player::Music};

    f.poll({});
    QCOMPARE(changes.size(), 0);
    f.poll(u"A||B||playing"_s);
    f.poll(u"A||B||playing"_s);
    QCOMPARE(changes.size(), 1);
    f.link.running = {Player::Spotify};
    f.poll(u"A||B||playing"_s);
    QCOMPARE(changes.size(), 2);
    f.poll(u"A||B||paused"_s);
    QCOMPARE(changes.size(), 3);
}

void NowPlayingTest::properties_tellTheTrack()
{
    MediaFixture f;

    QVERIFY(!f.media.property("hasTrack").toBool());
    QCOMPARE(f.media.property("playerName").toString(), QString());
    f.link.running = {Player::Spotify};

    f.poll(u"So What||Miles Davis||playing"_s);

    QVERIFY(f.media.property("hasTrack").toBool());
    QCOMPARE(f.media.property("title").toString(), u"So What"_s);
    QCOMPARE(f.media.property("artist").toString(), u"Miles Davis"_s);
    QVERIFY(f.media.property("isPlaying").toBool());
    QCOMPARE(f.media.property("playerName").toString(), u"Spotify"_s);
}

QTEST_GUILESS_MAIN(NowPlayingTest)
#include "tst_nowplaying.moc"
