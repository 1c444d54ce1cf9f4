#include "desktop/wayland/waylanddesk.h"

#include <QTest>

using Kind = WaylandDesk::Kind;
using namespace Qt::StringLiterals;

/// Starting on a Wayland desktop.
class WaylandStartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void secondStart_opensTheFirstAndGivesItTheKeyboard_data() { addCompositors(); }
    void secondStart_opensTheFirstAndGivesItTheKeyboard();
    void withoutX_aCompositorWithLayersIsEnough_data() { addCompositors(); }
    void withoutX_aCompositorWithLayersIsEnough();
    void variableOfQt_stillChoosesX_data() { addCompositors(); }
    void variableOfQt_stillChoosesX();
};

void WaylandStartTest::secondStart_opensTheFirstAndGivesItTheKeyboard()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(3);
    desk.moveTo(WaylandDesk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    heard.forget();

    QCOMPARE(desk.runQuib(), 0);
    QVERIFY(desk.waitForExpanded(true));
    QTRY_VERIFY(heard.count("blur") > 0);
    desk.type(u"typed at once"_s);
    desk.key(u"Return"_s);

    QTRY_COMPARE(desk.savedTasks().value(0), u"typed at once"_s);
    QCOMPARE(heard.count("key"), 0);
    QVERIFY(desk.isExpanded()); // Pinned: the pointer is elsewhere.
    QCOMPARE(quib->state(), QProcess::Running);
}

void WaylandStartTest::withoutX_aCompositorWithLayersIsEnough()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind, .xwayland = false});
    SKIP_UNLESS_UP(desk);
    if (desk.hasLayers()) {
        const auto quib = desk.startQuib();
        desk.moveTo(WaylandDesk::Notch);
        QVERIFY(desk.waitForExpanded(true));
        return;
    }

    const auto quib = desk.start(WaylandDesk::quib());

    QVERIFY(quib->waitForFinished());
    QCOMPARE(quib->exitStatus(), QProcess::NormalExit);
    QCOMPARE(quib->exitCode(), 1);
    QCOMPARE(quib->readAllStandardOutput(), QByteArray());
    const auto said = quib->readAllStandardError();
    QCOMPARE(said.count('\n'), 1);
    QVERIFY2(said.startsWith("quib: "), said.constData());
}

void WaylandStartTest::variableOfQt_stillChoosesX()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto quib = desk.startQuib();
    QCOMPARE(desk.hasXPanel(), !desk.hasLayers());
    quib->terminate();
    QVERIFY(quib->waitForFinished());

    desk.setVariable(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    const auto chosen = desk.startQuib();

    QVERIFY(desk.hasXPanel());
    desk.glideTo(WaylandDesk::Notch); // The first enter after a start may be of the old pointer.
    QVERIFY(desk.waitForExpanded(true));
}

QTEST_GUILESS_MAIN(WaylandStartTest)
#include "tst_waylandstart.moc"
