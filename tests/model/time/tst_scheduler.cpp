#include "model/time/scheduler.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::scheduleOnMainLoop;

class SchedulerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void work_runsAtALaterTurnAndOnce();
    void work_mayLetGoOfItself();
    void lettingGo_cancels();
    void shorterDelay_runsFirst();
};

void SchedulerTest::work_runsAtALaterTurnAndOnce()
{
    int runs = 0;
    bool later = false;

    const auto work = scheduleOnMainLoop(0ms, [&] { ++runs; });
    const auto end = scheduleOnMainLoop(20ms, [&] { later = true; });

    QCOMPARE(runs, 0);
    QTRY_VERIFY(later);
    QCOMPARE(runs, 1);
}

void SchedulerTest::work_mayLetGoOfItself()
{
    std::unique_ptr<QObject> work;
    QString said;
    const auto words = u"captured and long enough to live on the heap"_s;

    work = scheduleOnMainLoop(0ms, [&, words] {
        work.reset();
        said = words;
    });

    QTRY_VERIFY(!work);
    QCOMPARE(said, words);
}

void SchedulerTest::lettingGo_cancels()
{
    QString done;
    auto first = scheduleOnMainLoop(0ms, [&] { done += u'1'; });
    const auto second = scheduleOnMainLoop(0ms, [&] { done += u'2'; });

    first.reset();

    QTRY_COMPARE(done, u"2"_s);
}

void SchedulerTest::shorterDelay_runsFirst()
{
    QString done;

    const auto late = scheduleOnMainLoop(30ms, [&] { done += u"late"_s; });
    const auto early = scheduleOnMainLoop(1ms, [&] { done += u"early "_s; });

    QTRY_COMPARE(done, u"early late"_s);
}

QTEST_GUILESS_MAIN(SchedulerTest)
#include "tst_scheduler.moc"
