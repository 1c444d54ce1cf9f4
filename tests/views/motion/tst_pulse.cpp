#include "views/motion/pulse.h"

#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;
using quib::Pulse;

class PulseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pulseLevel_goesDownAndUpInASecondEach_data();
    void pulseLevel_goesDownAndUpInASecondEach();
    void pulseStep_staysNearTheLevel();
    void pulseStep_isAnotherEachTime_andFewTimes();
    void running_changesTheLevel();
    void notRunning_restsAtFull();
    void outOfSight_restsAtFull();
};

namespace {

struct Shown {
    QQuickWindow window;
    QQuickItem item{window.contentItem()}; // What stands in no window is out of sight.
    Pulse pulse{&item};
    QSignalSpy levels{&pulse, &Pulse::levelChanged};

    Shown()
    {
        pulse.setRunning(true);
        pulse.componentComplete();
    }
};

} // namespace

void PulseTest::pulseLevel_goesDownAndUpInASecondEach_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<double>("level");

    QTest::addRow("begins full") << 0 << 1.0;
    QTest::addRow("leaves slowly") << 100 << 0.984;
    QTest::addRow("half way down") << 500 << 0.675;
    QTest::addRow("lowest") << 1000 << 0.35;
    QTest::addRow("half way up") << 1500 << 0.675;
    QTest::addRow("full again") << 2000 << 1.0;
    QTest::addRow("and so on for ever") << 7'201'000 << 0.35;
}

void PulseTest::pulseLevel_goesDownAndUpInASecondEach()
{
    QFETCH(int, milliseconds);
    QFETCH(double, level);

    QVERIFY(qAbs(quib::pulseLevel(std::chrono::milliseconds(milliseconds)) - level) < 0.001);
}

void PulseTest::pulseStep_staysNearTheLevel()
{
    for (auto time = 0ms; time < 6s; time += 1ms) {
        const auto step = quib::pulseStep(time);

        QVERIFY2(qAbs(step.level - quib::pulseLevel(time)) < 0.041,
                 qPrintable(QString::number(time.count())));
        QVERIFY(step.untilNext > 0ns);
    }
}

void PulseTest::pulseStep_isAnotherEachTime_andFewTimes()
{
    auto before = quib::pulseStep(0ns);
    std::chrono::nanoseconds time = before.untilNext;
    int steps = 0;
    for (; time < 60s; ++steps) {
        const auto step = quib::pulseStep(time);
        QVERIFY(qAbs(qAbs(step.level - before.level) - 0.65 / 8) < 0.001);
        before = step;
        time += step.untilNext;
    }

    QCOMPARE(steps, 8 * 60);
}

void PulseTest::running_changesTheLevel()
{
    Shown shown;

    QVERIFY(shown.levels.wait());

    QVERIFY(shown.pulse.level() < 1);
}

void PulseTest::notRunning_restsAtFull()
{
    Shown shown;
    QVERIFY(shown.levels.wait());

    shown.pulse.setRunning(false);

    QVERIFY(!shown.pulse.isBeating());
    QCOMPARE(shown.pulse.level(), 1.0);
}

void PulseTest::outOfSight_restsAtFull()
{
    Shown shown;
    QVERIFY(shown.levels.wait());

    shown.item.setVisible(false);
    QVERIFY(!shown.pulse.isBeating());
    QCOMPARE(shown.pulse.level(), 1.0);

    shown.item.setVisible(true);
    QVERIFY(shown.pulse.isBeating());
}

QTEST_MAIN(PulseTest)
#include "tst_pulse.moc"
