#include "integrations/calendar/calendarfixture.h"
#include "model/time/utc.h"

#include <QScopeGuard>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

/// When the calendars are read, and of which day.
class CalendarDayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reload_readsTheWholeDay_data();
    void reload_readsTheWholeDay();
    void reload_afterMidnight_readsTheNewDay();
    void reload_timeZoneChanges_readsTheNewDay();
    void reload_unknownTimeZone_isTheLocalDay();
    void reload_keepsTheEventsUntilTheAnswer();
    void reload_whileOneIsUnderWay_followsIt();
    void storeChange_readsAgain();
    void time_alone_changesNothing();
};

void CalendarDayTest::reload_readsTheWholeDay_data()
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

void CalendarDayTest::reload_readsTheWholeDay()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const QString, now);
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    CalendarFixture f;
    f.zone = QTimeZone(zone);
    f.hands.now = QDateTime::fromString(now, Qt::ISODate);

    f.grant();

    const auto& reading = f.store.readings.at(0);
    QCOMPARE(reading.from.toUTC(), QDateTime::fromString(from, Qt::ISODate));
    QCOMPARE(reading.to.toUTC(), QDateTime::fromString(to, Qt::ISODate));
}

void CalendarDayTest::reload_afterMidnight_readsTheNewDay()
{
    CalendarFixture f;
    f.grant();
    f.answer({});

    f.hands.now = f.hands.now.addDays(1);
    f.controller.reload();

    QCOMPARE(f.store.readings.at(1).from, f.store.readings.at(0).to);
}

void CalendarDayTest::reload_timeZoneChanges_readsTheNewDay()
{
    CalendarFixture f;
    f.hands.now = QDateTime(QDate(2026, 3, 2), QTime(12, 0), Utc);
    f.zone = QTimeZone("Europe/London");
    f.grant();
    f.answer({});

    f.zone = QTimeZone("Asia/Tokyo");
    f.controller.reload();

    QCOMPARE(f.store.readings.at(0).from, QDateTime(QDate(2026, 3, 2), QTime(0, 0), Utc));
    QCOMPARE(f.store.readings.at(1).from, QDateTime(QDate(2026, 3, 1), QTime(15, 0), Utc));
}

void CalendarDayTest::reload_unknownTimeZone_isTheLocalDay()
{
    qputenv("TZ", "JST-9");
    const auto restore = qScopeGuard([] { qputenv("TZ", "UTC"); });
    CalendarFixture f;
    f.zone = QTimeZone();

    f.grant();

    QCOMPARE(f.store.readings.at(0).from, QDateTime(QDate(2026, 3, 1), QTime(15, 0), Utc));
    QCOMPARE(f.store.readings.at(0).to, QDateTime(QDate(2026, 3, 2), QTime(15, 0), Utc));
}

void CalendarDayTest::reload_keepsTheEventsUntilTheAnswer()
{
    CalendarFixture f;
    f.grant();
    f.answer({f.entry(u"Call"_s, 1, 2)});

    f.controller.reload();

    QCOMPARE(f.titles(), QStringList(u"Call"_s));
    f.answer({f.entry(u"Lunch"_s, 3, 4)});
    QCOMPARE(f.titles(), QStringList(u"Lunch"_s));
}

void CalendarDayTest::reload_whileOneIsUnderWay_followsIt()
{
    CalendarFixture f;
    f.grant();
    for (int i = 0; i < 5; ++i) {
        f.controller.reload();
    }
    QCOMPARE(f.store.readings.size(), 1U);

    f.answer({f.entry(u"First"_s, 1, 2)});

    QCOMPARE(f.titles(), QStringList(u"First"_s));
    QVERIFY(f.controller.isWaiting());
    QCOMPARE(f.store.readings.size(), 2U);
    f.answer({f.entry(u"Second"_s, 1, 2)});
    QCOMPARE(f.titles(), QStringList(u"Second"_s));
    QVERIFY(!f.controller.isWaiting());
    QCOMPARE(f.store.readings.size(), 2U);
}

void CalendarDayTest::storeChange_readsAgain()
{
    CalendarFixture f;
    f.grant();
    f.answer({});

    Q_EMIT f.store.changed();

    QCOMPARE(f.store.readings.size(), 2U);
}

void CalendarDayTest::time_alone_changesNothing()
{
    CalendarFixture f;
    f.grant();
    f.answer({f.entry(u"Call"_s, 1, 2)});

    f.hands.advance(std::chrono::hours(3));

    QCOMPARE(f.titles(), QStringList(u"Call"_s));
    QCOMPARE(f.store.readings.size(), 1U);
}

QTEST_GUILESS_MAIN(CalendarDayTest)
#include "tst_calendarday.moc"
