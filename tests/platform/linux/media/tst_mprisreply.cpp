#include "platform/linux/base/connectedbus.h"
#include "platform/linux/media/fakeplayer.h"
#include "platform/linux/media/mprisplayerlink.h"
#include "support/playerreply.h"

#include <QDBusVariant>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

using Texts = QStringList;

namespace {

QVariantMap playing(const QVariantMap& track)
{
    return {{u"PlaybackStatus"_s, u"Playing"_s}, {u"Metadata"_s, track}};
}

} // namespace

/// What we make of that which a player says about itself.
class MprisReplyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void query_givesWhatPlays_data();
    void query_givesWhatPlays();
    void query_strangeProperties_givesWhatIsRight_data();
    void query_strangeProperties_givesWhatIsRight();
    void query_playerRefuses_givesNothing();
};

void MprisReplyTest::query_givesWhatPlays_data()
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

void MprisReplyTest::query_givesWhatPlays()
{
    QFETCH(const QVariantMap, properties);
    FakePlayer player(u"example"_s);
    player.properties = properties;
    QVERIFY(player.start());
    MprisPlayerLink link(connectedBus());
    QTRY_VERIFY(link.isRunning(Player::Music));

    QTEST(replyOf(link, Player::Music), "reply");
    QCOMPARE(player.calls, Texts(u"GetAll"_s));
}

void MprisReplyTest::query_strangeProperties_givesWhatIsRight_data()
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

void MprisReplyTest::query_strangeProperties_givesWhatIsRight()
{
    query_givesWhatPlays();
}

void MprisReplyTest::query_playerRefuses_givesNothing()
{
    FakePlayer player(u"example"_s);
    player.refuses = true;
    QVERIFY(player.start());
    MprisPlayerLink link(connectedBus());
    QTRY_VERIFY(link.isRunning(Player::Music));

    QCOMPARE(replyOf(link, Player::Music), QString());
}

QTEST_GUILESS_MAIN(MprisReplyTest)
#include "tst_mprisreply.moc"
