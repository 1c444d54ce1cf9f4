#include "app/shell/pointerpoll.h"
#include "support/fakes/fakeshell.h"
#include "support/fakes/handclock.h"

#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;
using quib::PointerPoll;

namespace {

constexpr auto Tick = 16ms;
constexpr auto SlowTick = 500ms;
constexpr int TicksInTenSeconds = 10s / Tick;

struct Polled {
    HandClock hands;
    FakePointerSource pointer;
    PointerPoll poll{&pointer, hands.scheduler()};

    explicit Polled(bool announces = true)
    {
        pointer.polled = true;
        pointer.announces = announces;
        QObject::connect(&poll, &PointerPoll::due, &poll, [this] { poll.look(); });
        poll.begin();
    }

    int looksIn(std::chrono::milliseconds time)
    {
        const auto before = pointer.asked;
        hands.advance(time);
        return pointer.asked - before;
    }

    void rest() { hands.advance(3s); }
};

} // namespace

class PointerPollTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void atRest_looksAreFew();
    void atRest_nothingIsAnnounced_looksGoOn();
    void somethingGoesOn_looksGoOn_data();
    void somethingGoesOn_looksGoOn();
    void announcedChange_isLookedAtAtOnce();
    void shortPause_theNextMoveIsAnnounced();
    void movingPointer_isNotAnnounced();
    void moveBeforeTheAnnouncement_isSeenByTheNextTick();
    void moveWithoutAnEvent_isSeenByTheSlowTick();
    void wake_looksAtOnceAndForASecond();
    void sourceThatTells_isLookedAtWhenItDoes();
};

void PointerPollTest::atRest_looksAreFew()
{
    Polled polled;

    const auto untilAsleep = polled.looksIn(3s);
    const auto asleep = polled.looksIn(10s);

    QVERIFY(untilAsleep >= 1s / Tick);
    QVERIFY(asleep > 0);
    QVERIFY(asleep <= 40);
}

void PointerPollTest::atRest_nothingIsAnnounced_looksGoOn()
{
    Polled polled(false);
    polled.rest();

    QCOMPARE(polled.looksIn(10s), TicksInTenSeconds);
}

void PointerPollTest::somethingGoesOn_looksGoOn_data()
{
    QTest::addColumn<bool>("held");
    QTest::addColumn<bool>("keptAwake");
    QTest::addColumn<bool>("moving");

    QTest::addRow("button down") << true << false << false;
    QTest::addRow("somebody stays awake") << false << true << false;
    QTest::addRow("a move each half a second") << false << false << true;
}

void PointerPollTest::somethingGoesOn_looksGoOn()
{
    QFETCH(const bool, held);
    QFETCH(const bool, keptAwake);
    QFETCH(const bool, moving);
    Polled polled;
    polled.pointer.now.leftHeld = held;
    polled.poll.setKeptAwake(keptAwake);

    int looks = 0;
    for (int half = 0; half < 20; ++half) {
        polled.pointer.now.position.rx() += moving ? 1 : 0;
        looks += polled.looksIn(SlowTick);
    }

    QCOMPARE(looks, TicksInTenSeconds);
}

void PointerPollTest::announcedChange_isLookedAtAtOnce()
{
    Polled polled;
    polled.rest();
    QVERIFY(polled.pointer.announced);
    const auto before = polled.pointer.asked;

    polled.pointer.move({5, 5});

    QCOMPARE(polled.pointer.asked, before + 1);
    QCOMPARE(polled.looksIn(960ms), 60);
}

void PointerPollTest::shortPause_theNextMoveIsAnnounced()
{
    Polled polled;
    polled.pointer.now.position = {5, 5};
    polled.hands.advance(100ms);
    const auto before = polled.pointer.asked;

    polled.pointer.move({6, 6});

    QCOMPARE(polled.pointer.asked, before + 1);
}

void PointerPollTest::movingPointer_isNotAnnounced()
{
    Polled polled;

    for (int tick = 1; tick < 100; ++tick) {
        polled.pointer.move({double(tick), 5});
        QVERIFY(!polled.pointer.announced);
        QCOMPARE(polled.looksIn(Tick), 1);
    }
}

void PointerPollTest::moveBeforeTheAnnouncement_isSeenByTheNextTick()
{
    Polled polled;
    while (!polled.pointer.announced) {
        polled.hands.advance(Tick);
    }
    polled.pointer.now.position = {5, 5}; // Where the source did not tell of it any more.

    QCOMPARE(polled.looksIn(Tick), 1);
}

void PointerPollTest::moveWithoutAnEvent_isSeenByTheSlowTick()
{
    Polled polled;
    polled.rest();
    polled.pointer.now.position = {5, 5};

    QCOMPARE(polled.looksIn(SlowTick), 1);

    QCOMPARE(polled.looksIn(960ms), 60);
}

void PointerPollTest::wake_looksAtOnceAndForASecond()
{
    Polled polled;
    polled.rest();
    const auto before = polled.pointer.asked;

    polled.poll.wake();

    QCOMPARE(polled.pointer.asked, before + 1);
    QCOMPARE(polled.looksIn(960ms), 60);
}

void PointerPollTest::sourceThatTells_isLookedAtWhenItDoes()
{
    HandClock hands;
    FakePointerSource pointer;
    PointerPoll poll(&pointer, hands.scheduler());
    const QSignalSpy looks(&poll, &PointerPoll::due);
    poll.begin();
    hands.advance(10s);
    QCOMPARE(looks.size(), 0);

    Q_EMIT pointer.changed();
    poll.wake();

    QCOMPARE(looks.size(), 2);
    QCOMPARE(hands.waiting(), 0);
}

QTEST_MAIN(PointerPollTest)
#include "tst_pointerpoll.moc"
