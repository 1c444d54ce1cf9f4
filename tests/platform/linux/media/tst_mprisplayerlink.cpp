#include "platform/linux/base/connectedbus.h"
#include "platform/linux/media/fakeplayer.h"
#include "platform/linux/media/mprisplayerlink.h"
#include "support/playerreply.h"
#include "support/sendsignal.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace quib;

using Texts = QStringList;

/// Which players are asked and told, and those that come, go or hang.
class MprisPlayerLinkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void query_noPlayer_givesNothingLater();
    void query_hungPlayer_keepsNobodyWaiting();
    void query_playerDies_givesNothing();
    void query_linkEnds_neverAnswers();
    void send_callsThePlayer_data();
    void send_callsThePlayer();
    void isRunning_followsTheBus();
    void isRunning_playerThatWasThere_onceThePlayersAreNamed();
    void spotify_inAProcessOfItsOwn_isAskedBesideAnother();
    void firstPlayer_isKept();
    void browsersAndDoubles_areNeverCalled();
    void noBus_nothingPlays();
};

void MprisPlayerLinkTest::query_noPlayer_givesNothingLater()
{
    MprisPlayerLink link(connectedBus());
    int answers = 0;

    link.query(Player::Spotify, [&answers](const QString& reply) {
        QCOMPARE(reply, QString());
        ++answers;
    });
    QCOMPARE(answers, 0);

    QTRY_COMPARE(answers, 1);
}

void MprisPlayerLinkTest::query_hungPlayer_keepsNobodyWaiting()
{
    QProcess process;
    process.start(QStringLiteral(PLAYER_PROGRAM), {u"spotify"_s});
    QVERIFY(process.waitForReadyRead());
    FakePlayer other(u"example"_s);
    QVERIFY(other.start());
    MprisPlayerLink link(connectedBus());
    QTRY_VERIFY(link.isRunning(Player::Spotify));
    Texts answers;
    const auto note = [&answers](const QString& reply) { answers << reply; };

    sendSignal(process.processId(), SIGSTOP);
    link.query(Player::Spotify, note);
    link.send(Player::Spotify, u"playpause"_s);
    link.query(Player::Music, note);
    QTRY_COMPARE(answers.size(), 2);
    sendSignal(process.processId(), SIGCONT);

    const auto playing = u"So What||Miles Davis, Bill Evans||playing"_s;
    QCOMPARE(answers, (Texts{playing, QString()}));
    QCOMPARE(replyOf(link, Player::Spotify), playing);
    process.kill();
    process.waitForFinished();
}

void MprisPlayerLinkTest::query_playerDies_givesNothing()
{
    QProcess process;
    process.start(QStringLiteral(PLAYER_PROGRAM), {u"spotify"_s});
    QVERIFY(process.waitForReadyRead());
    MprisPlayerLink link(connectedBus());
    QTRY_VERIFY(link.isRunning(Player::Spotify));

    Texts answers;

    sendSignal(process.processId(), SIGSTOP);
    link.query(Player::Spotify, [&answers](const QString& reply) { answers << reply; });
    process.kill();

    QTRY_COMPARE(answers, Texts(QString()));
    QTRY_VERIFY(!link.isRunning(Player::Spotify));
    process.waitForFinished();
}

void MprisPlayerLinkTest::query_linkEnds_neverAnswers()
{
    FakePlayer player(u"example"_s);
    QVERIFY(player.start());
    auto link = std::make_unique<MprisPlayerLink>(connectedBus());
    QTRY_VERIFY(link->isRunning(Player::Music));
    int answers = 0;
    const auto count = [&answers](const QString& /*reply*/) { ++answers; };

    link->query(Player::Music, count);
    link->query(Player::Spotify, count);
    link.reset();

    QTRY_COMPARE(player.calls, Texts(u"GetAll"_s));
    MprisPlayerLink another(connectedBus());
    QTRY_VERIFY(another.isRunning(Player::Music)); // What was sent before has arrived.
    QCOMPARE(answers, 0);
}

void MprisPlayerLinkTest::send_callsThePlayer_data()
{
    QTest::addColumn<QString>("verb");
    QTest::addColumn<QString>("method");

    QTest::addRow("play") << u"playpause"_s << u"PlayPause"_s;
    QTest::addRow("next") << u"next track"_s << u"Next"_s;
    QTest::addRow("previous") << u"previous track"_s << u"Previous"_s;
}

