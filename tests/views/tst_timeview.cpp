#include "support/timetab.h"

#include <QAccessible>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Tab;

/// The time tracker as its user meets it.
class TimeViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TimeTab>(); }
    void cleanup() { m_tab.reset(); }

    void start_takesTheClientAndTheNoteAsTyped();
    void start_doubleClicked_keepsTheTimer();
    void return_inTheNoteStartsForNobody();
    void stop_bringsTheChoiceBack();
    void timerStartedElsewhere_isShown();
    void timerOfADeletedClient_isNobodys();
    void emptyNote_takesNoRoom();
    void clock_turnsWithTheSecond();
    void clock_isNeverBelowZero_data();
    void clock_isNeverBelowZero();

    void outOfSight_nothingRuns_data();
    void outOfSight_nothingRuns();

    void shownAnew_theCheckMarkIsAtRestAndTheNoteStays_data();
    void shownAnew_theCheckMarkIsAtRestAndTheNoteStays();

    void tab_goesThroughEverything();
    void tab_whileATimerRuns_comesToStop();
    void keys_afterAStart_doNothing();
    void names_tellWhatIsThere();

private:
    QQuickItem* item(const QString& name) { return m_tab->item(name); }
    void type(const QString& text);
    void showAnew(const QByteArray& how);

    std::unique_ptr<TimeTab> m_tab;
};

void TimeViewTest::type(const QString& text)
{
    m_tab->click(item(u"note"_s));
    for (const auto letter : text) {
        QTest::keyClick(m_tab->window.get(), letter.toLatin1());
    }
}

void TimeViewTest::showAnew(const QByteArray& how)
{
    auto& model = m_tab->model;
    if (how == "tab") {
        model.setTab(Tab::Tasks);
        model.setTab(Tab::Time);
        return;
    }
    model.setExpanded(false);
    QTRY_VERIFY(!item(u"timeView"_s)->isVisible());
    model.setExpanded(true);
}

void TimeViewTest::start_takesTheClientAndTheNoteAsTyped()
{
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->click(item(u"timerClient"_s));
    m_tab->press(Qt::Key_Down);
    m_tab->press(Qt::Key_Return);
    QTRY_COMPARE(item(u"timerCard"_s)->property("client").toUuid(), cafe);
    type(u"  hero, \"take 2\" "_s);

    m_tab->click(item(u"start"_s));

    const auto entry = m_tab->store().runningEntry();
    QVERIFY(entry);
    QCOMPARE(entry->clientID, cafe);
    QCOMPARE(entry->note, u"  hero, \"take 2\" "_s);
    QCOMPARE(m_tab->text(u"note"_s), QString());
    QCOMPARE(item(u"timerCard"_s)->property("client").toUuid(), cafe);
    QCOMPARE(m_tab->text(u"runningClient"_s), u"Café"_s);
    QCOMPARE(m_tab->text(u"runningNote"_s), entry->note);
    QVERIFY(item(u"stop"_s)->isVisible());
    for (const auto& name : {u"timerClient"_s, u"note"_s, u"start"_s}) {
        QVERIFY2(!item(name)->isVisible(), qPrintable(name));
    }
}

void TimeViewTest::start_doubleClicked_keepsTheTimer()
{
    type(u"Call"_s); // With a note one button stands where the other one was.

    m_tab->doubleClick(item(u"start"_s));

    QVERIFY(m_tab->store().hasRunningEntry());
}

void TimeViewTest::return_inTheNoteStartsForNobody()
{
    type(u"Call"_s);

    m_tab->press(Qt::Key_Return);

    QCOMPARE(m_tab->store().runningEntry()->clientID, std::nullopt);
    QCOMPARE(m_tab->store().runningEntry()->note, u"Call"_s);
    QCOMPARE(m_tab->text(u"note"_s), QString());
    QCOMPARE(m_tab->text(u"runningClient"_s), u"No client"_s);
}

void TimeViewTest::stop_bringsTheChoiceBack()
{
    m_tab->running(3600);
    m_tab->settle();

    m_tab->click(item(u"stop"_s));

    QVERIFY(!m_tab->store().hasRunningEntry());
    for (const auto& name : {u"runningClient"_s, u"runningNote"_s, u"clock"_s, u"stop"_s}) {
        QVERIFY2(!item(name)->isVisible(), qPrintable(name));
    }
    QVERIFY(item(u"start"_s)->isVisible());
    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);
}

