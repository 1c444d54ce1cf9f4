#include "desktop/wayland/waylanddesk.h"

#include <QTest>

using namespace Qt::StringLiterals;

using Kind = WaylandDesk::Kind;

/// Notch and card lie above a window that has the whole screen.
class WaylandAboveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fullScreenWindow_liesBeneathThePanel_data();
    void fullScreenWindow_liesBeneathThePanel();
};

void WaylandAboveTest::fullScreenWindow_liesBeneathThePanel_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("isThereFirst");

    QTest::addRow("sway, then the panel") << Kind::Sway << true;
    QTest::addRow("sway, after the panel") << Kind::Sway << false;
    QTest::addRow("KWin, then the panel") << Kind::KWin << true;
    QTest::addRow("KWin, after the panel") << Kind::KWin << false;
    QTest::addRow("mutter, then the panel") << Kind::Mutter << true;
    QTest::addRow("mutter, after the panel") << Kind::Mutter << false;
}

/// Pointers tell what lies above: mutter lets nobody take pictures.
void WaylandAboveTest::fullScreenWindow_liesBeneathThePanel()
{
    QFETCH(const Kind, kind);
    QFETCH(const bool, isThereFirst);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    Program window;
    if (isThereFirst) {
        window = desk.startWindow({u"--fullscreen"_s});
    }
    const auto quib = desk.startQuib();
    if (!isThereFirst) {
        window = desk.startWindow({u"--fullscreen"_s});
    }
    Output heard(*window);
    QVERIFY(heard.count("shown 1600x900") > 0);
    heard.forget();

    QCOMPARE(desk.picture().pixelColor(380, 12), QColor(Qt::black));
    desk.moveTo(WaylandDesk::Notch);
    QVERIFY(desk.waitForExpanded(true));
    desk.glideTo(WaylandDesk::InTheCard);
    desk.moveTo(WaylandDesk::FarAway + QPoint(40, 40));
    desk.moveTo(WaylandDesk::FarAway);

    QTRY_VERIFY(heard.count("motion 300,700") > 0);
    QCOMPARE(heard.count("motion 8"), 0);
    QVERIFY(desk.waitForExpanded(false));
}

QTEST_GUILESS_MAIN(WaylandAboveTest)
#include "tst_waylandabove.moc"
