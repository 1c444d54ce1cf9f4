#include "desktop/wayland/waylanddesk.h"

#include <QTest>

using Kind = WaylandDesk::Kind;

/// Outputs with more pixels than points.
class WaylandScaleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void notchAndCard_areFeltWhereTheyAreSeen_data();
    void notchAndCard_areFeltWhereTheyAreSeen();
};

void WaylandScaleTest::notchAndCard_areFeltWhereTheyAreSeen_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<double>("scale");

    for (const double scale : {1.25, 1.5, 2.0}) {
        QTest::addRow("sway, scale %g", scale) << Kind::Sway << scale;
        QTest::addRow("KWin, scale %g", scale) << Kind::KWin << scale;
    }
}

/// What is seen is looked for at its place in pixels, the pointer moves in points.
void WaylandScaleTest::notchAndCard_areFeltWhereTheyAreSeen()
{
    QFETCH(const Kind, kind);
    QFETCH(const double, scale);
    constexpr QPoint LeftOfTheNotch{686, 12};
    constexpr QPoint LeftEndOfTheNotch{708, 12};
    constexpr QPoint RightEndOfTheCard{1138, 200};
    WaylandDesk desk({.kind = kind, .scale = scale});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();

    desk.click(LeftOfTheNotch);
    desk.click({800, 60});
    QTRY_COMPARE(heard.count("press"), 2);
    QVERIFY(!desk.isExpanded());

    desk.moveTo(LeftEndOfTheNotch);
    QVERIFY(desk.waitForExpanded(true));
    desk.moveTo(RightEndOfTheCard);
    desk.click(WaylandDesk::Pin);
    heard.forget();
    desk.click({800 - 375, 200});
    desk.click(RightEndOfTheCard);
    desk.click({800, 310});
    QTRY_COMPARE(heard.count("release 800,310"), 1);
    QCOMPARE(heard.count("press"), 2);
}

QTEST_GUILESS_MAIN(WaylandScaleTest)
#include "tst_waylandscale.moc"
