#include "views/motion/beat.h"

#include "support/fakes/handclock.h"
#include "support/travel.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Beat;

class BeatTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void untilNextBeat_data();
    void untilNextBeat();
    void comingIntoSight_beatsAtOnce();
    void onTheTurn_beatsWithTheTimesOfThatMoment();
    void withoutAMoment_beatsWithTheWallClock();
    void anotherMoment_beatsAtOnce();
    void anInvalidMoment_runsNothing();
    void outOfSight_runsNothing_data();
    void outOfSight_runsNothing();
    void lateByALittle_doesNotDrift();
    void clockTurned_isSeenWithinAnInterval_data();
    void clockTurned_isSeenWithinAnInterval();
    void timeZoneChanges_elapsedGoesOn();
    void inQml_standsInItsItem();
};

namespace {

/// A beat in an item, its clock in the test's hand.
struct Shown {
    HandClock hands;
    QQuickItem parent;
    QQuickItem item{&parent};
    Beat beat{&item};
    QSignalSpy beats{&beat, &Beat::beat};

    Shown()
    {
        beat.setClock(hands.clock());
        beat.setSince(hands.now);
        beat.componentComplete();
    }
};

} // namespace

void BeatTest::untilNextBeat_data()
{
    QTest::addColumn<int>("elapsed");
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("wait");

    QTest::addRow("just begun") << 0 << 1000 << 1000;
    QTest::addRow("in between") << 1400 << 1000 << 600;
    QTest::addRow("just before the turn") << 1999 << 1000 << 1;
    QTest::addRow("on the turn") << 2000 << 1000 << 1000;
    QTest::addRow("every 15 s") << 44'200 << 15'000 << 800;
    QTest::addRow("begins in the future") << -300 << 1000 << 300;
    QTest::addRow("begins in whole intervals") << -2000 << 1000 << 1000;
}

void BeatTest::untilNextBeat()
{
    QFETCH(int, elapsed);
    QFETCH(int, interval);
    QFETCH(int, wait);

    QCOMPARE(quib::untilNextBeat(std::chrono::milliseconds(elapsed),
                                 std::chrono::milliseconds(interval)),
             std::chrono::milliseconds(wait));
}

void BeatTest::comingIntoSight_beatsAtOnce()
{
    Shown shown;
    QCOMPARE(shown.beats.count(), 1);

    shown.item.setVisible(false);
    shown.hands.now = shown.beat.since().addMSecs(90'400);
    shown.item.setVisible(true);

    QCOMPARE(shown.beats.count(), 2);
    QCOMPARE(shown.beat.elapsed(), 90.4);
    QCOMPARE(shown.beat.untilNext(), 600ms);
}

void BeatTest::onTheTurn_beatsWithTheTimesOfThatMoment()
{
    Shown shown;
    shown.hands.now = shown.beat.since().addMSecs(1995);
    shown.beat.setInterval(2); // Looks at the clock anew: 5 ms are left.
    QCOMPARE(shown.beat.untilNext(), 5ms);
    shown.hands.now = shown.beat.since().addMSecs(2000);

    QVERIFY(shown.beats.wait());

    QCOMPARE(shown.beat.elapsed(), 2.0);
    QCOMPARE(shown.beat.now(), shown.hands.now);
}

void BeatTest::withoutAMoment_beatsWithTheWallClock()
{
    HandClock hands;
    hands.now = hands.now.addMSecs(12'400);
    QQuickItem item;
    Beat beat(&item);
    beat.setInterval(15);
    beat.setClock(hands.clock());

    beat.componentComplete();

    QCOMPARE(beat.untilNext(), 2600ms);
}

void BeatTest::anotherMoment_beatsAtOnce()
{
    Shown shown;

    shown.beat.setSince(shown.hands.now.addSecs(-60));

    QCOMPARE(shown.beats.count(), 2);
    QCOMPARE(shown.beat.elapsed(), 60.0);
}

void BeatTest::anInvalidMoment_runsNothing()
{
    Shown shown;

    shown.beat.setSince({});

    QVERIFY(!shown.beat.isRunning());
    QCOMPARE(shown.beats.count(), 1);
}

void BeatTest::outOfSight_runsNothing_data()
{
    QTest::addColumn<bool>("byItsParent");

    QTest::addRow("the item is hidden") << false;
    QTest::addRow("what the item stands in is hidden") << true;
}

void BeatTest::outOfSight_runsNothing()
{
    QFETCH(bool, byItsParent);
    Shown shown;
    QVERIFY(shown.beat.isRunning());

    (byItsParent ? shown.parent : shown.item).setVisible(false);

    QVERIFY(!shown.beat.isRunning());
}

void BeatTest::lateByALittle_doesNotDrift()
{
    Shown shown;
    shown.beat.setInterval(0.01);

    shown.hands.now = shown.beat.since().addMSecs(17); // 7 ms late.
    QVERIFY(shown.beats.wait());

    QCOMPARE(shown.beat.elapsed(), 0.017);
    QCOMPARE(shown.beat.untilNext(), 3ms);
}

void BeatTest::clockTurned_isSeenWithinAnInterval_data()
{
    QTest::addColumn<int>("seconds");

    QTest::addRow("forward") << 7200;
    QTest::addRow("back") << -7200;
    QTest::addRow("back to before the moment, by a day") << -86'400;
    QTest::addRow("forward by ten years") << 315'360'000;
}

void BeatTest::clockTurned_isSeenWithinAnInterval()
{
    QFETCH(const int, seconds);
    Shown shown;
    QVERIFY(shown.beat.untilNext() <= 1s);
    shown.hands.now = shown.hands.now.addSecs(seconds).addMSecs(300);

    QVERIFY(shown.beats.wait());

    QCOMPARE(shown.beat.now(), shown.hands.now);
    QCOMPARE(shown.beat.elapsed(), seconds + 0.3);
    QVERIFY(shown.beat.untilNext() <= 1s);
}

void BeatTest::timeZoneChanges_elapsedGoesOn()
{
    const Travel travel("Europe/Paris");
    Shown shown;
    shown.beat.setSince(shown.hands.now.addSecs(-5).toLocalTime());

    Travel::to("Asia/Tokyo");
    shown.hands.now = shown.hands.now.addSecs(5);
    shown.item.setVisible(false);
    shown.item.setVisible(true);

    QCOMPARE(shown.beat.elapsed(), 10.0);
}

void BeatTest::inQml_standsInItsItem()
{
    QQmlEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    QQmlComponent component(&engine);
    component.setData("import QtQuick; import Quib.Motion; Item { Beat { since: new Date(0) } }",
                      {});

    const std::unique_ptr<QObject> item(component.create());

    QVERIFY2(item, qPrintable(component.errorString()));
    const auto* beat = item->findChild<Beat*>();
    QVERIFY(beat && beat->isRunning());
    QCOMPARE(beat->since(), QDateTime::fromMSecsSinceEpoch(0));
}

QTEST_MAIN(BeatTest)
#include "tst_beat.moc"