void TimeViewTest::timerStartedElsewhere_isShown()
{
    type(u"half-typed"_s);

    m_tab->store().startTimer(m_tab->client(u"Café"_s), u"from elsewhere"_s);

    QCOMPARE(m_tab->text(u"runningClient"_s), u"Café"_s);
    QCOMPARE(m_tab->text(u"runningNote"_s), u"from elsewhere"_s);
    QCOMPARE(m_tab->text(u"note"_s), u"half-typed"_s);
}

void TimeViewTest::timerOfADeletedClient_isNobodys()
{
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->running(60, cafe);
    QCOMPARE(m_tab->text(u"runningClient"_s), u"Café"_s);

    m_tab->store().deleteClient(cafe);

    QCOMPARE(m_tab->text(u"runningClient"_s), u"No client"_s);
}

void TimeViewTest::emptyNote_takesNoRoom()
{
    m_tab->running(60);
    m_tab->settle();

    QVERIFY(!item(u"runningNote"_s)->isVisible());
    QCOMPARE(m_tab->rect(u"clock"_s).top() - m_tab->rect(u"runningClient"_s).bottom(), 9.0);
}

void TimeViewTest::clock_turnsWithTheSecond()
{
    m_tab->running(3661);
    auto now = m_tab->hands.now.addMSecs(400);
    m_tab->clockBeat()->setClock([&now] { return now; });
    QCOMPARE(m_tab->text(u"clock"_s), u"1:01:01"_s);
    QCOMPARE(m_tab->clockBeat()->untilNext(), 600ms);

    now = now.addMSecs(595);
    m_tab->clockBeat()->setClock([&now] { return now; });
    QCOMPARE(m_tab->text(u"clock"_s), u"1:01:01"_s);
    now = now.addMSecs(5);

    QTRY_COMPARE(m_tab->text(u"clock"_s), u"1:01:02"_s);
}

void TimeViewTest::clock_isNeverBelowZero_data()
{
    QTest::addColumn<int>("elapsed");

    QTest::addRow("started in the future") << -7200;
    QTest::addRow("clock set back an hour after half an hour") << 1800 - 3600;
    QTest::addRow("a moment before the start") << -1;
}

void TimeViewTest::clock_isNeverBelowZero()
{
    QFETCH(int, elapsed);
    m_tab->running(elapsed, m_tab->client(u"Café"_s));
    m_tab->clockBeat()->setClock(m_tab->hands.clock());

    QCOMPARE(m_tab->text(u"clock"_s), u"0:00"_s);
    QCOMPARE(m_tab->text(u"total"_s), u"0m"_s);
    QCOMPARE(m_tab->part(0, u"duration"_s)->property("text").toString(), u"0m"_s);
    QCOMPARE(m_tab->part(0, u"bar"_s)->width(), 0.0);
    QVERIFY(m_tab->clockBeat()->isRunning());
}

void TimeViewTest::outOfSight_nothingRuns_data()
{
    QTest::addColumn<bool>("collapsed");

    QTest::addRow("another tab") << false;
    QTest::addRow("collapsed") << true;
}

void TimeViewTest::outOfSight_nothingRuns()
{
    QFETCH(bool, collapsed);
    m_tab->running(60);
    QVERIFY(m_tab->clockBeat()->isRunning() && m_tab->totalsBeat()->isRunning());

    if (collapsed) {
        m_tab->model.setExpanded(false);
    } else {
        m_tab->model.setTab(Tab::Tasks);
    }

    QTRY_VERIFY(!m_tab->clockBeat()->isRunning());
    QVERIFY(!m_tab->totalsBeat()->isRunning());
    m_tab->entry(3600);
    QCOMPARE(m_tab->text(u"total"_s), u"1m"_s); // No reader, no sum.
}

void TimeViewTest::shownAnew_theCheckMarkIsAtRestAndTheNoteStays_data()
{
    QTest::addColumn<QByteArray>("how");

    QTest::addRow("from another tab") << "tab"_ba;
    QTest::addRow("from the notch") << "notch"_ba;
}

