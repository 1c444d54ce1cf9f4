#include "views/motion/spring.h"

#include <QTest>

#include <cmath>
#include <numbers>

using quib::hasSettled;
using quib::SpringShape;
using quib::SpringState;
using quib::stepSpring;

class SpringTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void expanding_overshootsOnceByAHundredth();
    void collapsing_followsTheCriticalCurve();
    void anySpring_movesAsItsEquation_data();
    void anySpring_movesAsItsEquation();
    void oneLongStep_endsWhereManyShortOnesDo();
    void collapsing_neverOvershoots();
    void hasSettled_asksForPlaceAndPace_data();
    void hasSettled_asksForPlaceAndPace();
};

namespace {

constexpr SpringShape Expanding{.response = 0.28, .damping = 0.82};
constexpr SpringShape Collapsing{.response = 0.2, .damping = 1};

bool isNear(double value, double wanted)
{
    return std::abs(value - wanted) < 1e-6;
}

/// The equation of motion in a great many small steps.
SpringState integrated(SpringState state, double target, SpringShape shape, double seconds)
{
    const double w = 2 * std::numbers::pi / shape.response;
    const auto pull = [&](double value, double velocity) {
        return -w * w * (value - target) - 2 * shape.damping * w * velocity;
    };
    constexpr int Steps = 200'000;
    const double step = seconds / Steps;
    for (int i = 0; i < Steps; ++i) {
        const double middleVelocity = state.velocity + pull(state.value, state.velocity) * step / 2;
        const double middleValue = state.value + state.velocity * step / 2;
        state.value += middleVelocity * step;
        state.velocity += pull(middleValue, middleVelocity) * step;
    }
    return state;
}

} // namespace

void SpringTest::expanding_overshootsOnceByAHundredth()
{
    const double swing = 2 * std::numbers::pi / 0.28 * std::sqrt(1 - 0.82 * 0.82);

    const auto peak = stepSpring({}, 1, Expanding, std::numbers::pi / swing);

    QVERIFY(isNear(peak.value, 1.0110997));
    QVERIFY(isNear(peak.velocity, 0));
}

void SpringTest::collapsing_followsTheCriticalCurve()
{
    const double wt = std::numbers::pi; // half the response

    const auto half = stepSpring({.value = 1}, 0, Collapsing, 0.1);

    QVERIFY(isNear(half.value, (1 + wt) * std::exp(-wt)));
    QVERIFY(isNear(half.velocity, -wt * wt / 0.1 * std::exp(-wt)));
}

void SpringTest::anySpring_movesAsItsEquation_data()
{
    QTest::addColumn<double>("velocity");
    QTest::addColumn<double>("response");
    QTest::addColumn<double>("damping");

    QTest::addRow("expanding from rest") << 0.0 << 0.28 << 0.82;
    QTest::addRow("expanding while it still shrinks") << -6.0 << 0.28 << 0.82;
    QTest::addRow("collapsing from rest") << 0.0 << 0.2 << 1.0;
    QTest::addRow("collapsing while it still grows") << 6.0 << 0.2 << 1.0;
    QTest::addRow("hardly damped") << 0.0 << 0.5 << 0.1;
}

void SpringTest::anySpring_movesAsItsEquation()
{
    QFETCH(double, velocity);
    QFETCH(double, response);
    QFETCH(double, damping);
    const SpringShape shape{.response = response, .damping = damping};
    const SpringState begin{.value = 0.4, .velocity = velocity};

    const auto exact = stepSpring(begin, 1, shape, 0.13);

    const auto wanted = integrated(begin, 1, shape, 0.13);
    QVERIFY(isNear(exact.value, wanted.value));
    QVERIFY(std::abs(exact.velocity - wanted.velocity) < 1e-4);
}

void SpringTest::oneLongStep_endsWhereManyShortOnesDo()
{
    SpringState state{.velocity = 3};
    for (int i = 0; i < 15; ++i) {
        state = stepSpring(state, 1, Expanding, 0.01);
    }

    const auto once = stepSpring({.velocity = 3}, 1, Expanding, 0.15);

    QVERIFY(isNear(state.value, once.value));
    QVERIFY(isNear(state.velocity, once.velocity));
}

void SpringTest::collapsing_neverOvershoots()
{
    for (int i = 0; i < 200; ++i) {
        QVERIFY(stepSpring({.value = 1}, 0, Collapsing, i * 0.005).value >= 0);
    }
}

void SpringTest::hasSettled_asksForPlaceAndPace_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("velocity");
    QTest::addColumn<bool>("settled");

    QTest::addRow("there") << 1.0 << 0.0 << true;
    QTest::addRow("as good as there") << 1.0004 << 0.005 << true;
    QTest::addRow("passing through") << 1.0 << 2.0 << false;
    QTest::addRow("turning round") << 1.011 << 0.0 << false;
}

void SpringTest::hasSettled_asksForPlaceAndPace()
{
    QFETCH(double, value);
    QFETCH(double, velocity);
    QFETCH(bool, settled);

    QCOMPARE(hasSettled({.value = value, .velocity = velocity}, 1, Expanding), settled);
}

QTEST_GUILESS_MAIN(SpringTest)
#include "tst_spring.moc"
