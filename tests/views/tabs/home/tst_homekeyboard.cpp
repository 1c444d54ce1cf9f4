#include "support/panel/hometab.h"
#include "support/toldtext.h"

using namespace Qt::StringLiterals;
using quib::Player;
using quib::Tab;

/// The cards of the home tab for those who use no pointer.
class HomeKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<HomeTab>(); }
    void cleanup() { m_tab.reset(); }

    void keys_beginAtPlayPause();
    void walk_goesThroughTheCardsAndBack();
    void openTasks_areOneStopAndArrowsWalk();
    void focus_withoutTheKeyboard_showsNoRing();
    void tick_goesOnToTheTaskThatTakesItsPlace();
    void tick_ofTheLastTask_goesToTheTimer_data();
    void tick_ofTheLastTask_goesToTheTimer();
    void stop_handsOverToStart();
    void timerStartedElsewhere_leavesStartBehind();
    void connect_whenAnswered_letsTheKeysGoOn_data();
    void connect_whenAnswered_letsTheKeysGoOn();
    void shortList_showsNoRing();
    void names_sayWhatIsMeant();

private:
    QQuickItem* part(const QString& card, const QString& name) { return m_tab->part(card, name); }
    quib::Store& store() const { return m_tab->store(); }
    void press(int key) const { m_tab->press(key); }
    QStringList walk(int key, int steps);

    const QString m_focus = u"focusCard"_s;
    std::unique_ptr<HomeTab> m_tab;
};

/// What the keyboard comes to at each press, with a mark where that does not show.
QStringList HomeKeyboardTest::walk(int key, int steps)
{
    QStringList names;
    for (int step = 0; step < steps; ++step) {
        press(key);
        const bool isList = m_tab->item(u"events"_s)->hasActiveFocus(); // Or a row of it.
        const bool isSeen = isList ? m_tab->item(u"ring"_s)->isVisible() : m_tab->showsFocus();
        names << (isList ? u"events"_s : m_tab->focused()) + (isSeen ? u""_s : u" unseen"_s);
    }
    return names;
}

void HomeKeyboardTest::keys_beginAtPlayPause()
{
    QCOMPARE(m_tab->focused(), u"playPause"_s);
}

void HomeKeyboardTest::walk_goesThroughTheCardsAndBack()
{
    m_tab->playerSays(Player::Spotify, u"Song||Band||playing"_s);
    m_tab->grantMany(12);
    m_tab->addTasks({u"a"_s, u"b"_s, u"c"_s});
    store().startTimer({}, {});
    m_tab->settle();

    QCOMPARE(walk(Qt::Key_Tab, 4), (QStringList{u"next"_s, u"events"_s, u"stop"_s, u"tick"_s}));
    QCOMPARE(walk(Qt::Key_Backtab, 5),
             (QStringList{u"stop"_s, u"events"_s, u"next"_s, u"playPause"_s, u"previous"_s}));
}

void HomeKeyboardTest::openTasks_areOneStopAndArrowsWalk()
{
    m_tab->addTasks({u"a"_s, u"b"_s, u"c"_s});
    const auto rows = m_tab->rows(m_focus, u"task"_s);
    ShownPanel::find(rows[0], u"tick"_s)->forceActiveFocus(Qt::TabFocusReason);

    press(Qt::Key_Up);
    QVERIFY(rows[0]->hasActiveFocus());
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QVERIFY(rows[2]->hasActiveFocus());
    QVERIFY(m_tab->showsFocus());

    press(Qt::Key_Backtab);
    QCOMPARE(m_tab->focused(), u"start"_s);
    press(Qt::Key_Tab);
    QVERIFY(rows[2]->hasActiveFocus()); // Where it was left.
}

void HomeKeyboardTest::focus_withoutTheKeyboard_showsNoRing()
{
    QVERIFY(!m_tab->showsFocus());

    m_tab->click(part(u"nowPlayingCard"_s, u"next"_s));

    QVERIFY(!m_tab->showsFocus());
    press(Qt::Key_Tab);
    QVERIFY(m_tab->showsFocus());
}

void HomeKeyboardTest::tick_goesOnToTheTaskThatTakesItsPlace()
{
    m_tab->addTasks({u"a"_s, u"b"_s, u"c"_s});
    store().startTimer({}, {});
    ShownPanel::find(m_tab->rows(m_focus, u"task"_s)[1], u"tick"_s)
        ->forceActiveFocus(Qt::TabFocusReason);

    press(Qt::Key_Space);
    press(Qt::Key_Space);

    QVERIFY(!store().data().tasks[0].done);
    QVERIFY(store().data().tasks[1].done);
    QVERIFY(store().data().tasks[2].done);
    QCOMPARE(m_tab->model.tab(), Tab::Home);
    QCOMPARE(m_tab->focused(), u"tick"_s);
    QVERIFY(m_tab->showsFocus());
}

