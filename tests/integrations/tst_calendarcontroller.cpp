#include "brand/brand.h"
#include "integrations/calendarcontroller.h"
#include "support/fakecalendarstore.h"
#include "support/handclock.h"

#include <QSignalSpy>
#include <QTest>
#include <QUuid>

using namespace Qt::StringLiterals;
using namespace quib;

using Access = CalendarController::Access;
using Authorization = CalendarAuthorization;

class CalendarControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
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
    void reload_readsTheWholeDay_data();
    void reload_readsTheWholeDay();
    void reload_afterMidnight_readsTheNewDay();
    void reload_keepsTheEventsUntilTheAnswer();
    void reload_keepsWhatStillMatters_data();
    void reload_keepsWhatStillMatters();
    void reload_noneLeft_isEmpty();
    void reload_sortsByStart();
    void reload_equalStarts_keepTheStoresOrder();
    void reload_hasNoLimit();
    void reload_whileOneIsUnderWay_followsIt();
    void reload_timeZoneChanges_readsTheNewDay();
    void reload_unknownTimeZone_isTheLocalDay();
    void reload_answerAfterARefusal_isDropped();
    void event_isAsTheStoreHasIt();
    void event_withoutId_hasAFreshOne();
    void event_withoutTitle_isUntitled();
    void event_withoutColor_isPurple();
    void event_longTitle_isCut_data();
    void event_longTitle_isCut();
    void storeChange_readsAgain();
    void sameEvents_announceNothing();
    void time_alone_changesNothing();
    void noStore_staysUnknown();
    void answers_afterTheEnd_areHarmless();

private:
    void grant();
    void answer(const QList<CalendarEntry>& entries);
    QStringList titles() const;
    /// On the day of the clock, at hours from its present moment.
    CalendarEntry entry(const QString& title, double from, double to) const;

    HandClock m_hands;
    std::unique_ptr<FakeCalendarStore> m_store;
    std::unique_ptr<CalendarController> m_controller;
};

void CalendarControllerTest::init()
{
    m_hands = {};
    m_controller.reset();
    m_store = std::make_unique<FakeCalendarStore>();
    m_controller
        = std::make_unique<CalendarController>(m_store.get(), m_hands.clock(), QTimeZone::utc());
}

void CalendarControllerTest::grant()
{
    m_store->authorizations.at(0)(Authorization::FullAccess);
}

void CalendarControllerTest::answer(const QList<CalendarEntry>& entries)
{
    m_store->readings.back().answer(entries);
}

QStringList CalendarControllerTest::titles() const
{
    QStringList titles;
    for (const auto& event : m_controller->events()) {
        titles << event.title;
    }
    return titles;
}

CalendarEntry CalendarControllerTest::entry(const QString& title, double from, double to) const
{
    const auto at = [this](double hours) { return m_hands.now.addMSecs(qRound64(hours * 3.6e6)); };
    return {.id = title, .title = title, .start = at(from), .end = at(to)};
}

void CalendarControllerTest::fresh_hasNothingAndKnowsNothing()
{
    QCOMPARE(m_controller->access(), Access::Unknown);
    QVERIFY(m_controller->events().isEmpty());
    QCOMPARE(m_store->authorizations.size(), 1U);
    QVERIFY(m_store->requests.empty());
    QVERIFY(m_store->readings.empty());
}

void CalendarControllerTest::waiting_endsWithTheLastAnswer()
{
    QVERIFY(m_controller->isWaiting());

    grant();
    QVERIFY(m_controller->isWaiting());
    answer({});
    QVERIFY(!m_controller->isWaiting());
}

void CalendarControllerTest::authorization_decidesTheAccess_data()
{
    QTest::addColumn<Authorization>("authorization");
    QTest::addColumn<Access>("access");

    QTest::addRow("not determined") << Authorization::NotDetermined << Access::Unknown;
    QTest::addRow("restricted") << Authorization::Restricted << Access::Denied;
    QTest::addRow("denied") << Authorization::Denied << Access::Denied;
    QTest::addRow("full access") << Authorization::FullAccess << Access::Granted;
    QTest::addRow("write only") << Authorization::WriteOnly << Access::Unknown;
}

