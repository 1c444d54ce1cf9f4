#include "integrations/mediacontroller.h"
#include "support/fakeplayerlink.h"
#include "support/handclock.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace quib;

using Track = MediaController::Track;

class MediaControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void activePlayer_isTheFirstThatRuns_data();
    void activePlayer_isTheFirstThatRuns();
    void reply_isSplit_data();
    void reply_isSplit();
    void noPlayer_noTrackAndNoQuestion();
    void both_spotifyIsPolledAndControlled();
    void startPolling_asksAtOnceThenEveryTwoSeconds();
    void startPolling_again_changesNothing();
    void stopPolling_asksNoMoreAndKeepsTheTrack();
    void startPolling_afterStopping_asksAtOnce();
    void created_asksNothing();
    void playersNamed_whilePolling_asksAgain();
    void playersNamed_whileNothingPolls_asksNothing();
    void refresh_whileAPollIsOnItsWay_followsIt();
    void refresh_wantedThrice_followsOnce();
    void stopPolling_whileAPollIsOnItsWay_asksNoMore();
    void lateReply_afterTheEnd_isDropped();
    void playerQuits_theNextPollHasNoTrack();
    void command_goesToThePlayerOfTheTrack();
    void command_withoutATrack_goesToTheRunningPlayer();
    void command_asksAQuarterSecondLater();
    void command_noPlayer_launchesSpotifyOnly();
    void trackChanged_onlyWhenItChanges();
    void properties_tellTheTrack();

private:
    /// Polls once, and has it answered.
    void poll(const QString& reply);

    std::unique_ptr<FakePlayerLink> m_link;
    std::unique_ptr<HandClock> m_time;
    std::unique_ptr<MediaController> m_media;
};

void MediaControllerTest::init()
{
    m_media.reset();
    m_link = std::make_unique<FakePlayerLink>();
    m_time = std::make_unique<HandClock>();
    m_media = std::make_unique<MediaController>(*m_link, m_time->scheduler());
}

void MediaControllerTest::poll(const QString& reply)
{
    m_media->refresh();
    m_link->answer(reply);
    m_link->asked.clear();
}

void MediaControllerTest::activePlayer_isTheFirstThatRuns_data()
{
    QTest::addColumn<QList<Player>>("running");
    QTest::addColumn<std::optional<Player>>("active");

    QTest::addRow("none") << QList<Player>{} << std::optional<Player>();
    QTest::addRow("Spotify") << QList{Player::Spotify} << std::optional(Player::Spotify);
    QTest::addRow("Music") << QList{Player::Music} << std::optional(Player::Music);
    QTest::addRow("both") << QList{Player::Music, Player::Spotify}
                          << std::optional(Player::Spotify);
}

void MediaControllerTest::activePlayer_isTheFirstThatRuns()
{
    QFETCH(const QList<Player>, running);
    QFETCH(const std::optional<Player>, active);

    m_link->running = running;

    QVERIFY(m_media->activePlayer() == active);
}

void MediaControllerTest::reply_isSplit_data()
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

void MediaControllerTest::reply_isSplit()
{
    QFETCH(const QString, reply);
    QFETCH(const std::optional<Track>, track);
    m_link->running = {Player::Music};
    poll(u"Before||Before||playing"_s);

    m_media->refresh();
    m_link->answer(reply);

    QVERIFY(m_media->track() == track);
}

void MediaControllerTest::noPlayer_noTrackAndNoQuestion()
{
    m_media->startPolling();
    m_time->advance(10s);

    QVERIFY(!m_media->track());
    QCOMPARE(m_link->asked, QStringList());
}

void MediaControllerTest::both_spotifyIsPolledAndControlled()
{
    m_link->running = {Player::Music, Player::Spotify};

    m_media->refresh();
    m_link->answer(u"A||B||paused"_s);
    m_media->command(u"playpause"_s);

    QCOMPARE(m_media->track()->player, Player::Spotify);
    QCOMPARE(m_link->asked, (QStringList{u"query Spotify"_s, u"playpause to Spotify"_s}));
}

void MediaControllerTest::startPolling_asksAtOnceThenEveryTwoSeconds()
{
    m_link->running = {Player::Music};

    m_media->startPolling();
    QCOMPARE(m_link->asked.size(), 1);
    for (int polls = 2; polls < 6; ++polls) {
        m_link->answer(u"A||B||playing"_s);
        m_time->advance(1999ms);
        QCOMPARE(m_link->asked.size(), polls - 1);
        m_time->advance(1ms);
        QCOMPARE(m_link->asked.size(), polls);
    }
}

void MediaControllerTest::startPolling_again_changesNothing()
{
    m_link->running = {Player::Music};
    m_media->startPolling();
    m_link->answer(u"A||B||playing"_s);
    m_time->advance(1s);

    m_media->startPolling();

    QCOMPARE(m_link->asked.size(), 1);
    QCOMPARE(m_time->waiting(), 1);
    m_time->advance(1s);
    QCOMPARE(m_link->asked.size(), 2);
}

void MediaControllerTest::stopPolling_asksNoMoreAndKeepsTheTrack()
{
    m_link->running = {Player::Music};
    m_media->startPolling();
    m_link->answer(u"A||B||playing"_s);
    const auto track = m_media->track();

    m_media->stopPolling();
    m_time->advance(1h);

    QVERIFY(!m_media->isPolling());
    QCOMPARE(m_link->asked.size(), 1);
    QVERIFY(m_media->track());
    QVERIFY(m_media->track() == track);
}

