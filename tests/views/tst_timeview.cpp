#include "support/timetab.h"

#include "brand/brand.h"
#include "views/beat.h"

#include <QAccessible>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Beat;
using quib::Brand;
using quib::Tab;

/// The time tracker as its user meets it.
class TimeViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TimeTab>(); }
    void cleanup() { m_tab.reset(); }

    void empty_saysNoTimeLoggedYet();
    void start_takesTheClientAndTheNoteAsTyped();
    void return_inTheNoteStartsForNobody();
    void stop_bringsTheChoiceBack();
    void timerStartedElsewhere_isShown();
    void timerOfADeletedClient_isNobodys();
    void emptyNote_takesNoRoom();
    void clock_turnsWithTheSecond();
    void clock_isNeverBelowZero_data();
    void clock_isNeverBelowZero();

    void bars_areSharesOfTheTotal();
    void unassignedTime_isGreyAndEarnsNothing();
    void deletedClient_readsNoClient();
    void entryThatEndsBeforeItStarts_readsNothing();
    void totals_followTheClockEvery15Seconds();
    void totals_areFreshWhenShownAgain();
    void refresh_keepsTheRows();
    void period_isChosenByPointerAndKeys();
    void twoHundredClients_scroll();
    void outOfSight_nothingRuns_data();
    void outOfSight_nothingRuns();

    void export_writesRevealsAndChecks();
    void export_again_writesAndRevealsAgain();
    void export_thatFails_changesNothing();
    void shownAnew_theCheckMarkIsAtRestAndTheNoteStays_data();
    void shownAnew_theCheckMarkIsAtRestAndTheNoteStays();

    void tab_goesThroughEverything();
    void tab_whileATimerRuns_comesToStop();
    void keys_afterAStart_doNothing();
    void keys_scrollWhatDoesNotFit();
    void names_tellWhatIsThere();

private:
    QQuickItem* item(const QString& name) { return m_tab->item(name); }
    void type(const QString& text);
    Beat* clockBeat() { return item(u"clock"_s)->findChild<Beat*>(); }
    Beat* totalsBeat();
    QString focused();
    QString exportSymbol() { return item(u"export"_s)->property("symbol").toString(); }
    void showAnew(const QByteArray& how);

    std::unique_ptr<TimeTab> m_tab;
};

void TimeViewTest::type(const QString& text)
{
    m_tab->panel.click(item(u"note"_s));
    for (const auto letter : text) {
        QTest::keyClick(m_tab->panel.window.get(), letter.toLatin1());
    }
}

Beat* TimeViewTest::totalsBeat()
{
    return item(u"totalsCard"_s)->findChild<Beat*>({}, Qt::FindDirectChildrenOnly);
}

/// The name of what has the focus; of the field, not of the text in it.
QString TimeViewTest::focused()
{
    const auto* focus = m_tab->panel.window->activeFocusItem();
    while (focus && (focus->objectName().isEmpty() || focus->objectName() == u"input"_s)) {
        focus = focus->parentItem();
    }
    return focus ? focus->objectName() : QString();
}

void TimeViewTest::showAnew(const QByteArray& how)
{
    auto& model = m_tab->panel.model;
    if (how == "tab") {
        model.setTab(Tab::Home);
        model.setTab(Tab::Time);
        return;
    }
    model.setExpanded(false);
    QTRY_VERIFY(!item(u"timeView"_s)->isVisible());
    model.setExpanded(true);
}

void TimeViewTest::empty_saysNoTimeLoggedYet()
{
    QVERIFY(item(u"nothing"_s)->isVisible());
    QCOMPARE(m_tab->text(u"nothing"_s), u"No time logged yet."_s);
    QCOMPARE(m_tab->text(u"total"_s), u"0m"_s);
    QCOMPARE(m_tab->text(u"billable"_s), u"£0 billable"_s);
    QVERIFY(!m_tab->row(0));
}

