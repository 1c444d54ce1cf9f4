#include "support/panel/timetab.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The timer as its user meets it.
class TimerCardTest : public QObject {
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

private:
    QQuickItem* item(const QString& name) { return m_tab->item(name); }

    std::unique_ptr<TimeTab> m_tab;
};

void TimerCardTest::start_takesTheClientAndTheNoteAsTyped()
{
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->click(item(u"timerClient"_s));
    m_tab->press(Qt::Key_Down);
    m_tab->press(Qt::Key_Return);
    QTRY_COMPARE(item(u"timerCard"_s)->property("client").toUuid(), cafe);
    m_tab->typeNote(u"  hero, \"take 2\" "_s);

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

void TimerCardTest::start_doubleClicked_keepsTheTimer()
{
    m_tab->typeNote(u"Call"_s); // With a note one button stands where the other one was.

    m_tab->doubleClick(item(u"start"_s));

    QVERIFY(m_tab->store().hasRunningEntry());
}

void TimerCardTest::return_inTheNoteStartsForNobody()
{
    m_tab->typeNote(u"Call"_s);

    m_tab->press(Qt::Key_Return);

    QCOMPARE(m_tab->store().runningEntry()->clientID, std::nullopt);
    QCOMPARE(m_tab->store().runningEntry()->note, u"Call"_s);
    QCOMPARE(m_tab->text(u"note"_s), QString());
    QCOMPARE(m_tab->text(u"runningClient"_s), u"No client"_s);
}

void TimerCardTest::stop_bringsTheChoiceBack()
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

void TimerCardTest::timerStartedElsewhere_isShown()
{
    m_tab->typeNote(u"half-typed"_s);

    m_tab->store().startTimer(m_tab->client(u"Café"_s), u"from elsewhere"_s);

    QCOMPARE(m_tab->text(u"runningClient"_s), u"Café"_s);
    QCOMPARE(m_tab->text(u"runningNote"_s), u"from elsewhere"_s);
    QCOMPARE(m_tab->text(u"note"_s), u"half-typed"_s);
}

void TimerCardTest::timerOfADeletedClient_isNobodys()
{
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->running(60, cafe);
    QCOMPARE(m_tab->text(u"runningClient"_s), u"Café"_s);

    m_tab->store().deleteClient(cafe);

    QCOMPARE(m_tab->text(u"runningClient"_s), u"No client"_s);
}

void TimerCardTest::emptyNote_takesNoRoom()
{
    m_tab->running(60);
    m_tab->settle();

    QVERIFY(!item(u"runningNote"_s)->isVisible());
    QCOMPARE(m_tab->rect(u"clock"_s).top() - m_tab->rect(u"runningClient"_s).bottom(), 9.0);
}

void TimerCardTest::clock_turnsWithTheSecond()
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

void TimerCardTest::clock_isNeverBelowZero_data()
{
    QTest::addColumn<int>("elapsed");

    QTest::addRow("started in the future") << -7200;
    QTest::addRow("clock set back an hour after half an hour") << 1800 - 3600;
    QTest::addRow("a moment before the start") << -1;
}

void TimerCardTest::clock_isNeverBelowZero()
{
    QFETCH(int, elapsed);
    m_tab->running(elapsed, m_tab->client(u"Café"_s));
    m_tab->clockBeat()->setClock(m_tab->hands.clock());

    QCOMPARE(m_tab->text(u"clock"_s), u"0:00"_s);
    QCOMPARE(m_tab->text(u"total"_s), u"0m"_s);
    QCOMPARE(textOf(m_tab->part(0, u"duration"_s)), u"0m"_s);
    QCOMPARE(m_tab->part(0, u"bar"_s)->width(), 0.0);
    QVERIFY(m_tab->clockBeat()->isRunning());
}

QTEST_MAIN(TimerCardTest)
#include "tst_timercard.moc"