void MediaControllerTest::startPolling_afterStopping_asksAtOnce()
{
    m_link->running = {Player::Music};
    m_media->startPolling();
    m_link->answer(u"A||B||playing"_s);
    m_media->stopPolling();

    m_media->startPolling();

    QVERIFY(m_media->isPolling());
    QCOMPARE(m_link->asked.size(), 2);
}

void MediaControllerTest::created_asksNothing()
{
    m_link->running = {Player::Spotify};

    m_time->advance(1h);

    QVERIFY(!m_media->isPolling());
    QCOMPARE(m_link->asked, QStringList());
}

void MediaControllerTest::playersNamed_whilePolling_asksAgain()
{
    m_media->startPolling();
    m_link->running = {Player::Music};

    Q_EMIT m_link->playersNamed();

    QCOMPARE(m_link->asked, QStringList(u"query Music"_s));
}

void MediaControllerTest::playersNamed_whileNothingPolls_asksNothing()
{
    m_link->running = {Player::Music};

    Q_EMIT m_link->playersNamed();

    QCOMPARE(m_link->asked, QStringList());
}

void MediaControllerTest::refresh_whileAPollIsOnItsWay_followsIt()
{
    m_link->running = {Player::Music};
    m_media->refresh();

    m_media->refresh();
    QCOMPARE(m_link->asked.size(), 1);
    m_link->answer(u"A||B||playing"_s);
    QCOMPARE(m_link->asked.size(), 2);
    m_link->answer(u"A||B||paused"_s);

    QVERIFY(!m_media->isPlaying());
    QCOMPARE(m_link->asked.size(), 2);
}

void MediaControllerTest::refresh_wantedThrice_followsOnce()
{
    m_link->running = {Player::Music};
    m_media->startPolling();

    m_time->advance(6s);
    m_link->answer({});
    m_link->answer({});

    QCOMPARE(m_link->asked.size(), 2);
}

void MediaControllerTest::stopPolling_whileAPollIsOnItsWay_asksNoMore()
{
    m_link->running = {Player::Music};
    m_media->startPolling();
    m_time->advance(2s);

    m_media->stopPolling();
    m_link->answer(u"A||B||playing"_s);

    QCOMPARE(m_link->asked.size(), 1);
    QCOMPARE(m_media->title(), u"A"_s);
}

void MediaControllerTest::lateReply_afterTheEnd_isDropped()
{
    m_link->running = {Player::Music};
    m_media->startPolling();
    m_media->command(u"playpause"_s);

    m_media.reset();
    m_link->answer(u"A||B||playing"_s);
    m_time->advance(1h);

    QCOMPARE(m_link->asked, (QStringList{u"query Music"_s, u"playpause to Music"_s}));
}

void MediaControllerTest::playerQuits_theNextPollHasNoTrack()
{
    m_link->running = {Player::Spotify};
    poll(u"A||B||playing"_s);

    m_link->running = {};
    m_media->refresh();

    QVERIFY(!m_media->track());
    QCOMPARE(m_link->asked, QStringList());
}

void MediaControllerTest::command_goesToThePlayerOfTheTrack()
{
    m_link->running = {Player::Music};
    poll(u"A||B||playing"_s);
    m_link->running = {Player::Spotify, Player::Music};

    m_media->command(u"next track"_s);

    QCOMPARE(m_link->asked, QStringList(u"next track to Music"_s));
}

void MediaControllerTest::command_withoutATrack_goesToTheRunningPlayer()
{
    m_link->running = {Player::Music};
    poll({});
    QVERIFY(!m_media->track());

    m_media->command(u"playpause"_s);

    QCOMPARE(m_link->asked, QStringList(u"playpause to Music"_s));
}

void MediaControllerTest::command_asksAQuarterSecondLater()
{
    m_link->running = {Player::Music};
    poll(u"A||B||playing"_s);

    m_media->command(u"previous track"_s);
    m_time->advance(249ms);
    QCOMPARE(m_link->asked, QStringList(u"previous track to Music"_s));
    m_time->advance(1ms);

    QCOMPARE(m_link->asked, (QStringList{u"previous track to Music"_s, u"query Music"_s}));
}

void MediaControllerTest::command_noPlayer_launchesSpotifyOnly()
{
    m_media->command(u"playpause"_s);
    m_time->advance(1h);

    QCOMPARE(m_link->asked, QStringList(u"launch Spotify"_s));
}

void MediaControllerTest::trackChanged_onlyWhenItChanges()
{
    const QSignalSpy changes(m_media.get(), &MediaController::trackChanged);
    m_link->running = {Player::Music};

    poll({});
    QCOMPARE(changes.size(), 0);
    poll(u"A||B||playing"_s);
    poll(u"A||B||playing"_s);
    QCOMPARE(changes.size(), 1);
    m_link->running = {Player::Spotify};
    poll(u"A||B||playing"_s);
    QCOMPARE(changes.size(), 2);
    poll(u"A||B||paused"_s);
    QCOMPARE(changes.size(), 3);
}

void MediaControllerTest::properties_tellTheTrack()
{
    QVERIFY(!m_media->property("hasTrack").toBool());
    QCOMPARE(m_media->property("playerName").toString(), QString());
    m_link->running = {Player::Spotify};

    poll(u"So What||Miles Davis||playing"_s);

    QVERIFY(m_media->property("hasTrack").toBool());
    QCOMPARE(m_media->property("title").toString(), u"So What"_s);
    QCOMPARE(m_media->property("artist").toString(), u"Miles Davis"_s);
    QVERIFY(m_media->property("isPlaying").toBool());
    QCOMPARE(m_media->property("playerName").toString(), u"Spotify"_s);
}

QTEST_GUILESS_MAIN(MediaControllerTest)
#include "tst_mediacontroller.moc"
