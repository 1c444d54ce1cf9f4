#include "platform/linux/calendar/calendardesk.h"
#include "platform/linux/calendar/calendarevent.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray fromTo(const QByteArray& start, const QByteArray& end)
{
    return "DTSTART" + start + "\nDTEND" + end;
}

/// Every kind of event that may lie on that Monday, or beside it.
QByteArray everyKind()
{
    return vevent("day", "Whole day", fromTo(";VALUE=DATE:20260302", ";VALUE=DATE:20260303"))
        + vevent("day-before", "Sunday", fromTo(";VALUE=DATE:20260301", ";VALUE=DATE:20260302"))
        + vevent("day-after", "Tuesday", "DTSTART;VALUE=DATE:20260303")
        + vevent("days", "Six days", fromTo(";VALUE=DATE:20260228", ";VALUE=DATE:20260306"))
        + vevent("weekly-day", "Every Monday", "DTSTART;VALUE=DATE:20260223\nRRULE:FREQ=WEEKLY")
        + vevent("long", "Two nights", fromTo(":20260301T090000Z", ":20260303T170000Z"))
        + vevent("noon", "Noon UTC", fromTo(":20260302T120000Z", ":20260302T123000Z"))
        + vevent("late", "Two UTC", fromTo(":20260303T020000Z", ":20260303T030000Z"))
        + vevent("early", "Sunday noon UTC", fromTo(":20260301T120000Z", ":20260301T130000Z"))
        + vevent("floating", "Floating", fromTo(":20260302T230000", ":20260302T233000"))
        + vevent("floating-daily", "Floating daily",
                 "DTSTART:20260220T070000\nDURATION:PT30M\nRRULE:FREQ=DAILY")
        + vevent("zoned", "New York",
                 fromTo(";TZID=America/New_York:20260302T090000",
                        ";TZID=America/New_York:20260302T093000"))
        + vevent("own", "Own zone",
                 fromTo(";TZID=Own Zone:20260302T110000", ";TZID=Own Zone:20260302T113000"))
        + vevent("daily", "Daily",
                 "DTSTART:20260220T103000Z\nDURATION:PT15M\nRRULE:FREQ=DAILY\n"
                 "EXDATE:20260303T103000Z")
        + vevent("moved", "Weekly", "DTSTART:20260223T060000Z\nDURATION:PT15M\nRRULE:FREQ=WEEKLY")
        + vevent("moved", "Weekly, moved",
                 "RECURRENCE-ID:20260302T060000Z\nDTSTART:20260302T130000Z\nDURATION:PT15M")
        + vevent("cancelled", "Cancelled",
                 "STATUS:CANCELLED\nDTSTART:20260302T090000Z\nDURATION:PT1H")
        + vevent("once", "Once cancelled",
                 "DTSTART:20260220T050000Z\nDURATION:PT15M\nRRULE:FREQ=DAILY")
        + vevent("once", "Once cancelled",
                 "RECURRENCE-ID:20260302T050000Z\nSTATUS:CANCELLED\nDTSTART:20260302T050000Z\n"
                 "DURATION:PT15M")
        + vevent("untitled", "", "DTSTART:20260302T090000Z\nDURATION:PT10M")
        + vevent("moment", "No end", "DTSTART:20260302T070000Z");
}

/// A day of 23 hours, and one of 25, in London.
QByteArray aroundTheChangesOfClocks()
{
    return vevent("spring-day", "Spring", "DTSTART;VALUE=DATE:20260329")
        + vevent("autumn-day", "Autumn", "DTSTART;VALUE=DATE:20261025")
        + vevent("first", "First",
                 "DTSTART;TZID=Europe/London:20260320T001500\nDURATION:PT15M\nRRULE:FREQ=DAILY")
        + vevent("last", "Last",
                 "DTSTART;TZID=Europe/London:20260320T234500\nDURATION:PT10M\nRRULE:FREQ=DAILY")
        + vevent("spring-eve", "Eve", "DTSTART:20260328T231500Z\nDURATION:PT15M")
        + vevent("spring-in", "In", "DTSTART:20260329T223000Z\nDURATION:PT15M")
        + vevent("spring-out", "Out", "DTSTART:20260329T230000Z\nDURATION:PT15M")
        + vevent("autumn-eve", "Eve", "DTSTART:20261024T224500Z\nDURATION:PT15M")
        + vevent("autumn-in", "In", "DTSTART:20261024T231500Z\nDURATION:PT15M")
        + vevent("autumn-one", "Summer", "DTSTART:20261025T003000Z\nDURATION:PT15M")
        + vevent("autumn-two", "Winter", "DTSTART:20261025T013000Z\nDURATION:PT15M")
        + vevent("autumn-late", "Late", "DTSTART:20261025T231500Z\nDURATION:PT15M")
        + vevent("autumn-out", "Out", "DTSTART:20261026T000000Z\nDURATION:PT15M");
}

} // namespace

