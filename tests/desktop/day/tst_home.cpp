#include "desktop/desk/partners.h"

#include "desktop/desk/places.h"
#include "support/sendsignal.h"
#include "support/writefile.h"

#include <QJsonArray>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// The first two tabs with a real player, a real calendar and a real file, on a desktop.
class HomeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void player_isShownAndPaused();
    void hungPlayer_freezesNothing();
    void calendar_isConnectedAndShown();
    void website_isAddedByKeyboard();
    void shortcuts_areReadAnewEachTime();
};

namespace {

constexpr int LinksTab = 1;
constexpr QPoint PlayPause = places::PlayPause;
constexpr QPoint LeftOfItsMiddle = places::LeftInPlayPause;
constexpr QPoint ConnectCalendar = places::ConnectCalendar;
constexpr QPoint FirstEvent = places::FirstEvent; // Its bar.
constexpr QPoint EditLaunch = places::EditLaunch;
constexpr QPoint AddWebsite = places::AddWebsite;

bool isGreen(const QColor& color)
{
    return color.green() > 150 && color.red() < 120;
}

bool hasPurple(const QImage& picture, const QRect& where)
{
    for (int y = where.top(); y <= where.bottom(); ++y) {
        for (int x = where.left(); x <= where.right(); ++x) {
            const auto color = picture.pixelColor(x, y);
            if (color.blue() > 180 && color.red() > 80 && color.green() < 130) {
                return true;
            }
        }
    }
    return false;
}

/// There is a gap in the middle of its two bars.
bool offersToPause(const Desk& desk)
{
    return desk.pixel(LeftOfItsMiddle).lightness() > 200 && desk.pixel(PlayPause).lightness() < 80;
}

bool offersToPlay(const Desk& desk)
{
    return desk.pixel(LeftOfItsMiddle).lightness() > 200 && desk.pixel(PlayPause).lightness() > 200;
}

QByteArray shortcuts(const QByteArray& color)
{
    return "{\"groups\":[{\"title\":\"Work\",\"color\":\"" + color
        + "\",\"buttons\":[{\"name\":\"Site\",\"icon\":\"globe\",\"url\":\"example.com\"}]}]}";
}

} // namespace

void HomeTest::player_isShownAndPaused()
{
    Desk desk;
    const auto player = startPlayer(desk);
    QTRY_COMPARE_WITH_TIMEOUT(playbackOf(desk), u"Playing"_s, 15'000);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    QTRY_VERIFY_WITH_TIMEOUT(offersToPause(desk), 10'000);

    desk.click(PlayPause);

    QTRY_COMPARE_WITH_TIMEOUT(playbackOf(desk), u"Paused"_s, 10'000);
    QTRY_VERIFY_WITH_TIMEOUT(offersToPlay(desk), 10'000);
    desk.click(PlayPause);
    QTRY_COMPARE_WITH_TIMEOUT(playbackOf(desk), u"Playing"_s, 10'000);
    QTRY_VERIFY_WITH_TIMEOUT(offersToPause(desk), 10'000);
}

void HomeTest::hungPlayer_freezesNothing()
{
    Desk desk;
    const auto player = startPlayer(desk);
    QTRY_COMPARE_WITH_TIMEOUT(playbackOf(desk), u"Playing"_s, 15'000);
    const auto quib = desk.startQuib();
    sendSignal(player->processId(), SIGSTOP);

    desk.openWithPointer();

    QVERIFY(desk.waitForExpanded(true));
    desk.click(PlayPause);
    desk.showTab(LinksTab);
    QCOMPARE(desk.selectedTab(), LinksTab);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    sendSignal(player->processId(), SIGCONT);
}

void HomeTest::calendar_isConnectedAndShown()
{
    Desk desk;
    makeCalendar(desk, {u"Fair"_s});
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    QTRY_VERIFY(hasPurple(desk.picture(), {ConnectCalendar - QPoint(5, 5), QSize(10, 10)}));

    desk.click(ConnectCalendar);

    QTRY_VERIFY_WITH_TIMEOUT(isGreen(desk.pixel(FirstEvent)), 20'000);
}

void HomeTest::website_isAddedByKeyboard()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();

    desk.click(EditLaunch);
    desk.click(AddWebsite);
    desk.key(u"Tab"_s);
    desk.type(u"Shop.Example.COM/admin"_s);
    desk.key(u"Return"_s);

    const auto last = [&desk] {
        const auto items = desk.data().value("launch"_L1).toArray();
        return items.isEmpty() ? QJsonObject() : items.last().toObject();
    };
    QTRY_COMPARE(last().value("name"_L1).toString(), u"Shop.Example.COM"_s);
    QCOMPARE(last().value("target"_L1).toString(), u"Shop.Example.COM/admin"_s);
}

void HomeTest::shortcuts_areReadAnewEachTime()
{
    Desk desk;
    writeFile(desk.dataFolder() + u"/shortcuts.json"_s, shortcuts("purple"));
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(LinksTab);
    const QPoint button(600, 98);
    QTRY_VERIFY(desk.pixel(button) != QColor(Qt::black));
    QVERIFY(!isGreen(desk.pixel(button)));

    writeFile(desk.dataFolder() + u"/shortcuts.json"_s, shortcuts("#00ff00"));
    desk.showTab(0);
    desk.showTab(LinksTab);

    const auto isTinted = [&] {
        const auto color = desk.pixel(button);
        return color.green() > color.red() + 20 && color.green() > color.blue() + 20;
    };
    QTRY_VERIFY(isTinted());
}

QTEST_GUILESS_MAIN(HomeTest)
#include "tst_home.moc"
