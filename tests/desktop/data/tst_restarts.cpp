#include "desktop/desk/deskconnection.h"
#include "desktop/desk/places.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int TasksTab = 3;
constexpr QPoint LeftOfTheCard{800 - 375, 200}; ///< In the panel's window.
constexpr QPoint BeneathTheCard{800, 310}; ///< In it too.
constexpr QPoint InTheCard = places::InTheCard; ///< Where the closed panel draws nothing either.

/// Where the panel's window draws nothing, what lies beneath is seen.
bool hasNoBlackBox(const Desk& desk)
{
    return desk.pixel(LeftOfTheCard) != QColor(Qt::black)
        && desk.pixel(BeneathTheCard) != QColor(Qt::black);
}

/// A compositor that comes or goes draws the desktop anew, piece by piece; what it ends with
/// counts.
bool endsAs(const Desk& desk, bool isOpen)
{
    return waitForLasting(isOpen ? "the open panel" : "the closed panel", [&] {
        return hasNoBlackBox(desk) && desk.pixel(places::InTheNotch) == QColor(Qt::black)
            && desk.isExpanded() == isOpen
            && (isOpen || desk.pixel(InTheCard) != QColor(Qt::black));
    });
}

void addTask(const Desk& desk, const QString& title)
{
    desk.showTab(TasksTab);
    desk.click(Desk::TaskField);
    desk.type(title);
    desk.key(u"Return"_s);
    QTRY_COMPARE(desk.savedTasks().value(0), title);
}

Program startTerminal(Desk& desk)
{
    return desk.start(u"xterm"_s, {u"-T"_s, u"terminal"_s, u"-geometry"_s, u"40x10+200+500"_s});
}

} // namespace

/// The compositor and the window manager end and come again under the running program.
class RestartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void compositorKilled_noBlackBoxShows_data();
    void compositorKilled_noBlackBoxShows();
    void compositorComes_theCardIsDrawnAgain();
    void compositorGoesInMidSpring_noBlackBoxShows();
    void windowManagerKilled_thePanelWorks();
    void windowManagerRestarted_thePanelStaysAbove_data();
    void windowManagerRestarted_thePanelStaysAbove();
    void windowManagerRestarted_theKeyboardGoesBack();
};

void RestartsTest::compositorKilled_noBlackBoxShows_data()
{
    QTest::addColumn<bool>("isOpen");

    QTest::addRow("closed") << false;
    QTest::addRow("open") << true;
}

void RestartsTest::compositorKilled_noBlackBoxShows()
{
    QFETCH(const bool, isOpen);
    Desk desk({.compositor = true});
    const auto quib = desk.startQuib();
    if (isOpen) {
        desk.openWithPointer();
        desk.click(Desk::Pin);
    }
    QVERIFY(endsAs(desk, isOpen));
    for (int round = 0; round < 2; ++round) {
        desk.killCompositor();
        QVERIFY(endsAs(desk, isOpen));

        desk.startCompositor();
        QVERIFY(endsAs(desk, isOpen));
    }
}

void RestartsTest::compositorComes_theCardIsDrawnAgain()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(TasksTab);

    desk.startCompositor();

    QVERIFY(endsAs(desk, true));
    QCOMPARE(desk.selectedTab(), TasksTab);
    desk.moveTo(Desk::FarAway);
    QVERIFY(endsAs(desk, false));
    desk.openWithPointer();
    addTask(desk, u"Composited"_s);
}

void RestartsTest::compositorGoesInMidSpring_noBlackBoxShows()
{
    Desk desk({.compositor = true});
    const auto quib = desk.startQuib();

    desk.moveTo(Desk::Notch);
    desk.killCompositor();
    QVERIFY(endsAs(desk, true));
    desk.startCompositor();
    desk.moveTo(Desk::FarAway);
    desk.killCompositor();

    QVERIFY(endsAs(desk, false));
}

void RestartsTest::windowManagerKilled_thePanelWorks()
{
    Desk desk;
    const auto quib = desk.startQuib();

    desk.killWindowManager();

    desk.openWithPointer();
    addTask(desk, u"Nobody manages windows"_s);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
}

void RestartsTest::windowManagerRestarted_thePanelStaysAbove_data()
{
    QTest::addColumn<QString>("next");

    QTest::addRow("the same") << u"openbox"_s;
    QTest::addRow("another") << u"xfwm4 --compositor=off"_s;
}

void RestartsTest::windowManagerRestarted_thePanelStaysAbove()
{
    QFETCH(const QString, next);
    Desk desk;
    const auto quib = desk.startQuib();
    desk.killWindowManager();
    desk.startWindowManager(next);

    const auto window
        = desk.start(u"xterm"_s, {u"-geometry"_s, u"100x20+500+0"_s, u"-bg"_s, u"#00ff00"_s});
    QTRY_COMPARE_WITH_TIMEOUT(desk.pixel({900, 150}), QColor(Qt::green), 10'000);

    QTRY_COMPARE(desk.pixel(places::InTheNotch), QColor(Qt::black));
    desk.moveTo(Desk::Notch);
    QVERIFY(desk.waitForExpanded(true));
    addTask(desk, u"Above"_s);
    window->kill();
    window->waitForFinished();
}

void RestartsTest::windowManagerRestarted_theKeyboardGoesBack()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.killWindowManager();
    desk.startWindowManager();
    const auto terminal = startTerminal(desk);
    QVERIFY(desk.waitForFront(u"terminal"_s));

    desk.openWithPointer();
    addTask(desk, u"Typed here"_s);
    desk.moveTo(Desk::FarAway);

    QVERIFY(desk.waitForExpanded(false));
    QVERIFY(desk.waitForFront(u"terminal"_s));
    terminal->kill();
    terminal->waitForFinished();
}

QTEST_GUILESS_MAIN(RestartsTest)
#include "tst_restarts.moc"