/// What the user's calendars have on a day, wherever the user is.
class EdsCalendarEventsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void read_givesWhatHappensThatDay_data();
    void read_givesWhatHappensThatDay();
    void read_daysOf23And25Hours_areWhole_data();
    void read_daysOf23And25Hours_areWhole();
    void read_severalCalendars_oneAfterTheOther();
    void read_ids_tellInstancesApart();
    void read_colors_areTheCalendars_data();
    void read_colors_areTheCalendars();
    void read_emptyCalendars_isEmpty();
};

void EdsCalendarEventsTest::read_givesWhatHappensThatDay_data()
{
    QTest::addColumn<QString>("timeZone");
    QTest::addColumn<QStringList>("shown");

    const QStringList everywhere{
        u"*02 00:00 - 03 00:00 Whole day"_s, u"*28 00:00 - 06 00:00 Six days"_s,
        u"*02 00:00 - 03 00:00 Every Monday"_s, u"02 23:00 - 02 23:30 Floating"_s,
        u"02 07:00 - 02 07:30 Floating daily"_s};
    const auto add = [&everywhere](const char* zone, QStringList there) {
        there += everywhere;
        std::ranges::sort(there);
        QTest::addRow("%s", zone) << QString::fromLatin1(zone) << there;
    };
    add("UTC",
        {u"01 09:00 - 03 17:00 Two nights"_s, u"02 12:00 - 02 12:30 Noon UTC"_s,
         u"02 14:00 - 02 14:30 New York"_s, u"02 08:00 - 02 08:30 Own zone"_s,
         u"02 10:30 - 02 10:45 Daily"_s, u"02 13:00 - 02 13:15 Weekly, moved"_s,
         u"02 09:00 - 02 09:10 (none)"_s, u"02 07:00 - 02 07:00 No end"_s});
    add("America/Los_Angeles",
        {u"01 01:00 - 03 09:00 Two nights"_s, u"02 04:00 - 02 04:30 Noon UTC"_s,
         u"02 18:00 - 02 19:00 Two UTC"_s, u"02 06:00 - 02 06:30 New York"_s,
         u"02 00:00 - 02 00:30 Own zone"_s, u"02 02:30 - 02 02:45 Daily"_s,
         u"02 05:00 - 02 05:15 Weekly, moved"_s,
         u"02 21:00 - 02 21:15 Once cancelled"_s, // The next day's.
         u"02 01:00 - 02 01:10 (none)"_s});
    add("Asia/Tokyo",
        {u"01 18:00 - 04 02:00 Two nights"_s, u"02 21:00 - 02 21:30 Noon UTC"_s,
         u"02 23:00 - 02 23:30 New York"_s, u"02 17:00 - 02 17:30 Own zone"_s,
         u"02 19:30 - 02 19:45 Daily"_s, u"02 22:00 - 02 22:15 Weekly, moved"_s,
         u"02 18:00 - 02 18:10 (none)"_s, u"02 16:00 - 02 16:00 No end"_s});
    add("JST-9", // Of which the service knows nothing.
        {u"01 18:00 - 04 02:00 Two nights"_s, u"02 21:00 - 02 21:30 Noon UTC"_s,
         u"02 23:00 - 02 23:30 New York"_s, u"02 17:00 - 02 17:30 Own zone"_s,
         u"02 19:30 - 02 19:45 Daily"_s, u"02 22:00 - 02 22:15 Weekly, moved"_s,
         u"02 18:00 - 02 18:10 (none)"_s, u"02 16:00 - 02 16:00 No end"_s});
    add("Pacific/Kiritimati",
        {u"01 23:00 - 04 07:00 Two nights"_s, u"02 02:00 - 02 03:00 Sunday noon UTC"_s,
         u"02 22:00 - 02 22:30 Own zone"_s,
         u"02 00:30 - 02 00:45 Daily"_s, // Sunday's in UTC.
         u"02 23:00 - 02 23:10 (none)"_s, u"02 21:00 - 02 21:00 No end"_s});
}