void TimeViewTest::start_takesTheClientAndTheNoteAsTyped()
{
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->panel.click(item(u"timerClient"_s));
    m_tab->press(Qt::Key_Down);
    m_tab->press(Qt::Key_Return);
    QTRY_COMPARE(item(u"timerCard"_s)->property("client").toUuid(), cafe);
    type(u"  hero, \"take 2\" "_s);

    m_tab->panel.click(item(u"start"_s));

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
    m_tab->panel.settle();

    m_tab->panel.click(item(u"stop"_s));

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
    m_tab->panel.settle();

    QVERIFY(!item(u"runningNote"_s)->isVisible());
    QCOMPARE(m_tab->rect(u"clock"_s).top() - m_tab->rect(u"runningClient"_s).bottom(), 9.0);
}

void TimeViewTest::clock_turnsWithTheSecond()
{
    m_tab->running(3661);
    auto now = m_tab->hands.now.addMSecs(400);
    clockBeat()->setClock([&now] { return now; });
    QCOMPARE(m_tab->text(u"clock"_s), u"1:01:01"_s);
    QCOMPARE(clockBeat()->untilNext(), 600ms);

    now = now.addMSecs(595);
    clockBeat()->setInterval(1); // Nothing new: armed as before.
    clockBeat()->setClock([&now] { return now; });
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
    clockBeat()->setClock(m_tab->hands.clock());

    QCOMPARE(m_tab->text(u"clock"_s), u"0:00"_s);
    QCOMPARE(m_tab->text(u"total"_s), u"0m"_s);
    QCOMPARE(m_tab->part(0, u"duration"_s)->property("text").toString(), u"0m"_s);
    QCOMPARE(m_tab->part(0, u"bar"_s)->width(), 0.0);
    QVERIFY(clockBeat()->isRunning());
}

void TimeViewTest::bars_areSharesOfTheTotal()
{
    m_tab->entry(3600, m_tab->client(u"Bloom"_s, quib::ClientStatus::Review, 20));
    m_tab->entry(3 * 3600, m_tab->client(u"Café"_s, quib::ClientStatus::Live, 35));
    const auto full = m_tab->part(0, u"track"_s)->width();

    QCOMPARE(m_tab->part(0, u"bar"_s)->width(), full * 0.75);
    QCOMPARE(m_tab->part(1, u"bar"_s)->width(), full * 0.25);
    QCOMPARE(colorOf(m_tab->part(0, u"bar"_s)), Brand::live());
    QCOMPARE(colorOf(m_tab->part(1, u"bar"_s)), Brand::color(u"review"_s));
    QCOMPARE(m_tab->part(0, u"duration"_s)->property("text").toString(), u"3h 0m"_s);
    QCOMPARE(m_tab->part(0, u"amount"_s)->property("text").toString(), u"£105"_s);
    QCOMPARE(m_tab->text(u"total"_s), u"4h 0m"_s);
    QCOMPARE(m_tab->text(u"billable"_s), u"£125 billable"_s);
    QVERIFY(!item(u"nothing"_s)->isVisible());
}

void TimeViewTest::unassignedTime_isGreyAndEarnsNothing()
{
    m_tab->entry(3600);

    QCOMPARE(m_tab->part(0, u"name"_s)->property("text").toString(), u"No client"_s);
    QCOMPARE(colorOf(m_tab->part(0, u"bar"_s)), Brand::muted2());
    QCOMPARE(m_tab->part(0, u"amount"_s)->property("text").toString(), u"£0"_s);
    QCOMPARE(m_tab->text(u"billable"_s), u"£0 billable"_s);
}

void TimeViewTest::deletedClient_readsNoClient()
{
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->entry(3600, cafe);

    m_tab->store().deleteClient(cafe);

    QCOMPARE(m_tab->part(0, u"name"_s)->property("text").toString(), u"No client"_s);
    QCOMPARE(colorOf(m_tab->part(0, u"bar"_s)), Brand::muted2());
    QCOMPARE(m_tab->text(u"billable"_s), u"£0 billable"_s);
}

void TimeViewTest::entryThatEndsBeforeItStarts_readsNothing()
{
    m_tab->entry(7200, m_tab->client(u"Café"_s));
    m_tab->entry(-3600, m_tab->client(u"Bloom"_s));

    QCOMPARE(m_tab->part(0, u"bar"_s)->width(), m_tab->part(0, u"track"_s)->width());
    QCOMPARE(m_tab->part(1, u"bar"_s)->width(), 0.0);
    QCOMPARE(m_tab->part(1, u"duration"_s)->property("text").toString(), u"0m"_s);
    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);
}