void MprisPlayerLinkTest::send_callsThePlayer()
{
    QFETCH(const QString, verb);
    QFETCH(const QString, method);
    FakePlayer player(u"example"_s);
    QVERIFY(player.start());
    MprisPlayerLink link(connectedBus());
    QTRY_VERIFY(link.isRunning(Player::Music));

    link.send(Player::Spotify, verb);
    link.send(Player::Music, u"quit"_s);
    link.send(Player::Music, verb);

    QTRY_COMPARE(player.calls, Texts(method));
}

void MprisPlayerLinkTest::isRunning_followsTheBus()
{
    MprisPlayerLink link(connectedBus());
    const QSignalSpy named(&link, &PlayerLink::playersNamed);
    QTRY_COMPARE(named.size(), 1);
    QVERIFY(!link.isRunning(Player::Spotify));

    auto spotify = std::make_unique<FakePlayer>(u"spotify"_s);
    QVERIFY(spotify->start());
    QTRY_VERIFY(link.isRunning(Player::Spotify));
    QVERIFY(!link.isRunning(Player::Music));
    spotify.reset();
    QTRY_VERIFY(!link.isRunning(Player::Spotify));

    QCOMPARE(named.size(), 1);
}

void MprisPlayerLinkTest::isRunning_playerThatWasThere_onceThePlayersAreNamed()
{
    FakePlayer player(u"example"_s);
    QVERIFY(player.start());

    MprisPlayerLink link(connectedBus());
    const QSignalSpy named(&link, &PlayerLink::playersNamed);
    QVERIFY(!link.isRunning(Player::Music));
    QTRY_COMPARE(named.size(), 1);

    QVERIFY(link.isRunning(Player::Music));
    QCOMPARE(player.calls, Texts());
}

void MprisPlayerLinkTest::spotify_inAProcessOfItsOwn_isAskedBesideAnother()
{
    QProcess process;
    process.start(QStringLiteral(PLAYER_PROGRAM), {u"spotify.instance4711"_s});
    QVERIFY(process.waitForReadyRead());
    FakePlayer other(u"amarok"_s);
    other.setTitle(u"Other"_s);
    QVERIFY(other.start());
    MprisPlayerLink link(connectedBus());
    QTRY_VERIFY(link.isRunning(Player::Spotify));

    QCOMPARE(replyOf(link, Player::Spotify), u"So What||Miles Davis, Bill Evans||playing"_s);
    QCOMPARE(replyOf(link, Player::Music), u"Other||||playing"_s);
    process.kill();
    process.waitForFinished();
}

void MprisPlayerLinkTest::firstPlayer_isKept()
{
    FakePlayer first(u"vlc"_s);
    QVERIFY(first.start());
    MprisPlayerLink link(connectedBus());
    QTRY_VERIFY(link.isRunning(Player::Music));
    FakePlayer spotify(u"spotify"_s);
    FakePlayer second(u"amarok"_s);

    QVERIFY(second.start());
    QVERIFY(spotify.start());
    QTRY_VERIFY(link.isRunning(Player::Spotify)); // So it has seen the second too.
    link.send(Player::Music, u"playpause"_s);

    QTRY_COMPARE(first.calls, Texts(u"PlayPause"_s));
    QCOMPARE(second.calls, Texts());
}

void MprisPlayerLinkTest::browsersAndDoubles_areNeverCalled()
{
    FakePlayer browser(u"firefox.instance_1_84"_s);
    FakePlayer twin(u"playerctld"_s);
    FakePlayer phone(u"kdeconnect.mpris_000001"_s);
    QVERIFY(browser.start() && twin.start() && phone.start());
    MprisPlayerLink link(connectedBus());
    const QSignalSpy named(&link, &PlayerLink::playersNamed);
    QTRY_COMPARE(named.size(), 1);

    QVERIFY(!link.isRunning(Player::Music));
    link.send(Player::Music, u"playpause"_s);
    QCOMPARE(replyOf(link, Player::Music), QString());

    QCOMPARE(browser.calls + twin.calls + phone.calls, Texts());
}

void MprisPlayerLinkTest::noBus_nothingPlays()
{
    MprisPlayerLink link{std::make_shared<SessionBus>(QString())};
    const QSignalSpy named(&link, &PlayerLink::playersNamed);

    link.send(Player::Music, u"playpause"_s);

    QCOMPARE(replyOf(link, Player::Spotify), QString());
    QVERIFY(!link.isRunning(Player::Spotify));
    QVERIFY(!link.isRunning(Player::Music));
    QCOMPARE(named.size(), 0);
}

QTEST_GUILESS_MAIN(MprisPlayerLinkTest)
#include "tst_mprisplayerlink.moc"