void CalendarControllerTest::authorization_decidesTheAccess()
{
    QFETCH(const Authorization, authorization);
    QFETCH(const Access, access);
    const QSignalSpy changes(m_controller.get(), &CalendarController::accessChanged);

    m_store->authorizations.at(0)(authorization);

    QCOMPARE(m_controller->access(), access);
    QCOMPARE(changes.size(), access == Access::Unknown ? 0 : 1);
    QCOMPARE(m_store->readings.size(), access == Access::Granted ? 1U : 0U);
}

void CalendarControllerTest::requestAccess_isWhatTheUserSays_data()
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

void CalendarControllerTest::requestAccess_isWhatTheUserSays()
{
    QFETCH(const Authorization, before);
    QFETCH(const bool, isGranted);
    QFETCH(const Access, access);
    m_store->authorizations.at(0)(before);
    const auto access0 = m_controller->access();
    const auto readings = m_store->readings.size();

    m_controller->requestAccess();
    QCOMPARE(m_controller->access(), access0);
    m_store->requests.at(0)(isGranted);

    QCOMPARE(m_controller->access(), access);
    QCOMPARE(m_store->readings.size(), readings + (isGranted ? 1U : 0U));
}

void CalendarControllerTest::requestAccess_againWhenGranted_readsAgain()
{
    grant();
    const QSignalSpy changes(m_controller.get(), &CalendarController::accessChanged);

    m_controller->requestAccess();
    m_store->requests.at(0)(true);

    QCOMPARE(m_store->readings.size(), 2U);
    QCOMPARE(changes.size(), 0);
}

void CalendarControllerTest::requestAccess_countsMoreThanALateAuthorization()
{
    m_controller->requestAccess();
    m_store->requests.at(0)(true);

    m_store->authorizations.at(0)(Authorization::Denied);

    QCOMPARE(m_controller->access(), Access::Granted);
}

void CalendarControllerTest::reload_withoutAccess_readsNothing_data()
{
    QTest::addColumn<Authorization>("authorization");

    QTest::addRow("unknown") << Authorization::NotDetermined;
    QTest::addRow("denied") << Authorization::Denied;
    QTest::addRow("write only") << Authorization::WriteOnly;
}

void CalendarControllerTest::reload_withoutAccess_readsNothing()
{
    QFETCH(const Authorization, authorization);
    m_store->authorizations.at(0)(authorization);

    m_controller->reload();
    Q_EMIT m_store->changed();

    QVERIFY(m_store->readings.empty());
}

void CalendarControllerTest::reload_readsTheWholeDay_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    const auto add = [](const char* name, const char* zone, const QString& now, const QString& from,
                        const QString& to) {
        QTest::addRow("%s", name) << QByteArray(zone) << now << from << to;
    };
    add("in UTC", "UTC", u"2026-03-02T09:00:00Z"_s, u"2026-03-02T00:00:00Z"_s,
        u"2026-03-03T00:00:00Z"_s);
    add("at midnight", "UTC", u"2026-03-02T00:00:00Z"_s, u"2026-03-02T00:00:00Z"_s,
        u"2026-03-03T00:00:00Z"_s);
    add("just before midnight", "UTC", u"2026-03-02T23:59:59Z"_s, u"2026-03-02T00:00:00Z"_s,
        u"2026-03-03T00:00:00Z"_s);
    add("where it is another day", "Pacific/Kiritimati", u"2026-03-02T12:00:00Z"_s,
        u"2026-03-02T10:00:00Z"_s, u"2026-03-03T10:00:00Z"_s);
    add("where it is still yesterday", "America/Los_Angeles", u"2026-03-02T03:00:00Z"_s,
        u"2026-03-01T08:00:00Z"_s, u"2026-03-02T08:00:00Z"_s);
    add("of 23 hours", "Europe/London", u"2026-03-29T12:00:00Z"_s, u"2026-03-29T00:00:00Z"_s,
        u"2026-03-29T23:00:00Z"_s);
    add("of 25 hours", "Europe/London", u"2026-10-25T12:00:00Z"_s, u"2026-10-24T23:00:00Z"_s,
        u"2026-10-26T00:00:00Z"_s);
    add("without a midnight", "America/Santiago", u"2026-09-06T12:00:00Z"_s,
        u"2026-09-06T04:00:00Z"_s, u"2026-09-07T03:00:00Z"_s);
}