void TimeViewTest::totals_followTheClockEvery15Seconds()
{
    m_tab->running(3600 - 15);
    QCOMPARE(m_tab->text(u"total"_s), u"59m"_s);
    QCOMPARE(totalsBeat()->interval(), 15.0);
    QVERIFY(totalsBeat()->isRunning());
    m_tab->hands.now = m_tab->hands.now.addSecs(15);

    totalsBeat()->setClock(m_tab->hands.clock()); // Beats at once.

    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);
    QVERIFY(totalsBeat()->untilNext() <= 15s);
}

void TimeViewTest::totals_areFreshWhenShownAgain()
{
    m_tab->running(60);
    m_tab->panel.model.setTab(Tab::Tasks);
    m_tab->hands.now = m_tab->hands.now.addSecs(3600);

    m_tab->panel.model.setTab(Tab::Time);

    QCOMPARE(m_tab->text(u"total"_s), u"1h 1m"_s);
}

void TimeViewTest::refresh_keepsTheRows()
{
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->entry(7200, cafe);
    m_tab->entry(3600, m_tab->client(u"Bloom"_s));
    const QList<QQuickItem*> before{m_tab->row(0), m_tab->row(1)};

    m_tab->store().startTimer(cafe, {});
    m_tab->hands.now = m_tab->hands.now.addSecs(15);
    totalsBeat()->setClock(m_tab->hands.clock());
    m_tab->entry(3 * 3600, m_tab->store().data().clients.back().id);

    QCOMPARE(m_tab->row(1), before[0]); // Overtaken.
    QCOMPARE(m_tab->row(0), before[1]);
}

void TimeViewTest::period_isChosenByPointerAndKeys()
{
    m_tab->hands.now = QDateTime({2026, 4, 30}, {12, 0}, Qt::UTC);
    auto data = m_tab->store().data();
    const auto before = m_tab->hands.now.addDays(-20);
    data.entries = {{.id = QUuid::createUuid(), .start = before, .end = before.addSecs(7200)}};
    m_tab->store().setData(data);
    m_tab->entry(3600);
    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);

    m_tab->panel.click(m_tab->segment(1));
    QCOMPARE(m_tab->text(u"total"_s), u"3h 0m"_s);
    item(u"period"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_tab->press(Qt::Key_Left);
    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);
    m_tab->press(Qt::Key_Right);

    QCOMPARE(m_tab->text(u"total"_s), u"3h 0m"_s);
}

void TimeViewTest::twoHundredClients_scroll()
{
    quib::QuibData data;
    for (int i = 0; i < 200; ++i) {
        data.clients.append({.id = QUuid::createUuid(), .name = u"Client %1"_s.arg(i)});
        data.entries.append({.id = QUuid::createUuid(),
                             .clientID = data.clients.back().id,
                             .start = m_tab->hands.now.addSecs(i - 3600),
                             .end = m_tab->hands.now});
    }
    m_tab->store().setData(data);
    auto* list = item(u"list"_s);
    QCOMPARE(list->property("count").toInt(), 200);
    QVERIFY(!m_tab->row(199)); // Rows are built when they come into sight.

    QMetaObject::invokeMethod(list, "positionViewAtEnd");

    QCOMPARE(m_tab->part(199, u"name"_s)->property("text").toString(), u"Client 199"_s);
    QVERIFY(m_tab->rect(u"list"_s).contains(ShownPanel::inScene(m_tab->row(199))));
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
    QVERIFY(clockBeat()->isRunning() && totalsBeat()->isRunning());

    if (collapsed) {
        m_tab->panel.model.setExpanded(false);
    } else {
        m_tab->panel.model.setTab(Tab::Tasks);
    }

    QTRY_VERIFY(!clockBeat()->isRunning());
    QVERIFY(!totalsBeat()->isRunning());
}

void TimeViewTest::export_writesRevealsAndChecks()
{
    m_tab->entry(3600, m_tab->client(u"Café"_s));
    QCOMPARE(exportSymbol(), u"square.and.arrow.up"_s);

    m_tab->panel.click(item(u"export"_s));

    QCOMPARE(m_tab->downloads.files().size(), 1);
    QCOMPARE(m_tab->panel.opener.asked,
             QStringList(u"reveal "_s + m_tab->downloads.files().front()));
    QCOMPARE(exportSymbol(), u"checkmark"_s);
}

