#include "integrations/calendar/calendarfixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

using Access = CalendarController::Access;
using Authorization = CalendarAuthorization;

/// Whether the program may read the calendars, and that it reads none otherwise.
class CalendarAccessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fresh_hasNothingAndKnowsNothing();
    void waiting_endsWithTheLastAnswer();
    void authorization_decidesTheAccess_data();
    void authorization_decidesTheAccess();
    void requestAccess_isWhatTheUserSays_data();
    void requestAccess_isWhatTheUserSays();
    void requestAccess_againWhenGranted_readsAgain();
    void requestAccess_countsMoreThanALateAuthorization();
    void reload_withoutAccess_readsNothing_data();
    void reload_withoutAccess_readsNothing();
    void reload_answerAfterARefusal_isDropped();
    void noStore_staysUnknown();
    void answers_afterTheEnd_areHarmless();
};

void CalendarAccessTest::fresh_hasNothingAndKnowsNothing()
{
    CalendarFixture f;

    QCOMPARE(f.controller.access(), Access::Unknown);
    QVERIFY(f.controller.events().isEmpty());
    QCOMPARE(f.store.authorizations.size(), 1U);
    QVERIFY(f.store.requests.empty());
    QVERIFY(f.store.readings.empty());
}

void CalendarAccessTest::waiting_endsWithTheLastAnswer()
{
    CalendarFixture f;

    QVERIFY(f.controller.isWaiting());

    f.grant();
    QVERIFY(f.controller.isWaiting());
    f.answer({});
    QVERIFY(!f.controller.isWaiting());
}

void CalendarAccessTest::authorization_decidesTheAccess_data()
{
    QTest::addColumn<Authorization>("authorization");
    QTest::addColumn<Access>("access");

    QTest::addRow("not determined") << Authorization::NotDetermined << Access::Unknown;
    QTest::addRow("restricted") << Authorization::Restricted << Access::Denied;
    QTest::addRow("denied") << Authorization::Denied << Access::Denied;
    QTest::addRow("full access") << Authorization::FullAccess << Access::Granted;
    QTest::addRow("write only") << Authorization::WriteOnly << Access::Unknown;
}

void CalendarAccessTest::authorization_decidesTheAccess()
{
    QFETCH(const Authorization, authorization);
    QFETCH(const Access, access);
    CalendarFixture f;
    const QSignalSpy changes(&f.controller, &CalendarController::accessChanged);

    f.store.authorizations.at(0)(authorization);

    QCOMPARE(f.controller.access(), access);
    QCOMPARE(changes.size(), access == Access::Unknown ? 0 : 1);
    QCOMPARE(f.store.readings.size(), access == Access::Granted ? 1U : 0U);
}

void CalendarAccessTest::requestAccess_isWhatTheUserSays_data()
{
    QTest::addColumn<Authorization>("before");
    QTest::addColumn<bool>("isGranted");
    QTest::addColumn<Access>("access");

    QTest::addRow("granted") << Authorization::NotDetermined << true << Access::Granted;
    QTest::addRow("refused") << Authorization::NotDetermined << false << Access::Denied;
    QTest::addRow("more than write only") << Authorization::WriteOnly << true << Access::Granted;
    QTest::addRow("granted after a refusal") << Authorization::Denied << true << Access::Granted;
    QTest::addRow("taken away") << Authorization::FullAccess << false << Access::Denied;
}

void CalendarAccessTest::requestAccess_isWhatTheUserSays()
{
    QFETCH(const Authorization, before);
    QFETCH(const bool, isGranted);
    QFETCH(const Access, access);
    CalendarFixture f;
    f.store.authorizations.at(0)(before);
    const auto access0 = f.controller.access();
    const auto readings = f.store.readings.size();

    f.controller.requestAccess();
    QCOMPARE(f.controller.access(), access0);
    f.store.requests.at(0)(isGranted);

    QCOMPARE(f.controller.access(), access);
    QCOMPARE(f.store.readings.size(), readings + (isGranted ? 1U : 0U));
}

void CalendarAccessTest::requestAccess_againWhenGranted_readsAgain()
{
    CalendarFixture f;
    f.grant();
    const QSignalSpy changes(&f.controller, &CalendarController::accessChanged);

    f.controller.requestAccess();
    f.store.requests.at(0)(true);

    QCOMPARE(f.store.readings.size(), 2U);
    QCOMPARE(changes.size(), 0);
}

void CalendarAccessTest::requestAccess_countsMoreThanALateAuthorization()
{
    CalendarFixture f;
    f.controller.requestAccess();
    f.store.requests.at(0)(true);

    f.store.authorizations.at(0)(Authorization::Denied);

    QCOMPARE(f.controller.access(), Access::Granted);
}

void CalendarAccessTest::reload_withoutAccess_readsNothing_data()
{
    QTest::addColumn<Authorization>("authorization");

    QTest::addRow("unknown") << Authorization::NotDetermined;
    QTest::addRow("denied") << Authorization::Denied;
    QTest::addRow("write only") << Authorization::WriteOnly;
}

void CalendarAccessTest::reload_withoutAccess_readsNothing()
{
    QFETCH(const Authorization, authorization);
    CalendarFixture f;
    f.store.authorizations.at(0)(authorization);

    f.controller.reload();
    Q_EMIT f.store.changed();

    QVERIFY(f.store.readings.empty());
}

void CalendarAccessTest::reload_answerAfterARefusal_isDropped()
{
    CalendarFixture f;
    f.grant();
    f.controller.requestAccess();
    f.store.requests.at(0)(false);

    f.answer({f.entry(u"Secret"_s, 1, 2)});

    QVERIFY(f.controller.events().isEmpty());
}

void CalendarAccessTest::noStore_staysUnknown()
{
    HandClock hands;
    CalendarController controller(nullptr, hands.clock(), QTimeZone::utc);

    controller.requestAccess();
    controller.reload();

    QCOMPARE(controller.access(), Access::Unknown);
    QVERIFY(controller.events().isEmpty());
}

void CalendarAccessTest::answers_afterTheEnd_areHarmless()
{
    const HandClock hands;
    FakeCalendarStore store;
    int asked = 0; // Which a controller that is gone would do.
    auto controller = std::make_unique<CalendarController>(&store, [&] {
        ++asked;
        return hands.now;
    });
    store.authorizations.at(0)(Authorization::FullAccess);
    controller->requestAccess();
    asked = 0;

    controller.reset();
    store.authorizations.at(0)(Authorization::FullAccess);
    store.requests.at(0)(true);
    store.readings.back().answer({{.title = u"Call"_s, .end = hands.now.addSecs(3600)}});
    Q_EMIT store.changed();

    QCOMPARE(asked, 0);
    QCOMPARE(store.readings.size(), 1U);
}

QTEST_GUILESS_MAIN(CalendarAccessTest)
#include "tst_calendaraccess.moc"
