#include "desktop/desk/desk.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto RunningEntry = R"({"clients": [{"id": "6F1C0000-0000-4000-8000-000000000001",
    "name": "Corner Café", "status": "build", "siteURL": "", "folderPath": "", "hourlyRate": 35,
    "notes": ""}], "tasks": [], "shelf": [], "launch": [], "notes": "",
    "entries": [{"id": "6F1C0000-0000-4000-8000-000000000002", "note": "",
    "clientID": "6F1C0000-0000-4000-8000-000000000001", "start": "2026-03-02T09:00:00Z"}]})";

bool hasXInput()
{
    QFETCH_GLOBAL(const bool, xinput);
    return xinput;
}

} // namespace

/// The panel under a real pointer. All of it happens twice: where the server tells when the pointer
/// goes on, and where it is only asked.
class PanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void pushedPointer_expandsAndCollapses();
    void pointerOnTheNotch_expandsAndLeavingCollapses_data();
    void pointerOnTheNotch_expandsAndLeavingCollapses();
    void clicksBesideTheNotch_reachTheWindowBeneath();
    void clicksBesideTheCard_reachTheWindowBeneath();
    void clickElsewhere_collapsesAtOnce();
    void pinned_itStaysOpen();
    void pinned_clicksElsewhereLeaveItOpen();
    void tab_isTheSameWhenItOpensAgain();
    void runningEntry_showsWingsAndWidensTheHitArea();
    void fullScreenWindow_liesBeneathThePanel();
    void monitorsChange_thePanelFollows();
};

void PanelTest::initTestCase_data()
{
    QTest::addColumn<bool>("xinput");

    QTest::addRow("woken") << true;
    QTest::addRow("polled") << false;
}

void PanelTest::pushedPointer_expandsAndCollapses()
{
    Desk desk({.xinput = hasXInput()});
    const auto quib = desk.startQuib();

    for (int round = 0; round < 3; ++round) {
        desk.pushTo(Desk::Notch);
        QVERIFY(desk.waitForExpanded(true));
        desk.pushTo(Desk::FarAway);
        QVERIFY(desk.waitForExpanded(false));
    }
}

void PanelTest::pointerOnTheNotch_expandsAndLeavingCollapses_data()
{
    QTest::addColumn<bool>("compositor");
    QTest::addColumn<int>("scale");

    QTest::addRow("bare") << false << 1;
    QTest::addRow("composited") << true << 1;
    QTest::addRow("bare, scale 2") << false << 2;
}

void PanelTest::pointerOnTheNotch_expandsAndLeavingCollapses()
{
    QFETCH(bool, compositor);
    QFETCH(int, scale);
    Desk desk({.compositor = compositor, .scale = scale, .xinput = hasXInput()});
    const auto quib = desk.startQuib();
    QVERIFY(!desk.isExpanded());

    desk.moveTo(Desk::Notch);
    QTRY_VERIFY(desk.isExpanded() || scale == 2);
    if (scale == 2) { // A screen of 800 by 450 points.
        QTRY_COMPARE(desk.pixel({400, 287}), QColor(Qt::black));
        return;
    }

    desk.moveTo(Desk::FarAway);
    QTRY_VERIFY(!desk.isExpanded());
    QTRY_VERIFY(desk.pixel({800, 200}) != QColor(Qt::black));
}

void PanelTest::clicksBesideTheNotch_reachTheWindowBeneath()
{
    Desk desk({.xinput = hasXInput()});
    const auto listener = desk.startListener();
    Output heard(*listener);
    const auto quib = desk.startQuib();
    heard.forget();

    desk.click(Desk::BesideTheNotch);
    desk.click({Desk::InTheCard.x(), 300});

    QTRY_COMPARE(heard.count("ButtonPress event"), 2);
}

void PanelTest::clicksBesideTheCard_reachTheWindowBeneath()
{
    Desk desk({.xinput = hasXInput()});
    const auto listener = desk.startListener();
    Output heard(*listener);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.click(Desk::Pin);
    heard.forget();

    desk.click({800 - 375, 200}); // In the window of the panel, left of the card.
    desk.click(Desk::InTheCard);
    desk.click({800, 310});

    QTRY_COMPARE(heard.count("ButtonPress event"), 2);
}