void HomeKeyboardTest::tick_ofTheLastTask_goesToTheTimer_data()
{
    QTest::addColumn<bool>("runs");
    QTest::addColumn<QString>("next");

    QTest::addRow("a timer runs") << true << u"stop"_s;
    QTest::addRow("no timer runs") << false << u"start"_s;
}

void HomeKeyboardTest::tick_ofTheLastTask_goesToTheTimer()
{
    QFETCH(bool, runs);
    m_tab->addTasks({u"a"_s});
    if (runs) {
        store().startTimer({}, {});
    }
    part(m_focus, u"tick"_s)->forceActiveFocus(Qt::TabFocusReason);

    press(Qt::Key_Space);

    QVERIFY(store().data().tasks.front().done);
    QTEST(m_tab->focused(), "next");
    QVERIFY(m_tab->showsFocus());
}

void HomeKeyboardTest::stop_handsOverToStart()
{
    store().startTimer({}, {});
    part(m_focus, u"stop"_s)->forceActiveFocus(Qt::TabFocusReason);

    press(Qt::Key_Space);

    QVERIFY(!store().hasRunningEntry());
    QCOMPARE(m_tab->focused(), u"start"_s);
    QVERIFY(m_tab->showsFocus());
}

void HomeKeyboardTest::timerStartedElsewhere_leavesStartBehind()
{
    part(m_focus, u"start"_s)->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QCOMPARE(m_tab->model.tab(), Tab::Time);

    store().startTimer({}, {});
    m_tab->model.setTab(Tab::Home);
    press(Qt::Key_Space);

    QCOMPARE(m_tab->model.tab(), Tab::Home);
    QVERIFY(store().hasRunningEntry());
}

void HomeKeyboardTest::connect_whenAnswered_letsTheKeysGoOn_data()
{
    QTest::addColumn<bool>("isGranted");

    QTest::addRow("granted") << true;
    QTest::addRow("denied") << false;
}

void HomeKeyboardTest::connect_whenAnswered_letsTheKeysGoOn()
{
    QFETCH(bool, isGranted);
    QCOMPARE(walk(Qt::Key_Tab, 2), (QStringList{u"next"_s, u"connect"_s}));
    press(Qt::Key_Space);

    m_tab->calendars.requests.front()(isGranted);
    m_tab->settle();

    QVERIFY(!m_tab->item(u"ring"_s)->isVisible());
    press(Qt::Key_Space);
    QCOMPARE(m_tab->calendars.requests.size(), 1);
    QCOMPARE(walk(Qt::Key_Tab, 1), QStringList{u"start"_s});
    QCOMPARE(walk(Qt::Key_Backtab, 1), QStringList{u"next"_s});
}

void HomeKeyboardTest::shortList_showsNoRing()
{
    m_tab->grantMany(1);
    auto* list = m_tab->item(u"events"_s);
    list->forceActiveFocus(Qt::TabFocusReason);
    QVERIFY(!m_tab->item(u"ring"_s)->isVisible());

    m_tab->grantMany(0);
    QVERIFY(!m_tab->item(u"ring"_s)->isVisible());
}

void HomeKeyboardTest::names_sayWhatIsMeant()
{
    auto fair = m_tab->event(u"50%2 off %1"_s, -60);
    fair.isAllDay = true;
    m_tab->grant({fair, m_tab->event(u"Call"_s, 5)});
    m_tab->addTasks({QString(5000, u'w')});
    const auto events = m_tab->rows(u"todayCard"_s, u"event"_s);

    QCOMPARE(toldOf(events[0]), u"50%2 off %1, All day"_s);
    QCOMPARE(toldOf(events[1]), u"Call, "_s + textOf(ShownPanel::find(events[1], u"time"_s)));
    QCOMPARE(toldOf(m_tab->item(u"events"_s)), u"Today's events"_s);
    QCOMPARE(toldOf(part(m_focus, u"tasks"_s)), u"Open tasks"_s);
    QVERIFY(toldOf(part(m_focus, u"tick"_s)).startsWith(u"Mark done: www"_s));
    QVERIFY(toldOf(part(m_focus, u"tick"_s)).size() < 2000);
    QVERIFY(toldOf(part(m_focus, u"task"_s)).size() < 2000);
    QCOMPARE(toldOf(part(m_focus, u"start"_s)), u"Start tracking time"_s);
    QCOMPARE(toldOf(part(m_focus, u"stop"_s)), u"Stop timer"_s);
    QCOMPARE(toldOf(part(u"nowPlayingCard"_s, u"playPause"_s)), u"Play"_s);
}

QTEST_MAIN(HomeKeyboardTest)
#include "tst_homekeyboard.moc"