void CalendarControllerTest::reload_readsTheWholeDay()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const QString, now);
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    m_hands.now = QDateTime::fromString(now, Qt::ISODate);
    m_controller
        = std::make_unique<CalendarController>(m_store.get(), m_hands.clock(), QTimeZone(zone));

    m_store->authorizations.at(1)(Authorization::FullAccess);

    const auto& reading = m_store->readings.at(0);
    QCOMPARE(reading.from.toUTC(), QDateTime::fromString(from, Qt::ISODate));
    QCOMPARE(reading.to.toUTC(), QDateTime::fromString(to, Qt::ISODate));
}

void CalendarControllerTest::reload_afterMidnight_readsTheNewDay()
{
    grant();
    answer({});

    m_hands.now = m_hands.now.addDays(1);
    m_controller->reload();

    QCOMPARE(m_store->readings.at(1).from, m_store->readings.at(0).to);
}

void CalendarControllerTest::reload_keepsTheEventsUntilTheAnswer()
{
    grant();
    answer({entry(u"Call"_s, 1, 2)});

    m_controller->reload();

    QCOMPARE(titles(), QStringList(u"Call"_s));
    answer({entry(u"Lunch"_s, 3, 4)});
    QCOMPARE(titles(), QStringList(u"Lunch"_s));
}

void CalendarControllerTest::reload_keepsWhatStillMatters_data()
{
    QTest::addColumn<double>("from"); // Hours from now.
    QTest::addColumn<double>("to");
    QTest::addColumn<bool>("isAllDay");
    QTest::addColumn<bool>("isKept");

    QTest::addRow("to come") << 1.0 << 2.0 << false << true;
    QTest::addRow("ended ten minutes ago") << -1.0 << -10 / 60.0 << false << false;
    QTest::addRow("started ten minutes ago") << -10 / 60.0 << 1.0 << false << true;
    QTest::addRow("ends now") << -1.0 << 0.0 << false << false;
    QTest::addRow("ends in a second") << -1.0 << 1 / 3600.0 << false << true;
    QTest::addRow("since yesterday") << -30.0 << 1.0 << false << true;
    QTest::addRow("all day") << -9.0 << 15.0 << true << true;
    QTest::addRow("all day, its end passed") << -9.0 << -1.0 << true << true;
}

void CalendarControllerTest::reload_keepsWhatStillMatters()
{
    QFETCH(const double, from);
    QFETCH(const double, to);
    QFETCH(const bool, isAllDay);
    QFETCH(const bool, isKept);
    auto there = entry(u"Event"_s, from, to);
    there.isAllDay = isAllDay;
    grant();

    answer({there});

    QCOMPARE(m_controller->events().size(), isKept ? 1 : 0);
}

void CalendarControllerTest::reload_noneLeft_isEmpty()
{
    grant();
    answer({entry(u"Call"_s, 1, 2)});

    m_hands.now = m_hands.now.addSecs(3 * 3600);
    m_controller->reload();
    answer({entry(u"Call"_s, -2, -1)});

    QVERIFY(m_controller->events().isEmpty());
}