void TimeViewTest::shownAnew_theCheckMarkIsAtRestAndTheNoteStays()
{
    QFETCH(QByteArray, how);
    type(u"half-typed"_s);
    m_tab->click(m_tab->segment(1));
    m_tab->click(item(u"export"_s));
    QCOMPARE(m_tab->exportSymbol(), u"checkmark"_s);

    showAnew(how);

    QCOMPARE(m_tab->exportSymbol(), u"square.and.arrow.up"_s);
    QCOMPARE(m_tab->text(u"note"_s), u"half-typed"_s);
    QCOMPARE(item(u"period"_s)->property("selected").toInt(), 1);
}

void TimeViewTest::tab_goesThroughEverything()
{
    QCOMPARE(m_tab->focused(), u"note"_s);
    QStringList visited;
    for (int i = 0; i < 3; ++i) {
        m_tab->press(Qt::Key_Tab);
        visited << m_tab->focused();
    }
    QCOMPARE(visited, (QStringList{u"start"_s, u"period"_s, u"export"_s}));

    for (int i = 0; i < 4; ++i) {
        m_tab->press(Qt::Key_Backtab);
    }
    QCOMPARE(m_tab->focused(), u"timerClient"_s);
}

void TimeViewTest::tab_whileATimerRuns_comesToStop()
{
    m_tab->press(Qt::Key_Return);
    QVERIFY(m_tab->store().hasRunningEntry());

    m_tab->press(Qt::Key_Tab);
    QCOMPARE(m_tab->focused(), u"stop"_s);
    QVERIFY(item(u"stop"_s)->property("visualFocus").toBool());
    m_tab->press(Qt::Key_Tab);
    QCOMPARE(m_tab->focused(), u"period"_s);
    m_tab->press(Qt::Key_Backtab);
    m_tab->press(Qt::Key_Return);

    QVERIFY(!m_tab->store().hasRunningEntry());
    QCOMPARE(m_tab->focused(), u"note"_s);
}

void TimeViewTest::keys_afterAStart_doNothing()
{
    m_tab->press(Qt::Key_Return);
    const auto started = m_tab->store().runningEntry();
    QVERIFY(started);

    m_tab->press(Qt::Key_Return); // A stray one would leave no trace of the timer.
    m_tab->press(Qt::Key_Space);
    m_tab->press(Qt::Key_X);

    QCOMPARE(m_tab->store().runningEntry(), started);
    QCOMPARE(m_tab->text(u"note"_s), QString());
}

void TimeViewTest::names_tellWhatIsThere()
{
    m_tab->entry(3600, m_tab->client(u"Café"_s));
    const auto* row = QAccessible::queryAccessibleInterface(m_tab->row(0));
    const auto nameOf = [](QObject* object) {
        auto* interface = QAccessible::queryAccessibleInterface(object);
        return interface ? interface->text(QAccessible::Name) : QString();
    };

    QCOMPARE(row->role(), QAccessible::ListItem);
    QCOMPARE(row->text(QAccessible::Name), u"Café"_s);
    QCOMPARE(nameOf(m_tab->part(0, u"duration"_s)), u"1h 0m"_s);
    QCOMPARE(nameOf(m_tab->part(0, u"digits"_s)), u"£35"_s);
    QCOMPARE(nameOf(item(u"list"_s)), u"Time per client"_s);
    QCOMPARE(nameOf(item(u"timerClient"_s)), u"Client: Choose client"_s);
    QCOMPARE(nameOf(item(u"start"_s)), u"Start"_s);
    QCOMPARE(nameOf(item(u"period"_s)), u"Period: This week"_s);
    QCOMPARE(nameOf(item(u"export"_s)), u"Export timesheet CSV to Downloads"_s);

    m_tab->running(3725);
    m_tab->clockBeat()->setClock(m_tab->hands.clock());
    QCOMPARE(nameOf(item(u"clock"_s)), u"1:02:05"_s);
    QCOMPARE(nameOf(item(u"stop"_s)), u"Stop"_s);
}

QTEST_MAIN(TimeViewTest)
#include "tst_timeview.moc"
