#include "platform/linux/fakeplayer.h"
#include "platform/linux/mprisplayerlink.h"
#include "support/playerreply.h"

#include <QDBusVariant>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace quib;

using Texts = QStringList;

class MprisPlayerLinkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void query_givesWhatPlays_data();
    void query_givesWhatPlays();
    void query_strangeProperties_givesWhatIsRight_data();
    void query_strangeProperties_givesWhatIsRight();
    void query_playerRefuses_givesNothing();
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

private:
    static QVariantMap playing(const QVariantMap& track);
};

QVariantMap MprisPlayerLinkTest::playing(const QVariantMap& track)
{
    return {{u"PlaybackStatus"_s, u"Playing"_s}, {u"Metadata"_s, track}};
}

void MprisPlayerLinkTest::query_givesWhatPlays_data()
{
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<QString>("reply");

    const auto title = u"xesam:title"_s;
    const auto artist = u"xesam:artist"_s;
    const auto url = u"xesam:url"_s;
    const QVariantMap track{{title, u"So What"_s}, {artist, Texts{u"Miles"_s, u"Bill"_s}}};
    QTest::addRow("playing") << playing(track) << u"So What||Miles, Bill||playing"_s;
    QTest::addRow("paused") << QVariantMap{{u"PlaybackStatus"_s, u"Paused"_s},
                                           {u"Metadata"_s, track}}
                            << u"So What||Miles, Bill||paused"_s;
    QTest::addRow("stopped") << QVariantMap{{u"PlaybackStatus"_s, u"Stopped"_s},
                                            {u"Metadata"_s, track}}
                             << QString();
    QTest::addRow("nothing about the track") << playing({}) << u"||||playing"_s;
    QTest::addRow("no track at all")
        << QVariantMap{{u"PlaybackStatus"_s, u"Playing"_s}} << u"||||playing"_s;
    QTest::addRow("no artist") << playing({{title, u"Rain"_s}, {artist, Texts{}}})
                               << u"Rain||||playing"_s;
    QTest::addRow("an artist without a list")
        << playing({{title, u"Rain"_s}, {artist, u"Nature"_s}}) << u"Rain||Nature||playing"_s;
    QTest::addRow("empty artists")
        << playing({{title, u"Rain"_s}, {artist, Texts{u""_s, u"A"_s, u""_s}}})
        << u"Rain||A||playing"_s;
    QTest::addRow("a file without a title")
        << playing({{title, u""_s}, {url, u"file:///home/ada/a%20b%23%C3%BC.mp3"_s}})
        << u"a b#ü.mp3||||playing"_s;
    QTest::addRow("an address without a title")
        << playing({{url, u"https://x.org/live.ogg?token=a/b#c"_s}}) << u"live.ogg||||playing"_s;
    QTest::addRow("an address without a file")
        << playing({{url, u"https://x.org/"_s}}) << u"||||playing"_s;
    QTest::addRow("a blank title")
        << playing({{title, u" \t"_s}, {url, u"file:///a.mp3"_s}}) << u"a.mp3||||playing"_s;
    QTest::addRow("the mark in the title") << playing({{title, u"A||B"_s}}) << u"A||B||||playing"_s;
    QTest::addRow("line breaks") << playing({{title, u"A\nB\r\nC"_s}, {artist, Texts{u"D\nE"_s}}})
                                 << u"A B C||D E||playing"_s;
}

void MprisPlayerLinkTest::query_givesWhatPlays()
{
    QFETCH(const QVariantMap, properties);
    FakePlayer player(u"example"_s);
    player.properties = properties;
    QVERIFY(player.start());
    MprisPlayerLink link;
    QTRY_VERIFY(link.isRunning(Player::Music));

    QTEST(replyOf(link, Player::Music), "reply");
    QCOMPARE(player.calls, Texts(u"GetAll"_s));
}

