#include "support/storefixture.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Store;

class StoreTimeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startTimer_putsARunningEntryFirst();
    void startTimer_doesNotTrimTheNote();
    void startTimer_whileOneRanLong_endsItInOneStep();
    void startTimer_whileOneRanShort_dropsIt();
    void stopTimer_leavesNoTraceOfLessThan30Seconds_data();
    void stopTimer_leavesNoTraceOfLessThan30Seconds();
    void stopTimer_nothingRuns_saysNothing();
    void stopTimer_twoRun_endsTheFirst();
    void stopTimer_clockWentBack_leavesNoTrace();
    void hasRunningEntry_followsTheEntries();
    void hasRunningEntry_followsSetData();
    void hasRunningEntry_isRightWhenTheSignalComes();
    void runningEntry_survivesARestart();
    void totals_countARunningTimerUpToNow();
    void totals_followEveryChange();
};

void StoreTimeTest::startTimer_putsARunningEntryFirst()
{
    StoreFixture f;
    f.startWith({.entries = {{.id = idOf(1), .start = f.hands.now, .end = f.hands.now}}});

    f.store.startTimer(idOf(7), u"logo"_s);

    const auto& entry = f.store.data().entries.front();
    QCOMPARE(f.store.data().entries.size(), 2);
    QCOMPARE(entry.clientID, std::optional(idOf(7)));
    QCOMPARE(entry.start, f.hands.now);
    QVERIFY(!entry.end);
    QCOMPARE(entry.note, u"logo"_s);
    QCOMPARE(f.store.runningEntry(), std::optional(entry));
    QCOMPARE(f.store.runningSince(), f.hands.now);
    QCOMPARE(f.announced(), u"entries"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTimeTest::startTimer_doesNotTrimTheNote()
{
    StoreFixture f;

    f.store.startTimer({}, u" logo "_s);

    QCOMPARE(f.store.runningEntry()->note, u" logo "_s);
}

void StoreTimeTest::startTimer_whileOneRanLong_endsItInOneStep()
{
    StoreFixture f;
    f.store.startTimer({}, u"first"_s);
    f.hands.advance(1min);
    f.entries.clear();
    f.hands.scheduled = 0;

    f.store.startTimer({}, u"second"_s);

    QCOMPARE(f.store.data().entries.size(), 2);
    QCOMPARE(f.store.runningEntry()->note, u"second"_s);
    QCOMPARE(f.store.data().entries.back().end, std::optional(f.hands.now));
    QCOMPARE(f.announced(), u"entries"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTimeTest::startTimer_whileOneRanShort_dropsIt()
{
    StoreFixture f;
    f.store.startTimer({}, u"first"_s);
    f.hands.advance(10s);

    f.store.startTimer({}, u"second"_s);

    QCOMPARE(f.store.data().entries.size(), 1);
    QCOMPARE(f.store.runningEntry()->note, u"second"_s);
}

void StoreTimeTest::stopTimer_leavesNoTraceOfLessThan30Seconds_data()
{
    QTest::addColumn<std::chrono::milliseconds>("length");
    QTest::addColumn<bool>("kept");

    QTest::addRow("at once") << std::chrono::milliseconds(0ms) << false;
    QTest::addRow("29 seconds") << std::chrono::milliseconds(29s) << false;
    QTest::addRow("a millisecond short") << std::chrono::milliseconds(29'999ms) << false;
    QTest::addRow("30 seconds") << std::chrono::milliseconds(30s) << true;
    QTest::addRow("a day") << std::chrono::milliseconds(24h) << true;
}

void StoreTimeTest::stopTimer_leavesNoTraceOfLessThan30Seconds()
{
    QFETCH(std::chrono::milliseconds, length);
    QFETCH(bool, kept);
    StoreFixture f;
    f.startWith({.entries = {{.id = idOf(1), .start = f.hands.now, .end = f.hands.now}}});
    f.store.startTimer({}, {});
    f.hands.advance(length);
    f.entries.clear();
    f.hands.scheduled = 0;

    f.store.stopTimer();

    QCOMPARE(f.store.data().entries.size(), kept ? 2 : 1);
    QCOMPARE(f.store.data().entries.back().id, idOf(1));
    QCOMPARE(f.store.data().entries.front().end == f.hands.now, kept || length == 0ms);
    QVERIFY(!f.store.hasRunningEntry());
    QCOMPARE(f.announced(), u"entries"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTimeTest::stopTimer_nothingRuns_saysNothing()
{
    StoreFixture f;

    f.store.stopTimer();

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTimeTest::stopTimer_twoRun_endsTheFirst()
{
    StoreFixture f;
    f.startWith({.entries
                 = {{.id = idOf(1), .start = f.hands.now}, {.id = idOf(2), .start = f.hands.now}}});
    f.hands.advance(1h);

    f.store.stopTimer();

    QCOMPARE(f.store.data().entries.front().end, std::optional(f.hands.now));
    QCOMPARE(f.store.runningEntry()->id, idOf(2));
}

void StoreTimeTest::stopTimer_clockWentBack_leavesNoTrace()
{
    StoreFixture f;
    f.store.startTimer({}, {});
    f.hands.now = f.hands.now.addDays(-1);

    f.store.stopTimer();

    QVERIFY(f.store.data().entries.isEmpty());
}

void StoreTimeTest::hasRunningEntry_followsTheEntries()
{
    StoreFixture f;
    QVERIFY(!f.store.hasRunningEntry());
    QVERIFY(!f.store.runningEntry());
    QVERIFY(!f.store.runningSince().isValid());

    f.store.startTimer({}, {});
    QVERIFY(f.store.hasRunningEntry());

    f.hands.advance(1min);
    f.store.stopTimer();
    QVERIFY(!f.store.hasRunningEntry());
}

void StoreTimeTest::hasRunningEntry_followsSetData()
{
    StoreFixture f;

    f.store.setData({.entries = {{.id = idOf(1), .end = f.hands.now}, {.id = idOf(2)}}});
    QCOMPARE(f.store.runningEntry()->id, idOf(2));

    f.store.setData({.entries = {{.id = idOf(1), .end = f.hands.now}}});
    QVERIFY(!f.store.hasRunningEntry());
}

void StoreTimeTest::hasRunningEntry_isRightWhenTheSignalComes()
{
    StoreFixture f;
    QList<bool> told;
    connect(&f.store, &Store::entriesChanged, this, [&] { told << f.store.hasRunningEntry(); });

    f.store.startTimer({}, {});
    f.store.stopTimer();
    f.store.setData({.entries = {{.id = idOf(2)}}});

    QCOMPARE(told, (QList<bool>{true, false, true}));
}

void StoreTimeTest::runningEntry_survivesARestart()
{
    StoreFixture f;
    f.hands.now = f.hands.now.addMSecs(700);
    f.store.startTimer({}, u"overnight"_s);
    f.store.saveNow();

    const Store next({.clock = f.hands.clock(), .schedule = f.hands.scheduler()});

    QCOMPARE(next.runningEntry()->note, u"overnight"_s);
    QCOMPARE(next.runningSince(), f.hands.now.addMSecs(-700)); // The file has whole seconds.
}

void StoreTimeTest::totals_countARunningTimerUpToNow()
{
    StoreFixture f;
    const auto since = f.hands.now;
    f.store.startTimer({}, {});

    f.hands.advance(10min);
    QCOMPARE(f.store.totals(since).front().seconds, 600.0);

    f.hands.advance(10min);
    QCOMPARE(f.store.totals(since).front().seconds, 1200.0);
}

void StoreTimeTest::totals_followEveryChange()
{
    StoreFixture f;
    const auto since = f.hands.now;
    const auto bloom = f.store.addClient();
    f.store.startTimer(bloom, {});
    f.hands.advance(1min);
    QCOMPARE(f.store.totals(since).front().client, f.store.client(bloom));

    f.store.deleteClient(bloom);
    QVERIFY(!f.store.totals(since).front().client);

    f.store.stopTimer();
    f.hands.advance(1h);
    QCOMPARE(f.store.totals(since).front().seconds, 60.0);

    f.store.setData({});
    QVERIFY(f.store.totals(since).isEmpty());
}

QTEST_GUILESS_MAIN(StoreTimeTest)
#include "tst_storetime.moc"