void EdsCalendarEventsTest::read_givesWhatHappensThatDay()
{
    QFETCH(const QString, timeZone);
    CalendarDesk desk;
    desk.environment.insert(u"TZ"_s, timeZone);
    desk.makeCalendar(u"work"_s, everyKind());
    desk.startBus();
    desk.startGranted();

    const auto shown = desk.read(Monday);

    QTEST(shown, "shown");
}

void EdsCalendarEventsTest::read_daysOf23And25Hours_areWhole_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QStringList>("shown");

    QTest::addRow("23 hours") << QDate(2026, 3, 29)
                              << QStringList{u"*29 00:00 - 30 00:00 Spring"_s,
                                             u"29 00:15 - 29 00:30 First"_s,
                                             u"29 23:30 - 29 23:45 In"_s,
                                             u"29 23:45 - 29 23:55 Last"_s};
    QTest::addRow("25 hours") << QDate(
        2026, 10,
        25) << QStringList{u"*25 00:00 - 26 00:00 Autumn"_s, u"25 00:15 - 25 00:30 First"_s,
                           u"25 00:15 - 25 00:30 In"_s,      u"25 01:30 - 25 01:45 Summer"_s,
                           u"25 01:30 - 25 01:45 Winter"_s,  u"25 23:15 - 25 23:30 Late"_s,
                           u"25 23:45 - 25 23:55 Last"_s};
}

void EdsCalendarEventsTest::read_daysOf23And25Hours_areWhole()
{
    QFETCH(const QDate, day);
    CalendarDesk desk;
    desk.environment.insert(u"TZ"_s, u"Europe/London"_s);
    desk.makeCalendar(u"work"_s, aroundTheChangesOfClocks());
    desk.startBus();
    desk.startGranted();

    const auto shown = desk.read(day);

    QTEST(shown, "shown");
}

void EdsCalendarEventsTest::read_severalCalendars_oneAfterTheOther()
{
    CalendarDesk desk;
    desk.makeCalendar(u"a"_s, vevent("a", "A", "DTSTART:20260302T120000Z\nDURATION:PT1H"));
    desk.makeCalendar(u"b"_s, vevent("b", "B", "DTSTART:20260302T120000Z\nDURATION:PT1H"));
    desk.startBus();
    desk.startGranted();

    const auto first = desk.answerTo({u"read"_s, u"2026-03-02"_s});
    const auto second = desk.answerTo({u"read"_s, u"2026-03-02"_s});

    QCOMPARE(CalendarDesk::shownIn(first).size(), 2);
    QCOMPARE(second, first);
}

void EdsCalendarEventsTest::read_ids_tellInstancesApart()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s,
                      vevent("often", "Often",
                             "DTSTART:20260302T120000Z\nDURATION:PT5M\nRRULE:FREQ=HOURLY;COUNT=3"));
    desk.startBus();
    desk.startGranted();

    const auto first = desk.answerTo({u"read"_s, u"2026-03-02"_s});
    const auto second = desk.answerTo({u"read"_s, u"2026-03-02"_s});

    QStringList ids;
    for (const auto& entry : QJsonDocument::fromJson(first.toUtf8()).array()) {
        ids << entry[u"id"_s].toString();
    }
    QCOMPARE(ids.size(), 3);
    QCOMPARE(ids.removeDuplicates(), 0);
    QCOMPARE(second, first);
}

void EdsCalendarEventsTest::read_colors_areTheCalendars_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("color");

    QTest::addRow("six digits") << QByteArray("#33d17a") << u"#33d17a"_s;
    QTest::addRow("with an opacity") << QByteArray("#33d17a80") << u"#33d17a"_s;
    QTest::addRow("a word") << QByteArray("orange") << u"#ffa500"_s;
    QTest::addRow("no colour") << QByteArray("blurple") << QString();
}

void EdsCalendarEventsTest::read_colors_areTheCalendars()
{
    QFETCH(const QByteArray, written);
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, Call, written);
    desk.startBus();
    desk.startGranted();

    const auto answer = desk.answerTo({u"read"_s, u"2026-03-02"_s});

    const auto entry = QJsonDocument::fromJson(answer.toUtf8()).array().at(0);
    QTEST(entry[u"color"_s].toString(), "color");
}

void EdsCalendarEventsTest::read_emptyCalendars_isEmpty()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, {});
    desk.startBus();
    desk.startGranted();

    QCOMPARE(desk.answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
}

QTEST_GUILESS_MAIN(EdsCalendarEventsTest)
#include "tst_edscalendarevents.moc"
