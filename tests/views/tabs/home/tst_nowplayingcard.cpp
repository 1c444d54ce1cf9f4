#include "support/panel/hometab.h"

using namespace Qt::StringLiterals;
using quib::Player;
using quib::Tab;

/// What plays, and its buttons, as their user meets them.
class NowPlayingCardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<HomeTab>(); }
    void cleanup() { m_tab.reset(); }

    void card_tellsWhatPlays_data();
    void card_tellsWhatPlays();
    void buttons_sendTheirVerbs_data();
    void buttons_sendTheirVerbs();
    void waveform_movesOnlyWhilePlaying();
    void waveform_restsOutOfSight_data();
    void waveform_restsOutOfSight();

private:
    QQuickItem* part(const QString& name) { return m_tab->part(u"nowPlayingCard"_s, name); }
    QString text(const QString& name) { return m_tab->text(u"nowPlayingCard"_s, name); }

    std::unique_ptr<HomeTab> m_tab;
};

void NowPlayingCardTest::card_tellsWhatPlays_data()
{
    QTest::addColumn<std::optional<Player>>("player");
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("artist");
    QTest::addColumn<bool>("plays");

    QTest::addRow("nothing") << std::optional<Player>() << QString() << u"Music"_s
                             << u"Nothing playing"_s << u"Open Spotify or Music"_s << false;
    QTest::addRow("a track") << std::optional(Player::Spotify) << u"Song||Band||playing"_s
                             << u"Now playing · Spotify"_s << u"Song"_s << u"Band"_s << true;
    QTest::addRow("a paused track") << std::optional(Player::Music) << u"Song||Band||paused"_s
                                    << u"Now playing · Music"_s << u"Song"_s << u"Band"_s << false;
}

void NowPlayingCardTest::card_tellsWhatPlays()
{
    QFETCH(std::optional<Player>, player);
    QFETCH(QString, reply);
    QFETCH(bool, plays);

    if (player) {
        m_tab->playerSays(*player, reply);
    }

    QTEST(text(u"heading"_s), "heading");
    QTEST(text(u"title"_s), "title");
    QTEST(text(u"artist"_s), "artist");
    QCOMPARE(textOf(part(u"playPause"_s), "symbol"), plays ? u"pause.fill"_s : u"play.fill"_s);
    QCOMPARE(part(u"waveform"_s)->isVisible(), plays);
    QCOMPARE(part(u"musicNote"_s)->isVisible(), !plays);
}

void NowPlayingCardTest::buttons_sendTheirVerbs_data()
{
    QTest::addColumn<QString>("verb");

    QTest::addRow("previous") << u"previous track"_s;
    QTest::addRow("playPause") << u"playpause"_s;
    QTest::addRow("next") << u"next track"_s;
}

void NowPlayingCardTest::buttons_sendTheirVerbs()
{
    QFETCH(QString, verb);
    m_tab->playerSays(Player::Music, u"Song||Band||playing"_s);

    m_tab->click(part(QString::fromLatin1(QTest::currentDataTag())));

    QCOMPARE(m_tab->player.asked.back(), verb + u" to Music"_s);
}

void NowPlayingCardTest::waveform_movesOnlyWhilePlaying()
{
    m_tab->model.setMotionReduced(false);
    m_tab->playerSays(Player::Music, u"Song||Band||playing"_s);
    const auto* waveform = part(u"waveform"_s);
    const auto lit = [&] { return waveform->property("lit").toInt(); };
    QTRY_VERIFY(lit() < 7);

    m_tab->model.setMotionReduced(true);
    QVERIFY(!waveform->property("moves").toBool());
    QCOMPARE(lit(), 7);
    m_tab->model.setMotionReduced(false);
    QVERIFY(waveform->property("moves").toBool());
    m_tab->playerSays(Player::Music, u"Song||Band||paused"_s);
    QVERIFY(!waveform->property("moves").toBool());
}

void NowPlayingCardTest::waveform_restsOutOfSight_data()
{
    QTest::addColumn<bool>("isCollapsed");

    QTest::addRow("collapsed") << true;
    QTest::addRow("another tab") << false;
}

void NowPlayingCardTest::waveform_restsOutOfSight()
{
    QFETCH(bool, isCollapsed);
    m_tab->model.setMotionReduced(false);
    m_tab->playerSays(Player::Music, u"Song||Band||playing"_s);
    auto* timer = part(u"waveform"_s)->findChild<QObject*>(u"steps"_s);
    QVERIFY(timer->property("running").toBool());

    if (isCollapsed) {
        m_tab->model.setExpanded(false);
    } else {
        m_tab->model.setTab(Tab::Tasks);
    }

    QTRY_VERIFY(!timer->property("running").toBool());
}

QTEST_MAIN(NowPlayingCardTest)
#include "tst_nowplayingcard.moc"
