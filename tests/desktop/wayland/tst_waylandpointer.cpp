#include "desktop/wayland/waylanddesk.h"

#include <QTest>

using Kind = WaylandDesk::Kind;

namespace {

/// As far from the card as where the pointer rests, but never told before.
constexpr QPoint Elsewhere = WaylandDesk::FarAway + QPoint(40, 40);

} // namespace

/// The panel under a real pointer.
class WaylandPointerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pointerOnTheNotch_expandsAndLeavingCollapses_data();
    void pointerOnTheNotch_expandsAndLeavingCollapses();
    void window_isCoveredByTheOpenCardOnly_data() { addCompositors(); }
    void window_isCoveredByTheOpenCardOnly();
    void pinned_itStaysOpen_data() { addCompositors(); }
    void pinned_itStaysOpen();
};

void WaylandPointerTest::pointerOnTheNotch_expandsAndLeavingCollapses_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("overAWindow");

    QTest::addRow("sway, bare background") << Kind::Sway << false;
    QTest::addRow("sway, over a window") << Kind::Sway << true;
    QTest::addRow("KWin, bare background") << Kind::KWin << false;
    QTest::addRow("KWin, over a window") << Kind::KWin << true;
    QTest::addRow("mutter, bare background") << Kind::Mutter << false;
    QTest::addRow("mutter, over a window") << Kind::Mutter << true;
}

void WaylandPointerTest::pointerOnTheNotch_expandsAndLeavingCollapses()
{
    QFETCH(const Kind, kind);
    QFETCH(const bool, overAWindow);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = overAWindow ? desk.startWindow() : Program();
    const auto quib = desk.startQuib();
    QVERIFY(!desk.isExpanded());

    desk.glideTo(WaylandDesk::Notch);
    QVERIFY(desk.waitForExpanded(true));
    desk.glideTo(WaylandDesk::InTheCard);
    desk.glideTo(Elsewhere);
    QVERIFY(desk.waitForExpanded(false));

    desk.moveTo(WaylandDesk::Notch);
    QVERIFY(desk.waitForExpanded(true));
    desk.moveTo(Elsewhere);
    QVERIFY(desk.waitForExpanded(false));

    desk.moveTo(WaylandDesk::Notch);
    QVERIFY(desk.waitForExpanded(true));
    desk.moveTo(WaylandDesk::InTheCard);
    desk.moveTo(Elsewhere);
    QVERIFY(desk.waitForExpanded(false));
}

void WaylandPointerTest::window_isCoveredByTheOpenCardOnly()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();

    desk.openWithPointer();
    heard.forget();
    desk.glideTo(WaylandDesk::InTheCard + QPoint(50, 50));
    desk.moveTo(Elsewhere);
    desk.moveTo(WaylandDesk::FarAway);
    QTRY_COMPARE(heard.count("motion 300,700"), 1);
    QCOMPARE(heard.count("motion 8"), 0);

    QVERIFY(desk.waitForExpanded(false));
    QTRY_VERIFY((desk.moveTo(WaylandDesk::FarAway), desk.moveTo(WaylandDesk::InTheCard),
                 heard.count("motion 800,200") > 0));
}

/// Nothing tells that nothing happens; but what the window hears of the pointer comes later than
/// what tells the panel that it has left, and any collapse would be seen by then.
void WaylandPointerTest::pinned_itStaysOpen()
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

    desk.moveTo(Elsewhere);
    desk.click(WaylandDesk::FarAway);
    QTRY_COMPARE(heard.count("release 300,700"), 1);

    desk.showTab(4);
    QVERIFY(desk.isExpanded());
    desk.click(WaylandDesk::Pin);
    desk.glideTo(Elsewhere);
    QVERIFY(desk.waitForExpanded(false));
}

QTEST_GUILESS_MAIN(WaylandPointerTest)
#include "tst_waylandpointer.moc"
