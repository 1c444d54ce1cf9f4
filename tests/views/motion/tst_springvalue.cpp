#include "views/motion/springvalue.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::SpringShape;
using quib::SpringValue;
using quib::stepSpring;

class SpringValueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newTarget_fromRest_takesTheFirstStepAtOnce();
    void wayDown_hasAShapeOfItsOwn();
    void newTarget_onTheWay_keepsPlaceAndVelocity();
    void turningRoundInTheFirstFrame_tellsWhereItEnds();
    void itSettlesOnTheTargetAndStops();
    void sameTarget_startsNothing();
    void snap_endsTheMovementOnTheTarget();
    void snapping_jumpsToEachTarget();
    void snapping_endsAMovementOnItsWay();
    void inQml_beginsAtItsTarget();
};

namespace {

constexpr SpringShape Expanding{.response = 0.28, .damping = 0.82};
constexpr SpringShape Collapsing{.response = 0.2, .damping = 1};

/// Past its first steps, moving.
void setGoing(SpringValue& spring)
{
    spring.setTarget(1);
    QSignalSpy steps(&spring, &SpringValue::valueChanged);
    QVERIFY(steps.wait());
    QVERIFY(spring.isRunning());
}

} // namespace

void SpringValueTest::newTarget_fromRest_takesTheFirstStepAtOnce()
{
    SpringValue spring;

    spring.setTarget(1);

    const auto first = stepSpring({}, 1, Expanding, 1.0 / 60);
    QCOMPARE(spring.value(), first.value);
    QCOMPARE(spring.velocity(), first.velocity);
    QVERIFY(spring.isRunning());
}

void SpringValueTest::wayDown_hasAShapeOfItsOwn()
{
    SpringValue spring;
    spring.falling = Collapsing;

    spring.setTarget(-1);

    QCOMPARE(spring.value(), stepSpring({}, -1, Collapsing, 1.0 / 60).value);
}

void SpringValueTest::newTarget_onTheWay_keepsPlaceAndVelocity()
{
    SpringValue spring;
    spring.falling = Collapsing;
    setGoing(spring);
    const double value = spring.value();
    const double velocity = spring.velocity();

    spring.setTarget(0);

    QVERIFY(velocity > 0);
    QCOMPARE(spring.value(), value);
    QCOMPARE(spring.velocity(), velocity);
}

void SpringValueTest::turningRoundInTheFirstFrame_tellsWhereItEnds()
{
    SpringValue spring;
    double told = 0;
    connect(&spring, &SpringValue::valueChanged, this, [&] { told = spring.value(); });

    spring.setTarget(1);
    QVERIFY(told > 0);
    spring.setTarget(0);

    QTRY_VERIFY(!spring.isRunning());
    QCOMPARE(told, 0.0);
}

void SpringValueTest::itSettlesOnTheTargetAndStops()
{
    SpringValue spring;
    spring.setTarget(1);

    QTRY_VERIFY(!spring.isRunning());

    QCOMPARE(spring.value(), 1.0);
    QCOMPARE(spring.velocity(), 0.0);
    spring.setTarget(0);
    QVERIFY(spring.isRunning());
}

void SpringValueTest::sameTarget_startsNothing()
{
    SpringValue spring;
    const QSignalSpy steps(&spring, &SpringValue::valueChanged);

    spring.setTarget(0);

    QVERIFY(!spring.isRunning());
    QCOMPARE(steps.count(), 0);
}

void SpringValueTest::snap_endsTheMovementOnTheTarget()
{
    SpringValue spring;
    spring.setTarget(1);

    spring.snap();

    QCOMPARE(spring.value(), 1.0);
    QCOMPARE(spring.velocity(), 0.0);
    QVERIFY(!spring.isRunning());
}

void SpringValueTest::snapping_jumpsToEachTarget()
{
    SpringValue spring;
    spring.setSnapping(true);
    const QSignalSpy steps(&spring, &SpringValue::valueChanged);

    spring.setTarget(1);

    QCOMPARE(spring.value(), 1.0);
    QCOMPARE(steps.count(), 1);
    QVERIFY(!spring.isRunning());
}

void SpringValueTest::snapping_endsAMovementOnItsWay()
{
    SpringValue spring;
    spring.setTarget(1);

    spring.setSnapping(true);

    QCOMPARE(spring.value(), 1.0);
    QVERIFY(!spring.isRunning());
}

void SpringValueTest::inQml_beginsAtItsTarget()
{
    QQmlEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    QQmlComponent component(&engine);
    component.setData("import Quib.Motion; SpringValue { target: 3; falling.response: 0.1 }", {});

    const std::unique_ptr<QObject> made(component.create());

    auto* spring = qobject_cast<SpringValue*>(made.get());
    QVERIFY2(spring, qPrintable(component.errorString()));
    QCOMPARE(spring->value(), 3.0);
    QCOMPARE(spring->falling.response, 0.1);
    QVERIFY(!spring->isRunning());
    spring->setTarget(0);
    QVERIFY(spring->isRunning());
}

QTEST_MAIN(SpringValueTest)
#include "tst_springvalue.moc"
