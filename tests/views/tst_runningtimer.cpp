#include "views/runningtimer.h"

#include "support/workspace.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::RunningTimer;

class RunningTimerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noTimer_isNotRunning();
    void timerOfAClient_bearsItsName();
    void timerOfNobody_isCalledTimer();
    void clientDeletedMeanwhile_isCalledTimer();
    void otherEntries_sayNothing();
};

void RunningTimerTest::noTimer_isNotRunning()
{
    Workspace workspace;
    RunningTimer timer;

    timer.setStore(workspace.store.get());

    QVERIFY(!timer.isRunning());
    QVERIFY(!timer.since().isValid());
}

void RunningTimerTest::timerOfAClient_bearsItsName()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Corner Café"_s);
    RunningTimer timer;
    timer.setStore(workspace.store.get());

    workspace.store->startTimer(cafe, QString());

    QVERIFY(timer.isRunning());
    QCOMPARE(timer.clientName(), u"Corner Café"_s);
    QCOMPARE(timer.since(), workspace.store->runningEntry()->start);
}

void RunningTimerTest::timerOfNobody_isCalledTimer()
{
    Workspace workspace;
    RunningTimer timer;
    timer.setStore(workspace.store.get());

    workspace.store->startTimer({}, QString());

    QCOMPARE(timer.clientName(), u"Timer"_s);
}

void RunningTimerTest::clientDeletedMeanwhile_isCalledTimer()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Corner Café"_s);
    workspace.store->startTimer(cafe, QString());
    RunningTimer timer;
    timer.setStore(workspace.store.get());

    workspace.store->deleteClient(cafe);

    QCOMPARE(timer.clientName(), u"Timer"_s);
}

void RunningTimerTest::otherEntries_sayNothing()
{
    Workspace workspace;
    RunningTimer timer;
    timer.setStore(workspace.store.get());
    const QSignalSpy changes(&timer, &RunningTimer::changed);

    workspace.client(u"Corner Café"_s);

    QCOMPARE(changes.count(), 0);
}

QTEST_GUILESS_MAIN(RunningTimerTest)
#include "tst_runningtimer.moc"