void PanelTest::clickElsewhere_collapsesAtOnce()
{
    Desk desk({.xinput = hasXInput()});
    const auto listener = desk.startListener();
    const auto quib = desk.startQuib();
    desk.openWithPointer();

    desk.click(Desk::FarAway);

    QVERIFY(desk.waitForExpanded(false));
}

/// Nothing tells that nothing happens; but what is typed with the pointer away is written after
/// 0.4 s, and any collapse would have come before.
void PanelTest::pinned_itStaysOpen()
{
    Desk desk({.xinput = hasXInput()});
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(3);
    desk.click(Desk::Pin);
    desk.click(Desk::TaskField);

    desk.moveTo(Desk::FarAway);

    desk.type(u"Later"_s);
    desk.key(u"Return"_s);
    QTRY_COMPARE(desk.savedTasks().value(0), u"Later"_s);
    QVERIFY(desk.isExpanded());
}

/// A collapse would come with the click, and leave no tab to press.
void PanelTest::pinned_clicksElsewhereLeaveItOpen()
{
    Desk desk({.xinput = hasXInput()});
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.click(Desk::Pin);

    desk.click(Desk::FarAway);

    desk.showTab(4);
    QCOMPARE(desk.selectedTab(), 4);
    QVERIFY(desk.isExpanded());
}

void PanelTest::tab_isTheSameWhenItOpensAgain()
{
    Desk desk({.xinput = hasXInput()});
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(4);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));

    desk.openWithPointer();

    QTRY_COMPARE(desk.selectedTab(), 4);
}

void PanelTest::runningEntry_showsWingsAndWidensTheHitArea()
{
    Desk desk({.xinput = hasXInput()});
    desk.writeData(RunningEntry);
    const auto quib = desk.startQuib();
    const QPoint onTheWing(800 - 190, 12);
    QTRY_COMPARE(desk.pixel({800 - 185, 12}), QColor(Qt::black));

    desk.moveTo(onTheWing);

    QVERIFY(desk.waitForExpanded(true));
}

void PanelTest::fullScreenWindow_liesBeneathThePanel()
{
    Desk desk({.xinput = hasXInput()});
    const auto quib = desk.startQuib();
    const auto window = desk.start(u"xterm"_s, {u"-fullscreen"_s, u"-bg"_s, u"#00ff00"_s});
    QTRY_COMPARE(desk.pixel({1500, 2}), QColor(Qt::green));

    QCOMPARE(desk.pixel(places::InTheNotch), QColor(Qt::black));
    desk.moveTo(Desk::Notch);

    QVERIFY(desk.waitForExpanded(true));
    window->kill();
    window->waitForFinished();
}

void PanelTest::monitorsChange_thePanelFollows()
{
    Desk desk({.xinput = hasXInput()});
    const auto quib = desk.startQuib();

    desk.start(u"xrandr"_s, {u"--setmonitor"_s, u"L"_s, u"800/200x900/200+0+0"_s, u"screen"_s})
        ->waitForFinished();
    desk.start(u"xrandr"_s, {u"--setmonitor"_s, u"R"_s, u"800/200x900/200+800+0"_s, u"none"_s})
        ->waitForFinished();
    QTRY_COMPARE(desk.pixel({400, 12}), QColor(Qt::black));
    QTRY_VERIFY(desk.pixel(places::InTheNotch) != QColor(Qt::black));

    desk.start(u"xrandr"_s, {u"--delmonitor"_s, u"R"_s})->waitForFinished();
    desk.start(u"xrandr"_s, {u"--delmonitor"_s, u"L"_s})->waitForFinished();
    QTRY_COMPARE(desk.pixel(places::InTheNotch), QColor(Qt::black));
}

QTEST_GUILESS_MAIN(PanelTest)
#include "tst_panel.moc"
