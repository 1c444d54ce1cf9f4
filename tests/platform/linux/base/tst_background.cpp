#include "platform/linux/base/background.h"

#include <QTest>

#include <thread>

#include <sys/resource.h>

namespace {

int niceness()
{
    return ::getpriority(PRIO_PROCESS, 0);
}

/// Of a thread that has done the work.
template <typename Work>
int nicenessAfter(Work work)
{
    int found = 0;
    std::thread([&] {
        work();
        found = niceness();
    }).join();
    return found;
}

} // namespace

/// What is done in the background takes no time from what somebody waits for.
class BackgroundTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thread_yieldsToTheOthers();
    void thread_thatYieldsMoreAlready_staysSo();
    void mainThread_staysAsItWas();
};

void BackgroundTest::thread_yieldsToTheOthers()
{
    const auto before = niceness();

    if (before >= 10) {
        QSKIP("everything here yields as much already");
    }
    QVERIFY(nicenessAfter(quib::enterBackground) > before);
    QCOMPARE(nicenessAfter([] { quib::enterBackground(), quib::enterBackground(); }),
             nicenessAfter(quib::enterBackground));
}

void BackgroundTest::thread_thatYieldsMoreAlready_staysSo()
{
    const auto lowest = [] { ::setpriority(PRIO_PROCESS, 0, 19); };

    QCOMPARE(nicenessAfter([&] { lowest(), quib::enterBackground(); }), 19);
}

void BackgroundTest::mainThread_staysAsItWas()
{
    const auto before = niceness();

    nicenessAfter(quib::enterBackground);

    QCOMPARE(niceness(), before);
}

QTEST_GUILESS_MAIN(BackgroundTest)
#include "tst_background.moc"
