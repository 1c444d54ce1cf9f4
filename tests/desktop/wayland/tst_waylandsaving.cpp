#include "desktop/wayland/waylanddesk.h"

#include "desktop/desk/deskconnection.h"

#include <QTest>

#include <utility>

using Kind = WaylandDesk::Kind;
using namespace Qt::StringLiterals;

namespace {

/// Below the field, whose caret blinks.
QImage rowsOf(const WaylandDesk& desk)
{
    return desk.picture().copy(0, 95, 760, 195);
}

} // namespace

/// What was changed last outlives the desktop.
class WaylandSavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void compositorGoneSoonAfterAChange_leavesItOnDisk_data() { addCompositors(); }
    void compositorGoneSoonAfterAChange_leavesItOnDisk();
};

void WaylandSavingTest::compositorGoneSoonAfterAChange_leavesItOnDisk()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(3);
    QVERIFY(desk.pressField(WaylandDesk::TaskField, heard));
    desk.type(u"just now"_s);
    auto before = rowsOf(desk);
    QVERIFY(waitForLasting("rows at rest", [&] {
        const auto last = std::exchange(before, rowsOf(desk));
        return last == before;
    }));
    desk.key(u"Return"_s);
    QTRY_VERIFY(rowsOf(desk) != before);

    desk.killCompositor(); // Before the 0.4 s after which it is written anyway.

    QVERIFY(quib->waitForFinished());
    QCOMPARE(desk.savedTasks().value(0), u"just now"_s);
}

QTEST_GUILESS_MAIN(WaylandSavingTest)
#include "tst_waylandsaving.moc"
