#include "desktop/desk/carrying.h"
#include "desktop/wayland/waylanddesk.h"
#include "support/writefile.h"

using Kind = WaylandDesk::Kind;
using namespace Qt::StringLiterals;

namespace {

constexpr QPoint FirstTile{800 - 350 + 22 + 56, 140};

/// Whether the native window's drag is over somebody else, who has agreed to take it. Of windows of
/// X mutter tells nobody whether they have.
bool isWelcomeElsewhere(const WaylandDesk& desk, Output& heard)
{
    return heard.count("drag enter") == heard.count("drag leave")
        && (!desk.hasLayers() || heard.count("drag is welcome") > heard.count("drag is refused"));
}

void carryOntoTheShelf(const WaylandDesk& desk, Output& heard)
{
    heard.forget();
    desk.moveTo(WaylandDesk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    desk.button(true);
    QTRY_COMPARE(heard.count("drag begins"), 1);
    desk.glideTo(WaylandDesk::Notch);
    QVERIFY(desk.waitForExpanded(true));
    QTRY_COMPARE(desk.selectedTab(), 5);
    desk.glideTo(WaylandDesk::InTheCard);
    QTRY_VERIFY(isWelcomeElsewhere(desk, heard));
    desk.button(false);
    QTRY_COMPARE(heard.count("drag ended"), 1);
}

/// What is let go over a window of X before that has agreed.
bool hasFallen(Output& heard)
{
    return !QTest::currentTestFailed() && heard.count("drag ended with action 0") == 1;
}

} // namespace

/// Files carried between the shelf and native windows.
class WaylandFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fileOfANativeWindow_liesOnTheShelf_data() { addCompositors(); }
    void fileOfANativeWindow_liesOnTheShelf();
    void carriedAcross_itClosesAgain_data() { addCompositors(); }
    void carriedAcross_itClosesAgain();
    void tile_arrivesInANativeWindow_data() { addCompositors(); }
    void tile_arrivesInANativeWindow();
};

void WaylandFilesTest::fileOfANativeWindow_liesOnTheShelf()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto file = desk.folder(u"a b%20ü.txt"_s);
    const auto window = desk.startWindow({u"--maximized"_s, file});
    Output heard(*window);
    const auto quib = desk.startQuib();

    carryOntoTheShelf(desk, heard);
    for (int again = 0; again < 5 && desk.kind() == Kind::Mutter && hasFallen(heard); ++again) {
        carryOntoTheShelf(desk, heard);
    }

    QTRY_COMPARE(shelfOf(desk), QStringList{file});
    QTRY_COMPARE(heard.count("drag ended with action 1"), 1);
    QCOMPARE(desk.selectedTab(), 5);
    desk.moveTo(WaylandDesk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
}

void WaylandFilesTest::carriedAcross_itClosesAgain()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow({u"--maximized"_s, u"/a.txt"_s});
    Output heard(*window);
    const auto quib = desk.startQuib();

    desk.moveTo(WaylandDesk::FarAway);
    desk.button(true);
    QTRY_COMPARE(heard.count("drag begins"), 1);
    desk.glideTo(WaylandDesk::Notch);
    QVERIFY(desk.waitForExpanded(true));
    desk.glideTo(WaylandDesk::FarAway);
    desk.button(false);

    QTRY_COMPARE(heard.count("drag ended"), 1);
    QVERIFY(desk.waitForExpanded(false));
    QVERIFY(desk.data().isEmpty()); // Nothing has been changed.
}

void WaylandFilesTest::tile_arrivesInANativeWindow()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto file = writeFile(desk.folder(u"a.txt"_s), "x");
    desk.writeData(workspaceWithShelf({file}));
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(5);

    desk.moveTo(FirstTile);
    desk.button(true);
    desk.glideTo(WaylandDesk::FarAway);
    QTRY_VERIFY((desk.glideTo(WaylandDesk::FarAway + QPoint(8, 8)),
                 desk.glideTo(WaylandDesk::FarAway), heard.count("drag enter") > 0));
    desk.button(false);

    QTRY_COMPARE(heard.count("dropped"), 1);
    if (!desk.hasLayers() && heard.count("dropped file") == 0) {
        QSKIP("mutter gives native windows what Qt's windows of X drop without its addresses");
    }
    QCOMPARE(heard.count("dropped file://" + file.toUtf8()), 1);
    QVERIFY(desk.waitForExpanded(false));
    QCOMPARE(shelfOf(desk), QStringList{file});
}

QTEST_GUILESS_MAIN(WaylandFilesTest)
#include "tst_waylandfiles.moc"