void CalendarControllerTest::reload_sortsByStart()
{
    auto day = entry(u"Day"_s, -9, 15);
    day.isAllDay = true;
    grant();

    answer({entry(u"Late"_s, 5, 6), entry(u"Soon"_s, 1, 2), day, entry(u"Now"_s, -1, 8)});

    QCOMPARE(titles(), QStringList({u"Day"_s, u"Now"_s, u"Soon"_s, u"Late"_s}));
}

void CalendarControllerTest::reload_equalStarts_keepTheStoresOrder()
{
    QList<CalendarEntry> entries;
    QStringList expected;
    for (int i = 0; i < 40; ++i) {
        entries << entry(u"%1"_s.arg((i * 7) % 40), 1, 2 + i % 3);
        expected << *entries.back().title;
    }
    entries << entry(u"First"_s, 0.5, 2);
    grant();

    answer(entries);

    QCOMPARE(titles(), QStringList(u"First"_s) + expected);
}

void CalendarControllerTest::reload_hasNoLimit()
{
    grant();

    answer(QList<CalendarEntry>(5000, entry(u"Call"_s, 1, 2)));

    QCOMPARE(m_controller->events().size(), 5000);
}

void CalendarControllerTest::reload_whileOneIsUnderWay_followsIt()
{
    grant();
    for (int i = 0; i < 5; ++i) {
        m_controller->reload();
    }
    QCOMPARE(m_store->readings.size(), 1U);

    answer({entry(u"First"_s, 1, 2)});

    QCOMPARE(titles(), QStringList(u"First"_s));
    QVERIFY(m_controller->isWaiting());
    QCOMPARE(m_store->readings.size(), 2U);
    answer({entry(u"Second"_s, 1, 2)});
    QCOMPARE(titles(), QStringList(u"Second"_s));
    QVERIFY(!m_controller->isWaiting());
    QCOMPARE(m_store->readings.size(), 2U);
}

void CalendarControllerTest::reload_timeZoneChanges_readsTheNewDay()
{
    m_hands.now = QDateTime(QDate(2026, 3, 2), QTime(12, 0), Qt::UTC);
    QTimeZone zone("Europe/London");
    m_controller = std::make_unique<CalendarController>(m_store.get(), m_hands.clock(),
                                                        [&zone] { return zone; });
    m_store->authorizations.at(1)(Authorization::FullAccess);
    answer({});

    zone = QTimeZone("Asia/Tokyo");
    m_controller->reload();

    QCOMPARE(m_store->readings.at(0).from, QDateTime(QDate(2026, 3, 2), QTime(0, 0), Qt::UTC));
    QCOMPARE(m_store->readings.at(1).from, QDateTime(QDate(2026, 3, 1), QTime(15, 0), Qt::UTC));
}

void CalendarControllerTest::reload_unknownTimeZone_isTheLocalDay()
{
    m_controller = std::make_unique<CalendarController>(m_store.get(), m_hands.clock(),
                                                        [] { return QTimeZone(); });
    m_store->authorizations.at(1)(Authorization::FullAccess);

    const auto today = m_hands.now.toLocalTime().date();
    QCOMPARE(m_store->readings.at(0).from, today.startOfDay());
    QCOMPARE(m_store->readings.at(0).to, today.addDays(1).startOfDay());
}

void CalendarControllerTest::reload_answerAfterARefusal_isDropped()
{
    grant();
    m_controller->requestAccess();
    m_store->requests.at(0)(false);

    answer({entry(u"Secret"_s, 1, 2)});

    QVERIFY(m_controller->events().isEmpty());
}

void CalendarControllerTest::event_isAsTheStoreHasIt()
{
    auto call = entry(u"Call"_s, 1, 2);
    call.id = u"work/call"_s;
    call.color = QColor(1, 2, 3);
    grant();

    answer({call});

    const CalendarController::Event event{.id = u"work/call"_s,
                                          .title = u"Call"_s,
                                          .start = m_hands.now.addSecs(3600),
                                          .end = m_hands.now.addSecs(7200),
                                          .allDay = false,
                                          .color = QColor(1, 2, 3)};
    QCOMPARE(m_controller->events(), QList{event});
}