void TimeViewTest::export_again_writesAndRevealsAgain()
{
    m_tab->panel.click(item(u"export"_s));
    QFile::remove(m_tab->downloads.files().front());

    m_tab->panel.click(item(u"export"_s));

    QCOMPARE(m_tab->downloads.files().size(), 1);
    QCOMPARE(m_tab->panel.opener.asked.size(), 2);
    QCOMPARE(exportSymbol(), u"checkmark"_s);
}

void TimeViewTest::export_thatFails_changesNothing()
{
    m_tab->downloads.remove();

    m_tab->panel.click(item(u"export"_s));

    QVERIFY(m_tab->panel.opener.asked.isEmpty());
    QCOMPARE(exportSymbol(), u"square.and.arrow.up"_s);
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
    m_tab->panel.click(m_tab->segment(1));
    m_tab->panel.click(item(u"export"_s));
    QCOMPARE(exportSymbol(), u"checkmark"_s);

    showAnew(how);

    QCOMPARE(exportSymbol(), u"square.and.arrow.up"_s);
    QCOMPARE(m_tab->text(u"note"_s), u"half-typed"_s);
    QCOMPARE(item(u"period"_s)->property("selected").toInt(), 1);
}

void TimeViewTest::tab_goesThroughEverything()
{
    QCOMPARE(focused(), u"note"_s);
    QStringList visited;
    for (int i = 0; i < 3; ++i) {
        m_tab->press(Qt::Key_Tab);
        visited << focused();
    }
    QCOMPARE(visited, (QStringList{u"start"_s, u"period"_s, u"export"_s}));

    for (int i = 0; i < 4; ++i) {
        m_tab->press(Qt::Key_Backtab);
    }
    QCOMPARE(focused(), u"timerClient"_s);
}

void TimeViewTest::tab_whileATimerRuns_comesToStop()
{
    m_tab->press(Qt::Key_Return);
    QVERIFY(m_tab->store().hasRunningEntry());

    m_tab->press(Qt::Key_Tab);
    QCOMPARE(focused(), u"stop"_s);
    QVERIFY(item(u"stop"_s)->property("visualFocus").toBool());
    m_tab->press(Qt::Key_Tab);
    QCOMPARE(focused(), u"period"_s);
    m_tab->press(Qt::Key_Backtab);
    m_tab->press(Qt::Key_Return);

    QVERIFY(!m_tab->store().hasRunningEntry());
    QCOMPARE(focused(), u"note"_s);
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

void TimeViewTest::keys_scrollWhatDoesNotFit()
{
    for (int i = 0; i < 12; ++i) {
        m_tab->entry(3600 - i, m_tab->client(u"Client %1"_s.arg(i)));
    }
    m_tab->panel.settle();
    const auto isWhole = [this](int number) {
        const auto* row = m_tab->row(number);
        return row && m_tab->rect(u"list"_s).contains(ShownPanel::inScene(row));
    };
    item(u"export"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_tab->press(Qt::Key_Tab);
    QCOMPARE(focused(), u"list"_s);
    QVERIFY(isWhole(0) && !isWhole(11));

    m_tab->press(Qt::Key_Down);
    QVERIFY(!isWhole(0));
    m_tab->press(Qt::Key_End);
    QVERIFY(isWhole(11));
    m_tab->press(Qt::Key_Down);
    QVERIFY(isWhole(11));
    m_tab->press(Qt::Key_PageUp);
    QVERIFY(!isWhole(11));
    m_tab->press(Qt::Key_Home);
    m_tab->press(Qt::Key_PageUp);

    QVERIFY(isWhole(0));
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
    clockBeat()->setClock(m_tab->hands.clock());
    QCOMPARE(nameOf(item(u"clock"_s)), u"1:02:05"_s);
    QCOMPARE(nameOf(item(u"stop"_s)), u"Stop"_s);
}

QTEST_MAIN(TimeViewTest)
#include "tst_timeview.moc"