void MprisPlayerLinkTest::query_strangeProperties_givesWhatIsRight_data()
{
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<QString>("reply");

    const auto title = u"xesam:title"_s;
    const auto artist = u"xesam:artist"_s;
    const auto url = u"xesam:url"_s;
    const auto status = u"PlaybackStatus"_s;
    const auto metadata = u"Metadata"_s;
    const auto path = QVariant::fromValue(QDBusObjectPath(u"/a"_s));
    const auto nested = QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(1))));
    const auto megabyte = 1 << 20;
    const auto nothing = u"||||playing"_s;
    QTest::addRow("nothing said") << QVariantMap{} << QString();
    QTest::addRow("a state that is a number") << QVariantMap{{status, 1}} << QString();
    QTest::addRow("an unknown state") << QVariantMap{{status, u"playing"_s}} << QString();
    QTest::addRow("a track that is a number")
        << QVariantMap{{status, u"Playing"_s}, {metadata, 7}} << nothing;
    QTest::addRow("a track that is a list")
        << QVariantMap{{status, u"Playing"_s}, {metadata, Texts{u"a"_s, u"b"_s}}} << nothing;
    QTest::addRow("a track that is a list of anything")
        << QVariantMap{{status, u"Playing"_s}, {metadata, QVariantList{1, u"b"_s}}} << nothing;
    QTest::addRow("a track that is bytes")
        << QVariantMap{{status, u"Playing"_s}, {metadata, "abc"_ba}} << nothing;
    QTest::addRow("a track in a box in a box")
        << QVariantMap{{status, u"Playing"_s}, {metadata, nested}} << nothing;
    QTest::addRow("a title that is a number") << playing({{title, 5}, {artist, 6}}) << nothing;
    QTest::addRow("a title that is a list")
        << playing({{title, Texts{u"a"_s}}, {url, Texts{u"b"_s}}}) << nothing;
    QTest::addRow("a title that is bytes, an artist that is a path")
        << playing({{title, "abc"_ba}, {artist, path}}) << nothing;
    QTest::addRow("artists that are numbers")
        << playing({{title, u"A"_s}, {artist, QVariantList{1, 2}}}) << u"A||||playing"_s;
    QTest::addRow("a title of a megabyte")
        << playing({{title, QString(megabyte, u'x')}}) << QString(300, u'x') + nothing;
    QTest::addRow("a title cut in the middle of a sign")
        << playing({{title, u"x"_s + u"🦊"_s.repeated(500)}})
        << u"x"_s + u"🦊"_s.repeated(149) + nothing;
    QTest::addRow("an artist of a megabyte") << playing({{artist, Texts{QString(megabyte, u'x')}}})
                                             << u"||"_s + QString(300, u'x') + u"||playing"_s;
    QTest::addRow("an address of a megabyte")
        << playing({{url, u"file:///"_s + QString(megabyte, u'x')}}) << nothing;
    QTest::addRow("a thousand artists")
        << playing({{artist, Texts(u"ab"_s.repeated(500).split(u'a'))}})
        << u"||"_s + u"b, "_s.repeated(39).chopped(2) + u"||playing"_s;
}

void MprisPlayerLinkTest::query_strangeProperties_givesWhatIsRight()
{
    query_givesWhatPlays();
}

void MprisPlayerLinkTest::query_playerRefuses_givesNothing()
{
    FakePlayer player(u"example"_s);
    player.refuses = true;
    QVERIFY(player.start());
    MprisPlayerLink link;
    QTRY_VERIFY(link.isRunning(Player::Music));

    QCOMPARE(replyOf(link, Player::Music), QString());
}

void MprisPlayerLinkTest::query_noPlayer_givesNothingLater()
{
    MprisPlayerLink link;
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
    MprisPlayerLink link;
    QTRY_VERIFY(link.isRunning(Player::Spotify));
    Texts answers;
    const auto note = [&answers](const QString& reply) { answers << reply; };

    kill(pid_t(process.processId()), SIGSTOP);
    link.query(Player::Spotify, note);
    link.send(Player::Spotify, u"playpause"_s);
    link.query(Player::Music, note);
    QTRY_COMPARE(answers.size(), 2);
    kill(pid_t(process.processId()), SIGCONT);

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
    MprisPlayerLink link;
    QTRY_VERIFY(link.isRunning(Player::Spotify));

    Texts answers;

    kill(pid_t(process.processId()), SIGSTOP);
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
    auto link = std::make_unique<MprisPlayerLink>();
    QTRY_VERIFY(link->isRunning(Player::Music));
    int answers = 0;
    const auto count = [&answers](const QString& /*reply*/) { ++answers; };

    link->query(Player::Music, count);
    link->query(Player::Spotify, count);
    link.reset();

    QTRY_COMPARE(player.calls, Texts(u"GetAll"_s));
    MprisPlayerLink another;
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
    MprisPlayerLink link;
    QTRY_VERIFY(link.isRunning(Player::Music));

    link.send(Player::Spotify, verb);
    link.send(Player::Music, u"quit"_s);
    link.send(Player::Music, verb);

    QTRY_COMPARE(player.calls, Texts(method));
}

void MprisPlayerLinkTest::isRunning_followsTheBus()
{
    MprisPlayerLink link;
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

    MprisPlayerLink link;
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
    other.properties = playing({{u"xesam:title"_s, u"Other"_s}});
    QVERIFY(other.start());
    MprisPlayerLink link;
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
    MprisPlayerLink link;
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
    MprisPlayerLink link;
    const QSignalSpy named(&link, &PlayerLink::playersNamed);
    QTRY_COMPARE(named.size(), 1);

    QVERIFY(!link.isRunning(Player::Music));
    link.send(Player::Music, u"playpause"_s);
    QCOMPARE(replyOf(link, Player::Music), QString());

    QCOMPARE(browser.calls + twin.calls + phone.calls, Texts());
}

void MprisPlayerLinkTest::noBus_nothingPlays()
{
    MprisPlayerLink link{QDBusConnection(u"none"_s)};
    const QSignalSpy named(&link, &PlayerLink::playersNamed);

    link.send(Player::Music, u"playpause"_s);

    QCOMPARE(replyOf(link, Player::Spotify), QString());
    QVERIFY(!link.isRunning(Player::Spotify));
    QVERIFY(!link.isRunning(Player::Music));
    QCOMPARE(named.size(), 0);
}

QTEST_GUILESS_MAIN(MprisPlayerLinkTest)
#include "tst_mprisplayerlink.moc"