void CalendarControllerTest::event_withoutId_hasAFreshOne()
{
    auto nameless = entry(u"Call"_s, 1, 2);
    nameless.id.reset();
    grant();

    answer({nameless, nameless});

    const auto first = m_controller->events().at(0).id;
    const auto second = m_controller->events().at(1).id;
    QVERIFY(!QUuid(first).isNull());
    QVERIFY(!QUuid(second).isNull());
    QVERIFY(first != second);
}

void CalendarControllerTest::event_withoutTitle_isUntitled()
{
    auto untitled = entry(u"Call"_s, 1, 2);
    untitled.title.reset();
    grant();

    answer({untitled});

    QCOMPARE(titles(), QStringList(u"Untitled"_s));
}

void CalendarControllerTest::event_withoutColor_isPurple()
{
    grant();

    answer({entry(u"Call"_s, 1, 2)});

    QCOMPARE(m_controller->events().at(0).color, Brand::systemPurple());
}

void CalendarControllerTest::event_longTitle_isCut_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("shown");

    QTest::addRow("as long as may be") << QString(500, u'a') << QString(500, u'a');
    QTest::addRow("a megabyte") << QString(1'000'000, u'a') << QString(500, u'a');
    QTest::addRow("never half a character")
        << QString(499, u'a') + u"🦊🦊"_s << QString(499, u'a');
    QTest::addRow("a whole character")
        << QString(498, u'a') + u"🦊🦊"_s << QString(498, u'a') + u"🦊"_s;
}

void CalendarControllerTest::event_longTitle_isCut()
{
    QFETCH(const QString, title);
    QFETCH(const QString, shown);
    grant();

    answer({entry(title, 1, 2)});

    QCOMPARE(titles(), QStringList(shown));
}

void CalendarControllerTest::storeChange_readsAgain()
{
    grant();
    answer({});

    Q_EMIT m_store->changed();

    QCOMPARE(m_store->readings.size(), 2U);
}

void CalendarControllerTest::sameEvents_announceNothing()
{
    grant();
    const QSignalSpy changes(m_controller.get(), &CalendarController::eventsChanged);
    answer({entry(u"Call"_s, 1, 2)});

    m_controller->reload();
    answer({entry(u"Call"_s, 1, 2)});

    QCOMPARE(changes.size(), 1);
}

void CalendarControllerTest::time_alone_changesNothing()
{
    grant();
    answer({entry(u"Call"_s, 1, 2)});

    m_hands.advance(std::chrono::hours(3));

    QCOMPARE(titles(), QStringList(u"Call"_s));
    QCOMPARE(m_store->readings.size(), 1U);
}

void CalendarControllerTest::noStore_staysUnknown()
{
    CalendarController controller(nullptr, m_hands.clock(), QTimeZone::utc());

    controller.requestAccess();
    controller.reload();

    QCOMPARE(controller.access(), Access::Unknown);
    QVERIFY(controller.events().isEmpty());
}

void CalendarControllerTest::answers_afterTheEnd_areHarmless()
{
    int asked = 0; // Which a controller that is gone would do.
    m_controller = std::make_unique<CalendarController>(m_store.get(), [this, &asked] {
        ++asked;
        return m_hands.now;
    });
    m_store->authorizations.at(1)(Authorization::FullAccess);
    m_controller->requestAccess();
    asked = 0;

    m_controller.reset();
    m_store->authorizations.at(1)(Authorization::FullAccess);
    m_store->requests.at(0)(true);
    answer({entry(u"Call"_s, 1, 2)});
    Q_EMIT m_store->changed();

    QCOMPARE(asked, 0);
    QCOMPARE(m_store->readings.size(), 1U);
}

QTEST_GUILESS_MAIN(CalendarControllerTest)
#include "tst_calendarcontroller.moc"
