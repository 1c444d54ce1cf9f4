#include "views/models/runningtimer.h"

#include "model/file/datafile.h"
#include "support/datafolderfortest.h"
#include "support/hungfile.h"
#include "support/workspace.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

class RunningTimerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noTimer_isNotRunning();
    void timerOfAClient_bearsItsName();
    void timerOfNobody_isCalledTimer();
    void clientDeletedMeanwhile_isCalledTimer();
    void placeholder_standsForNobody();
    void note_isTheRunningOnes();
    void otherEntries_sayNothing();
    void storeThatStillLoads_isNotWaitedFor();
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

void RunningTimerTest::placeholder_standsForNobody()
{
    Workspace workspace;
    RunningTimer timer;
    timer.setStore(workspace.store.get());
    workspace.store->startTimer({}, QString());
    const QSignalSpy changes(&timer, &RunningTimer::changed);

    timer.setPlaceholder(u"No client"_s);

    QCOMPARE(timer.clientName(), u"No client"_s);
    QCOMPARE(changes.count(), 1);
}

void RunningTimerTest::note_isTheRunningOnes()
{
    Workspace workspace;
    RunningTimer timer;
    timer.setStore(workspace.store.get());

    workspace.store->startTimer({}, u"  as typed "_s);
    QCOMPARE(timer.note(), u"  as typed "_s);
    workspace.store->stopTimer();

    QCOMPARE(timer.note(), QString());
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

void RunningTimerTest::storeThatStillLoads_isNotWaitedFor()
{
    const DataFolderForTest folder;
    folder.put(encodeQuibData({.entries = {{.start = QDateTime({2026, 3, 2}, {9, 0}, Utc),
                                            .note = u"overnight"_s}}})
                   .value());
    HungFile file(folder.file());
    QVERIFY(file.isHung());
    Store store;
    store.beginLoading();
    RunningTimer timer;

    timer.setStore(&store);

    QVERIFY(!timer.isRunning());
    file.answerAtLast();
    QTRY_VERIFY(timer.isRunning());
    QCOMPARE(timer.note(), u"overnight"_s);
}

QTEST_GUILESS_MAIN(RunningTimerTest)
#include "tst_runningtimer.moc"
