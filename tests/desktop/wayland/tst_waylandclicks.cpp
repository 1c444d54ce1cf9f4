#include "desktop/wayland/waylanddesk.h"

#include <QTest>

using namespace Qt::StringLiterals;

using Kind = WaylandDesk::Kind;

namespace {

/// More than one where the panel has just changed: the compositor hears of its new shape when it
/// draws it.
bool clicksReach(const WaylandDesk& desk, Output& heard, QPoint point)
{
    const auto press = u"press %1,%2"_s.arg(point.x()).arg(point.y()).toLatin1();
    heard.forget();
    return waitFor("a click in the native window", [&] {
        desk.click(point);
        return heard.count(press) > 0;
    });
}

} // namespace

/// What lies around notch and card is the window's beneath.
class WaylandClicksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clicksBesideTheNotch_reachTheWindowBeneath_data() { addCompositors(); }
    void clicksBesideTheNotch_reachTheWindowBeneath();
    void clicksBesideTheCard_reachTheWindowBeneath_data() { addCompositors(); }
    void clicksBesideTheCard_reachTheWindowBeneath();
    void everyStart_isAlive_data() { addCompositors(); }
    void everyStart_isAlive();
};

void WaylandClicksTest::clicksBesideTheNotch_reachTheWindowBeneath()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();

    QVERIFY(clicksReach(desk, heard, WaylandDesk::BesideTheNotch));
    QVERIFY(clicksReach(desk, heard, {WaylandDesk::InTheCard.x(), 300}));
    QVERIFY(clicksReach(desk, heard, {800, 60}));

    desk.openWithPointer();
    desk.moveTo(WaylandDesk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    QVERIFY(clicksReach(desk, heard, WaylandDesk::BesideTheNotch));
}

void WaylandClicksTest::clicksBesideTheCard_reachTheWindowBeneath()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    // Left of the card and below it; a window of X takes clicks as far as it reaches.
    const auto beside = desk.hasLayers() ? QPoint(800 - 375, 200) : QPoint(800 - 385, 200);
    const auto below = desk.hasLayers() ? QPoint(800, 310) : QPoint(800, 340);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.click(WaylandDesk::Pin);
    heard.forget();

    QVERIFY(clicksReach(desk, heard, beside));
    desk.click(WaylandDesk::InTheCard);
    QVERIFY(clicksReach(desk, heard, below));

    QCOMPARE(heard.count("press 800,200"), 0);
    QVERIFY(desk.isExpanded());
}

void WaylandClicksTest::everyStart_isAlive()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);

    for (int start = 0; start < 6; ++start) {
        const auto quib = desk.startQuib();
        QVERIFY(clicksReach(desk, heard, WaylandDesk::BesideTheNotch));
        desk.moveTo(WaylandDesk::Notch);
        QVERIFY(desk.waitForExpanded(true));
        desk.moveTo(WaylandDesk::FarAway);
        quib->terminate();
        QVERIFY(quib->waitForFinished());
    }
}

QTEST_GUILESS_MAIN(WaylandClicksTest)
#include "tst_waylandclicks.moc"
