#include "desktop/desk/desk.h"
#include "support/sendsignal.h"

#include <QJsonArray>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr int TasksTab = 3;
constexpr int TimeTab = 4;
constexpr auto Asleep = 3000; ///< Milliseconds: longer than what was about to happen takes.

/// While nothing of the program runs, as while the machine sleeps.
void sleepAWhile(const QProcess& quib)
{
    sendSignal(quib.processId(), SIGSTOP);
    QTest::qWait(Asleep);
    sendSignal(quib.processId(), SIGCONT);
}

} // namespace

/// The program is stopped for some seconds and goes on: its timers are late.
class SuspendTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void collapsePending_happensOnce();
    void savePending_isWritten();
    void opened_whileAsleep_isOpenAfterwards();
    void serverAsleepToo_everythingGoesOn();
};

void SuspendTest::collapsePending_happensOnce()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();

    desk.moveTo(Desk::FarAway);
    sleepAWhile(*quib);

    QVERIFY(desk.waitForExpanded(false));
    desk.openWithPointer();
    QVERIFY(desk.isExpanded());
}

void SuspendTest::savePending_isWritten()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(TasksTab);
    desk.click(Desk::TaskField);
    desk.type(u"Before sleep"_s);

    desk.key(u"Return"_s);
    sleepAWhile(*quib);

    QTRY_COMPARE(desk.savedTasks().value(0), u"Before sleep"_s);
    QCOMPARE(desk.savedTasks().count(u"Before sleep"_s), 1);
}

void SuspendTest::opened_whileAsleep_isOpenAfterwards()
{
    Desk desk;
    const auto quib = desk.startQuib();
    sendSignal(quib->processId(), SIGSTOP);

    desk.moveTo(Desk::Notch);
    sendSignal(quib->processId(), SIGCONT);

    QVERIFY(desk.waitForExpanded(true));
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
}

void SuspendTest::serverAsleepToo_everythingGoesOn()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(TimeTab);

    desk.hangServer();
    sleepAWhile(*quib);
    desk.resumeServer();

    QTRY_COMPARE(desk.selectedTab(), TimeTab);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    QCOMPARE(quib->state(), QProcess::Running);
}

QTEST_GUILESS_MAIN(SuspendTest)
#include "tst_suspend.moc"
