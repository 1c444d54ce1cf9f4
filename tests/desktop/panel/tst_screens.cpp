#include "desktop/desk/desk.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int TasksTab = 3;

/// The notch hangs there, black, and beside it is what lies beneath.
bool hasNotchAt(const Desk& desk, QPoint topCentre)
{
    const auto at = [&](int x) { return desk.pixel(topCentre + QPoint(x, 12)); };
    return at(0) == QColor(Qt::black) && at(-80) == QColor(Qt::black) && at(80) == QColor(Qt::black)
        && at(-120) != QColor(Qt::black) && at(120) != QColor(Qt::black);
}

bool hasCardAt(const Desk& desk, QPoint topCentre)
{
    return desk.pixel(topCentre + QPoint(0, 287)) == QColor(Qt::black)
        && desk.pixel(topCentre + QPoint(-300, 287)) == QColor(Qt::black)
        && desk.pixel(topCentre + QPoint(300, 287)) == QColor(Qt::black);
}

/// To the right of the first one.
void addScreen(Desk& desk)
{
    desk.setScreens({u"--addmode"_s, u"DUMMY1"_s, u"1280x720"_s});
    desk.setScreens(
        {u"--output"_s, u"DUMMY1"_s, u"--mode"_s, u"1280x720"_s, u"--right-of"_s, u"DUMMY0"_s});
    desk.setScreens({}); // Makes the server look: until then it says that nothing is plugged in.
}

} // namespace

/// Screens that come, go, turn and change their size under the running program.
class ScreensTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void otherSize_thePanelFollows_data();
    void otherSize_thePanelFollows();
    void otherSize_clicksBesideTheNotch_reachTheWindowBeneath();
    void otherSizeWhileOpen_itStaysOpenAndIsPlacedAnew();
    void primaryScreenMoves_thePanelFollows();
    void screenOfTheOpenPanelIsOff_itGoesToTheOther();
    void screenGoesDuringADrag_thePanelLivesOn();
    void everyScreenOffForAMoment_itComesBack();
    void changesInARow_theLastOneCounts();
};

void ScreensTest::otherSize_thePanelFollows_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QPoint>("topCentre");

    QTest::addRow("smaller") << u"1280x720"_s << QPoint(640, 0);
    QTest::addRow("turned") << u"900x1600"_s << QPoint(450, 0);
    QTest::addRow("larger") << u"1920x1200"_s << QPoint(960, 0);
    QTest::addRow("narrower than the card") << u"640x480"_s << QPoint(320, 0);
}

void ScreensTest::otherSize_thePanelFollows()
{
    QFETCH(const QString, mode);
    QFETCH(const QPoint, topCentre);
    Desk desk({.outputs = true});
    const auto quib = desk.startQuib();

    desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--mode"_s, mode});

    QTRY_VERIFY(hasNotchAt(desk, topCentre));
    desk.moveTo(topCentre + QPoint(0, 4));
    QTRY_VERIFY(hasCardAt(desk, topCentre));
    desk.moveTo(topCentre + QPoint(0, 470));
    QTRY_VERIFY(hasNotchAt(desk, topCentre) && !hasCardAt(desk, topCentre));
    desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--mode"_s, u"1600x900"_s});
    QTRY_VERIFY(hasNotchAt(desk, {800, 0}));
}

void ScreensTest::otherSize_clicksBesideTheNotch_reachTheWindowBeneath()
{
    Desk desk({.outputs = true});
    const auto listener = desk.startListener();
    Output heard(*listener);
    const auto quib = desk.startQuib();
    desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--mode"_s, u"1280x720"_s});
    QTRY_VERIFY(hasNotchAt(desk, {640, 0}));
    heard.forget();

    desk.click({640 - 140, 25});
    desk.click({640, 200});

    QTRY_COMPARE(heard.count("ButtonPress event"), 2);
}

