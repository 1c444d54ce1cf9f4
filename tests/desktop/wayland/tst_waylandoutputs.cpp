#include "desktop/wayland/waylanddesk.h"

#include <QTest>

using Kind = WaylandDesk::Kind;
/// Outputs that come and go.
class WaylandOutputsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void outputGoes_thePanelIsOnTheOther_data() { addCompositors(); }
    void outputGoes_thePanelIsOnTheOther();
    void outputComes_thePanelStays_data() { addCompositors(); }
    void outputComes_thePanelStays();
};

namespace {

bool opensAndCloses(const WaylandDesk& desk)
{
    const bool isSeen = waitFor("the panel", [&] { return desk.isPanelShown(); });
    desk.moveTo(WaylandDesk::FarAway);
    desk.moveTo(WaylandDesk::Notch);
    const bool hasOpened = desk.waitForExpanded(true);
    desk.moveTo(WaylandDesk::FarAway);
    return isSeen && hasOpened && desk.waitForExpanded(false);
}

} // namespace

/// Whichever of the two it is on, that one goes. What stays is at the left.
void WaylandOutputsTest::outputGoes_thePanelIsOnTheOther()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind, .outputs = 2});
    SKIP_UNLESS_UP(desk);
    const auto quib = desk.startQuib();
    QVERIFY(opensAndCloses(desk));

    for (int round = 0; round < 2; ++round) {
        for (const int kept : {1, 0}) {
            if (const auto refusal = desk.setOutputs({kept}); !refusal.isEmpty()) {
                QSKIP(qPrintable(refusal));
            }
            QVERIFY(opensAndCloses(desk));
            QCOMPARE(desk.setOutputs({0, 1}), QString());
        }
    }
    QCOMPARE(quib->state(), QProcess::Running);
}

void WaylandOutputsTest::outputComes_thePanelStays()
{
    QFETCH(const Kind, kind);
    const bool makesNewOnes = kind == Kind::Sway; // The others can only turn on what was off.
    WaylandDesk desk({.kind = kind, .outputs = makesNewOnes ? 1 : 2});
    SKIP_UNLESS_UP(desk);
    if (!makesNewOnes) {
        QCOMPARE(desk.setOutputs({0}), QString());
    }
    const auto quib = desk.startQuib();
    QVERIFY(opensAndCloses(desk));

    QCOMPARE(desk.setOutputs({0, 1}), QString());

    QVERIFY(opensAndCloses(desk));
    QCOMPARE(quib->state(), QProcess::Running);
}

QTEST_GUILESS_MAIN(WaylandOutputsTest)
#include "tst_waylandoutputs.moc"
