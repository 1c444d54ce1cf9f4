#include "wayland/waylanddesk.h"

#include <QTest>

using namespace Qt::StringLiterals;

using Kind = WaylandDesk::Kind;

/// What lies around notch and card is the window's beneath.
class WaylandClicksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clicksBesideTheNotch_reachTheWindowBeneath_data() { addCompositors(); }
    void clicksBesideTheNotch_reachTheWindowBeneath();
    void clicksBesideTheCard_reachTheWindowBeneath_data() { addCompositors(); }
    void clicksBesideTheCard_reachTheWindowBeneath();
    void everyStart_isAliveAtOnce_data() { addCompositors(); }
    void everyStart_isAliveAtOnce();
};

void WaylandClicksTest::clicksBesideTheNotch_reachTheWindowBeneath()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();
    heard.forget();

    desk.click(WaylandDesk::BesideTheNotch);
    desk.click({WaylandDesk::InTheCard.x(), 300});
    QTRY_COMPARE(heard.count("press"), 2);

    desk.openWithPointer();
    desk.moveTo(WaylandDesk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    QTRY_VERIFY((desk.click(WaylandDesk::BesideTheNotch), heard.count("press 660,25") > 1));
}

void WaylandClicksTest::clicksBesideTheCard_reachTheWindowBeneath()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.click(WaylandDesk::Pin);
    heard.forget();

    desk.click({800 - 375, 200}); // In the window of the panel, left of the card.
    desk.click(WaylandDesk::InTheCard);
    desk.click({800, 310});

    QTRY_COMPARE(heard.count("release 800,310"), 1);
    QCOMPARE(heard.count("press"), 2);
}

void WaylandClicksTest::everyStart_isAliveAtOnce()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);

    for (int start = 0; start < 6; ++start) {
        const auto quib = desk.startQuib();
        heard.forget();
        desk.click(WaylandDesk::BesideTheNotch);
        QTRY_COMPARE(heard.count("press 660,25"), 1);
        desk.moveTo(WaylandDesk::Notch);
        QVERIFY(desk.waitForExpanded(true));
        desk.moveTo(WaylandDesk::FarAway);
        quib->terminate();
        QVERIFY(quib->waitForFinished());
    }
}

QTEST_GUILESS_MAIN(WaylandClicksTest)
#include "tst_waylandclicks.moc"