void ScreensTest::otherSizeWhileOpen_itStaysOpenAndIsPlacedAnew()
{
    Desk desk({.outputs = true});
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(TasksTab);
    desk.click(Desk::Pin);
    desk.click(Desk::TaskField);

    desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--mode"_s, u"1280x720"_s});

    QTRY_VERIFY(hasCardAt(desk, {640, 0}));
    desk.type(u"Typed on a smaller screen"_s); // The keyboard is still its.
    desk.key(u"Return"_s);
    QTRY_COMPARE(desk.savedTasks().value(0), u"Typed on a smaller screen"_s);
    QVERIFY(hasCardAt(desk, {640, 0}));
}

void ScreensTest::primaryScreenMoves_thePanelFollows()
{
    Desk desk({.outputs = true});
    const auto quib = desk.startQuib();

    addScreen(desk);
    QTRY_VERIFY(hasNotchAt(desk, {800, 0}));
    desk.setScreens({u"--output"_s, u"DUMMY1"_s, u"--primary"_s});
    QTRY_VERIFY(hasNotchAt(desk, {1600 + 640, 0}));
    QVERIFY(desk.pixel(places::InTheNotch) != QColor(Qt::black));

    desk.setScreens({u"--output"_s, u"DUMMY1"_s, u"--left-of"_s, u"DUMMY0"_s});
    QTRY_VERIFY(hasNotchAt(desk, {640, 0}));
    desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--primary"_s});
    QTRY_VERIFY(hasNotchAt(desk, {1280 + 800, 0}));
}

void ScreensTest::screenOfTheOpenPanelIsOff_itGoesToTheOther()
{
    Desk desk({.outputs = true});
    addScreen(desk);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(TasksTab);
    desk.click(Desk::Pin);

    desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--off"_s});

    QTRY_VERIFY(hasCardAt(desk, {640, 0}));
    desk.click({640 - 200, 60}); // Its field.
    desk.type(u"Typed on the other screen"_s);
    desk.key(u"Return"_s);
    QTRY_COMPARE(desk.savedTasks().value(0), u"Typed on the other screen"_s);
}

void ScreensTest::screenGoesDuringADrag_thePanelLivesOn()
{
    Desk desk({.outputs = true});
    addScreen(desk);
    const auto quib = desk.startQuib();
    desk.moveTo({800, 300});
    desk.button(u"down"_s);
    desk.moveTo(Desk::Notch); // As with a file in the hand.
    QVERIFY(desk.waitForExpanded(true));

    desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--off"_s});
    QTRY_VERIFY(hasCardAt(desk, {640, 0}));
    desk.button(u"up"_s);
    desk.moveTo({640, 600});

    QTRY_VERIFY(!hasCardAt(desk, {640, 0}));
    QTRY_VERIFY(hasNotchAt(desk, {640, 0}));
}

void ScreensTest::everyScreenOffForAMoment_itComesBack()
{
    Desk desk({.outputs = true});
    const auto quib = desk.startQuib();

    desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--off"_s});
    desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--mode"_s, u"1280x720"_s});

    QTRY_VERIFY(hasNotchAt(desk, {640, 0}));
    desk.moveTo({640, 4});
    QTRY_VERIFY(hasCardAt(desk, {640, 0}));
    QCOMPARE(quib->state(), QProcess::Running);
}

void ScreensTest::changesInARow_theLastOneCounts()
{
    Desk desk({.outputs = true});
    const auto quib = desk.startQuib();

    for (int round = 0; round < 5; ++round) {
        for (const auto& mode : {u"640x480"_s, u"900x1600"_s, u"1280x720"_s}) {
            desk.setScreens({u"--output"_s, u"DUMMY0"_s, u"--mode"_s, mode});
        }
    }

    QTRY_VERIFY(hasNotchAt(desk, {640, 0}));
    desk.moveTo({640, 4});
    QTRY_VERIFY(hasCardAt(desk, {640, 0}));
}

QTEST_GUILESS_MAIN(ScreensTest)
#include "tst_screens.moc"
