#include "model/file/newesttask.h"

#include <QList>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <atomic>

using quib::NewestTask;

class NewestTaskTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tasks_runOnOneThreadThatWasEntered();
    void whileOneRuns_onlyTheNewestWaits();
    void finish_waitsForTheOneInProgressAlone();
    void end_waitsForAll();
    void restsAndStarts_againAndAgain();
};

namespace {

const auto Nothing = [] {};

} // namespace

void NewestTaskTest::tasks_runOnOneThreadThatWasEntered()
{
    QList<QThread*> threads;
    int entered = 0;
    {
        NewestTask task([&] { ++entered; });
        for (int i = 0; i < 2; ++i) {
            QSemaphore done;
            task.start([&] {
                threads << QThread::currentThread();
                done.release();
            });
            done.acquire();
        }
    }

    QCOMPARE(entered, 1);
    QCOMPARE(threads.size(), 2);
    QCOMPARE(threads.at(0), threads.at(1));
    QVERIFY(threads.first() != QThread::currentThread());
}

void NewestTaskTest::whileOneRuns_onlyTheNewestWaits()
{
    QSemaphore began;
    QSemaphore mayEnd;
    QList<int> ran;
    {
        NewestTask task(Nothing);
        task.start([&] {
            began.release();
            mayEnd.acquire();
        });
        began.acquire();
        for (int i = 0; i < 10; ++i) {
            task.start([&ran, i] { ran << i; });
        }
        mayEnd.release();
    }

    QCOMPARE(ran, QList{9});
}

void NewestTaskTest::finish_waitsForTheOneInProgressAlone()
{
    QSemaphore began;
    std::atomic<bool> hasEnded = false;
    std::atomic<bool> hasWaitingRun = false;
    NewestTask task(Nothing);
    task.start([&] {
        began.release();
        QThread::msleep(20);
        hasEnded = true;
    });
    began.acquire();
    task.start([&] { hasWaitingRun = true; });

    task.finish();

    QVERIFY(hasEnded);
    QVERIFY(!hasWaitingRun);
}

void NewestTaskTest::end_waitsForAll()
{
    QSemaphore began;
    bool hasRun = false;
    {
        NewestTask task(Nothing);
        task.start([&] { began.release(); });
        began.acquire();
        task.start([&] { hasRun = true; });
    }

    QVERIFY(hasRun);
}

void NewestTaskTest::restsAndStarts_againAndAgain()
{
    int ran = 0;
    NewestTask task(Nothing);

    for (int i = 0; i < 1000; ++i) {
        QSemaphore done;
        task.start([&] {
            ++ran;
            done.release();
        });
        done.acquire();
        task.finish();
    }

    QCOMPARE(ran, 1000);
}

QTEST_APPLESS_MAIN(NewestTaskTest)
#include "tst_newesttask.moc"
