#include "integrations/media/mediafixture.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace quib;

/// When the players are asked what they play.
class MediaPollingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void created_asksNothing();
    void noPlayer_noTrackAndNoQuestion();
    void startPolling_asksAtOnceThenEveryTwoSeconds();
    void startPolling_again_changesNothing();
    void startPolling_afterStopping_asksAtOnce();
    void stopPolling_asksNoMoreAndKeepsTheTrack();
    void stopPolling_whileAPollIsOnItsWay_asksNoMore();
    void playersNamed_whilePolling_asksAgain();
    void playersNamed_whileNothingPolls_asksNothing();
    void refresh_whileAPollIsOnItsWay_followsIt();
    void refresh_wantedThrice_followsOnce();
    void lateReply_afterTheEnd_isDropped();
};

void MediaPollingTest::created_asksNothing()
{
    MediaFixture f;
    f.link.running = {Player::Spotify};

    f.time.advance(1h);

    QVERIFY(!f.media.isPolling());
    QCOMPARE(f.link.asked, QStringList());
}

void MediaPollingTest::noPlayer_noTrackAndNoQuestion()
{
    MediaFixture f;
    f.media.startPolling();
    f.time.advance(10s);

    QVERIFY(!f.media.track());
    QCOMPARE(f.link.asked, QStringList());
}

void MediaPollingTest::startPolling_asksAtOnceThenEveryTwoSeconds()
{
    MediaFixture f;
    f.link.running = {Player::Music};

    f.media.startPolling();
    QCOMPARE(f.link.asked.size(), 1);
    for (int polls = 2; polls < 6; ++polls) {
        f.link.answer(u"A||B||playing"_s);
        f.time.advance(1999ms);
        QCOMPARE(f.link.asked.size(), polls - 1);
        f.time.advance(1ms);
        QCOMPARE(f.link.asked.size(), polls);
    }
}

void MediaPollingTest::startPolling_again_changesNothing()
{
    MediaFixture f;
    f.link.running = {Player::Music};
    f.media.startPolling();
    f.link.answer(u"A||B||playing"_s);
    f.time.advance(1s);

    f.media.startPolling();

    QCOMPARE(f.link.asked.size(), 1);
    QCOMPARE(f.time.waiting(), 1);
    f.time.advance(1s);
    QCOMPARE(f.link.asked.size(), 2);
}

void MediaPollingTest::startPolling_afterStopping_asksAtOnce()
{
    MediaFixture f;
    f.link.running = {Player::Music};
    f.media.startPolling();
    f.link.answer(u"A||B||playing"_s);
    f.media.stopPolling();

    f.media.startPolling();

    QVERIFY(f.media.isPolling());
    QCOMPARE(f.link.asked.size(), 2);
}

void MediaPollingTest::stopPolling_asksNoMoreAndKeepsTheTrack()
{
    MediaFixture f;
    f.link.running = {Player::Music};
    f.media.startPolling();
    f.link.answer(u"A||B||playing"_s);
    const auto track = f.media.track();

    f.media.stopPolling();
    f.time.advance(1h);

    QVERIFY(!f.media.isPolling());
    QCOMPARE(f.link.asked.size(), 1);
    QVERIFY(f.media.track());
    QVERIFY(f.media.track() == track);
}

void MediaPollingTest::stopPolling_whileAPollIsOnItsWay_asksNoMore()
{
    MediaFixture f;
    f.link.running = {Player::Music};
    f.media.startPolling();
    f.time.advance(2s);

    f.media.stopPolling();
    f.link.answer(u"A||B||playing"_s);

    QCOMPARE(f.link.asked.size(), 1);
    QCOMPARE(f.media.title(), u"A"_s);
}

void MediaPollingTest::playersNamed_whilePolling_asksAgain()
{
    MediaFixture f;
    f.media.startPolling();
    f.link.running = {Player::Music};

    Q_EMIT f.link.playersNamed();

    QCOMPARE(f.link.asked, QStringList(u"query Music"_s));
}

void MediaPollingTest::playersNamed_whileNothingPolls_asksNothing()
{
    MediaFixture f;
    f.link.running = {Player::Music};

    Q_EMIT f.link.playersNamed();

    QCOMPARE(f.link.asked, QStringList());
}

void MediaPollingTest::refresh_whileAPollIsOnItsWay_followsIt()
{
    MediaFixture f;
    f.link.running = {Player::Music};
    f.media.refresh();

    f.media.refresh();
    QCOMPARE(f.link.asked.size(), 1);
    f.link.answer(u"A||B||playing"_s);
    QCOMPARE(f.link.asked.size(), 2);
    f.link.answer(u"A||B||paused"_s);

    QVERIFY(!f.media.isPlaying());
    QCOMPARE(f.link.asked.size(), 2);
}

void MediaPollingTest::refresh_wantedThrice_followsOnce()
{
    MediaFixture f;
    f.link.running = {Player::Music};
    f.media.startPolling();

    f.time.advance(6s);
    f.link.answer({});
    f.link.answer({});

    QCOMPARE(f.link.asked.size(), 2);
}

void MediaPollingTest::lateReply_afterTheEnd_isDropped()
{
    FakePlayerLink link;
    HandClock time;
    auto media = std::make_unique<MediaController>(link, time.scheduler());
    link.running = {Player::Music};
    media->startPolling();
    media->command(u"playpause"_s);

    media.reset();
    link.answer(u"A||B||playing"_s);
    time.advance(1h);

    QCOMPARE(link.asked, (QStringList{u"query Music"_s, u"playpause to Music"_s}));
}

QTEST_GUILESS_MAIN(MediaPollingTest)
#include "tst_mediapolling.moc"
