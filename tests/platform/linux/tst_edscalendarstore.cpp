#include "platform/linux/calendardesk.h"
#include "platform/linux/fakedialog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

const QDate Monday(2026, 3, 2);

/// Times as files have them; the lines between BEGIN and END.
QByteArray vevent(const QByteArray& uid, const QByteArray& title, const QByteArray& lines)
{
    return "BEGIN:VEVENT\nUID:" + uid + "\nDTSTAMP:20260101T000000Z\n"
        + (title.isEmpty() ? QByteArray() : "SUMMARY:" + title + "\n") + lines + "\nEND:VEVENT\n";
}

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

const QByteArray Call = vevent("call", "Call", "DTSTART:20260302T120000Z\nDURATION:PT30M");
const QStringList ShownCall{u"02 12:00 - 02 12:30 Call"_s};

} // namespace

class EdsCalendarStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void read_givesWhatHappensThatDay_data();
    void read_givesWhatHappensThatDay();
    void read_daysOf23And25Hours_areWhole_data();
    void read_daysOf23And25Hours_areWhole();
    void read_severalCalendars_oneAfterTheOther();
    void read_ids_tellInstancesApart();
    void read_colors_areTheCalendars_data();
    void read_colors_areTheCalendars();
    void read_emptyCalendars_isEmpty();
    void beforeTheGrant_nothingIsTouched();
    void refused_nothingIsTouched();
    void changed_anotherProgramAddsMovesAndDeletes();
    void changed_anotherProgramPaints();
    void changed_onTheDayReadLast();
    void changed_refusedMeanwhile_readsAnewWhenGranted();
    void refusal_countsMoreThanALateAuthorization();
    void killedService_isStartedAgain();
    void serviceKilledOften_isStartedAgainSoon();
    void serviceKilledWhileItReads_leavesWhatWasRead();
    void hungService_holdsUpNothing();
    void hungRegistry_holdsUpNeitherThePanelNorTheEnd();
    void manyRecurringEvents_canBeQuitFrom();
    void noService_isEmpty();
    void noBus_isEmpty();
    void noPlugin_isEmpty();
    void deadBus_isSurvived();

private:
    std::unique_ptr<CalendarDesk> m_desk;
};

void EdsCalendarStoreTest::init()
{
    m_desk = std::make_unique<CalendarDesk>();
}

void EdsCalendarStoreTest::cleanup()
{
    m_desk.reset();
}

void EdsCalendarStoreTest::read_givesWhatHappensThatDay_data()
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

void EdsCalendarStoreTest::read_givesWhatHappensThatDay()
{
    QFETCH(const QString, timeZone);
    m_desk->environment.insert(u"TZ"_s, timeZone);
    m_desk->makeCalendar(u"work"_s, everyKind());
    m_desk->startBus();
    m_desk->startGranted();

    const auto shown = m_desk->read(Monday);

    QTEST(shown, "shown");
}

void EdsCalendarStoreTest::read_daysOf23And25Hours_areWhole_data()
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

void EdsCalendarStoreTest::read_daysOf23And25Hours_areWhole()
{
    QFETCH(const QDate, day);
    m_desk->environment.insert(u"TZ"_s, u"Europe/London"_s);
    m_desk->makeCalendar(u"work"_s, aroundTheChangesOfClocks());
    m_desk->startBus();
    m_desk->startGranted();

    const auto shown = m_desk->read(day);

    QTEST(shown, "shown");
}

void EdsCalendarStoreTest::read_severalCalendars_oneAfterTheOther()
{
    m_desk->makeCalendar(u"a"_s, vevent("a", "A", "DTSTART:20260302T120000Z\nDURATION:PT1H"));
    m_desk->makeCalendar(u"b"_s, vevent("b", "B", "DTSTART:20260302T120000Z\nDURATION:PT1H"));
    m_desk->startBus();
    m_desk->startGranted();

    const auto first = m_desk->answerTo({u"read"_s, u"2026-03-02"_s});
    const auto second = m_desk->answerTo({u"read"_s, u"2026-03-02"_s});

    QCOMPARE(CalendarDesk::shownIn(first).size(), 2);
    QCOMPARE(second, first);
}

void EdsCalendarStoreTest::read_ids_tellInstancesApart()
{
    m_desk->makeCalendar(
        u"work"_s,
        vevent("often", "Often",
               "DTSTART:20260302T120000Z\nDURATION:PT5M\nRRULE:FREQ=HOURLY;COUNT=3"));
    m_desk->startBus();
    m_desk->startGranted();

    const auto first = m_desk->answerTo({u"read"_s, u"2026-03-02"_s});
    const auto second = m_desk->answerTo({u"read"_s, u"2026-03-02"_s});

    QStringList ids;
    for (const auto& entry : QJsonDocument::fromJson(first.toUtf8()).array()) {
        ids << entry[u"id"_s].toString();
    }
    QCOMPARE(ids.size(), 3);
    QCOMPARE(ids.removeDuplicates(), 0);
    QCOMPARE(second, first);
}

void EdsCalendarStoreTest::read_colors_areTheCalendars_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("color");

    QTest::addRow("six digits") << QByteArray("#33d17a") << u"#33d17a"_s;
    QTest::addRow("with an opacity") << QByteArray("#33d17a80") << u"#33d17a"_s;
    QTest::addRow("a word") << QByteArray("orange") << u"#ffa500"_s;
    QTest::addRow("no colour") << QByteArray("blurple") << QString();
}

void EdsCalendarStoreTest::read_colors_areTheCalendars()
{
    QFETCH(const QByteArray, written);
    m_desk->makeCalendar(u"work"_s, Call, written);
    m_desk->startBus();
    m_desk->startGranted();

    const auto answer = m_desk->answerTo({u"read"_s, u"2026-03-02"_s});

    const auto entry = QJsonDocument::fromJson(answer.toUtf8()).array()[0];
    QTEST(entry[u"color"_s].toString(), "color");
}

void EdsCalendarStoreTest::read_emptyCalendars_isEmpty()
{
    m_desk->makeCalendar(u"work"_s, {});
    m_desk->startBus();
    m_desk->startGranted();

    QCOMPARE(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
}

void EdsCalendarStoreTest::beforeTheGrant_nothingIsTouched()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->start();

    QCOMPARE(m_desk->answerTo({u"authorization"_s}), u"0"_s);
    QCOMPARE(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);

    QVERIFY(!m_desk->owns(CalendarDesk::Registry));
    QVERIFY(!m_desk->owns(CalendarDesk::Factory));
    QVERIFY(!m_desk->hasLoaded(u"libecal"_s));
    QCOMPARE(m_desk->answerTo({u"request"_s}), u"1"_s);
    QCOMPARE(m_desk->read(Monday), ShownCall);
    QVERIFY(m_desk->owns(CalendarDesk::Registry));
    QVERIFY(m_desk->owns(CalendarDesk::Factory));
    QVERIFY(m_desk->hasLoaded(u"libecal"_s));
}

void EdsCalendarStoreTest::refused_nothingIsTouched()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->setPermission(u"no"_s);
    m_desk->start();

    QCOMPARE(m_desk->answerTo({u"authorization"_s}), u"2"_s);
    QCOMPARE(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);

    QVERIFY(!m_desk->owns(CalendarDesk::Registry));
    QVERIFY(!m_desk->hasLoaded(u"libecal"_s));
}

void EdsCalendarStoreTest::changed_anotherProgramAddsMovesAndDeletes()
{
    m_desk->makeCalendar(u"work"_s, {});
    m_desk->startBus();
    m_desk->startGranted();
    QCOMPARE(m_desk->read(Monday), QStringList());

    QVERIFY(m_desk->write({u"work"_s, u"add"_s, QString::fromLatin1(Call)}));
    QTRY_COMPARE(m_desk->changes(), 1);
    QCOMPARE(m_desk->read(Monday), ShownCall);

    const auto later = vevent("call", "Call", "DTSTART:20260302T150000Z\nDURATION:PT30M");
    QVERIFY(m_desk->write({u"work"_s, u"modify"_s, QString::fromLatin1(later)}));
    QTRY_COMPARE(m_desk->changes(), 2);
    QCOMPARE(m_desk->read(Monday), QStringList(u"02 15:00 - 02 15:30 Call"_s));

    QVERIFY(m_desk->write({u"work"_s, u"remove"_s, u"call"_s}));
    QTRY_COMPARE(m_desk->changes(), 3);
    QCOMPARE(m_desk->read(Monday), QStringList());
}

void EdsCalendarStoreTest::changed_anotherProgramPaints()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->startGranted();
    m_desk->read(Monday);

    QVERIFY(m_desk->write({u"work"_s, u"paint"_s, u"#ff7800"_s}));

    QTRY_VERIFY(m_desk->changes() > 0);
    QVERIFY(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}).contains(u"#ff7800"_s));
}

void EdsCalendarStoreTest::changed_onTheDayReadLast()
{
    m_desk->makeCalendar(u"work"_s, {});
    m_desk->startBus();
    m_desk->startGranted();
    m_desk->read(Monday);
    m_desk->read(Monday.addDays(10));

    const auto late = vevent("call", "Call", "DTSTART:20260312T120000Z\nDURATION:PT30M");
    QVERIFY(m_desk->write({u"work"_s, u"add"_s, QString::fromLatin1(late)}));

    QTRY_VERIFY(m_desk->changes() > 0);
    QCOMPARE(m_desk->read(Monday.addDays(10)), QStringList(u"12 12:00 - 12 12:30 Call"_s));
}

void EdsCalendarStoreTest::changed_refusedMeanwhile_readsAnewWhenGranted()
{
    m_desk->makeCalendar(u"work"_s, {});
    m_desk->startBus();
    m_desk->startGranted();
    QCOMPARE(m_desk->read(Monday), QStringList());
    FakeDialog dialog;
    dialog.response = 1;
    QVERIFY(dialog.start(m_desk->environment.value(u"DBUS_SESSION_BUS_ADDRESS"_s)));

    QCOMPARE(m_desk->answerTo({u"request"_s}), u"0"_s);
    QVERIFY(m_desk->write({u"work"_s, u"add"_s, QString::fromLatin1(Call)}));
    QCOMPARE(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);

    dialog.response = 0;
    QCOMPARE(m_desk->answerTo({u"request"_s}), u"1"_s);
    QCOMPARE(m_desk->read(Monday), ShownCall);
    QCOMPARE(m_desk->changes(), 0); // Nothing was told while it was refused.
    QVERIFY(m_desk->write({u"work"_s, u"remove"_s, u"call"_s}));
    QTRY_COMPARE(m_desk->changes(), 1);
    QVERIFY(m_desk->quit());
}

void EdsCalendarStoreTest::refusal_countsMoreThanALateAuthorization()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->setPermission(u"yes"_s);
    FakeDialog dialog;
    dialog.response = 1;
    QVERIFY(dialog.start(m_desk->environment.value(u"DBUS_SESSION_BUS_ADDRESS"_s)));
    m_desk->signalTo({CalendarDesk::PermissionStore}, SIGSTOP);
    m_desk->start();

    m_desk->send({u"authorization"_s});
    QCOMPARE(m_desk->answerTo({u"request"_s}), u"0"_s);
    m_desk->signalTo({CalendarDesk::PermissionStore}, SIGCONT);

    QCOMPARE(m_desk->awaited(u"authorization"_s), u"3"_s);
    QCOMPARE(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
}

void EdsCalendarStoreTest::killedService_isStartedAgain()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->startGranted();
    QCOMPARE(m_desk->read(Monday), ShownCall);
    const auto before = m_desk->changes();

    m_desk->signalTo(CalendarDesk::Processes, SIGKILL);

    QTRY_VERIFY(m_desk->changes() > before);
    QCOMPARE(m_desk->read(Monday), ShownCall);
}

void EdsCalendarStoreTest::serviceKilledOften_isStartedAgainSoon()
{
    for (const auto& id : {u"a"_s, u"b"_s, u"c"_s}) {
        m_desk->makeCalendar(id, Call);
    }
    m_desk->startBus();
    m_desk->startGranted();
    QCOMPARE(m_desk->read(Monday).size(), 3);

    for (const auto& color : {u"#ff0000"_s, u"#ff7800"_s, u"#00ff00"_s, u"#0000ff"_s}) {
        const auto before = m_desk->changes();
        m_desk->signalTo(CalendarDesk::Processes, SIGKILL);
        QTRY_VERIFY(m_desk->changes() > before);
        QCOMPARE(m_desk->read(Monday).size(), 3);
        const auto then = m_desk->changes();
        QVERIFY(m_desk->write({u"a"_s, u"paint"_s, color}));
        QTRY_VERIFY(m_desk->changes() > then);
        QVERIFY(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}).contains(color));
    }
}

void EdsCalendarStoreTest::serviceKilledWhileItReads_leavesWhatWasRead()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->startGranted();
    QCOMPARE(m_desk->read(Monday), ShownCall);

    m_desk->signalTo(CalendarDesk::Processes, SIGSTOP);
    m_desk->send({u"read"_s, u"2026-03-02"_s});
    QCOMPARE(m_desk->answerTo({u"alive"_s}), u"yes"_s);
    m_desk->signalTo(CalendarDesk::Processes, SIGKILL);

    QCOMPARE(CalendarDesk::shownIn(m_desk->awaited(u"read"_s)), ShownCall);
}

void EdsCalendarStoreTest::hungService_holdsUpNothing()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->startGranted();
    QCOMPARE(m_desk->read(Monday), ShownCall);

    m_desk->signalTo(CalendarDesk::Processes, SIGSTOP);
    m_desk->send({u"read"_s, u"2026-03-03"_s});
    QCOMPARE(m_desk->answerTo({u"alive"_s}), u"yes"_s);
    m_desk->signalTo(CalendarDesk::Processes, SIGCONT);
    QCOMPARE(m_desk->awaited(u"read"_s), u"[]"_s);

    m_desk->signalTo(CalendarDesk::Processes, SIGSTOP);
    m_desk->send({u"read"_s, u"2026-03-02"_s});
    QCOMPARE(m_desk->answerTo({u"alive"_s}), u"yes"_s);
    QVERIFY(!m_desk->hasAnswer(u"read"_s));
    QVERIFY(m_desk->quit());
}

void EdsCalendarStoreTest::hungRegistry_holdsUpNeitherThePanelNorTheEnd()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->startService(CalendarDesk::Registry);
    m_desk->signalTo({CalendarDesk::Registry}, SIGSTOP);
    m_desk->startGranted();

    m_desk->send({u"read"_s, u"2026-03-02"_s});

    QTRY_COMPARE(m_desk->connections(), 2); // The second is the library's.
    QCOMPARE(m_desk->answerTo({u"alive"_s}), u"yes"_s);
    QVERIFY(!m_desk->hasAnswer(u"read"_s));
    QVERIFY(m_desk->quit());
}

void EdsCalendarStoreTest::manyRecurringEvents_canBeQuitFrom()
{
    QByteArray events;
    for (int i = 0; i < 400; ++i) {
        events += vevent(
            "daily" + QByteArray::number(i), "Daily",
            "DTSTART;TZID=Europe/Berlin:20150105T100000\nDURATION:PT5M\nRRULE:FREQ=DAILY");
    }
    m_desk->makeCalendar(u"work"_s, events);
    m_desk->startBus();
    m_desk->startGranted();

    m_desk->send({u"read"_s, u"2026-03-02"_s});
    QTRY_VERIFY(m_desk->owns(CalendarDesk::Factory));

    QCOMPARE(m_desk->answerTo({u"alive"_s}), u"yes"_s);
    QVERIFY(m_desk->quit());
}

void EdsCalendarStoreTest::noService_isEmpty()
{
    m_desk->startBus({CalendarDesk::PermissionStore});
    m_desk->startGranted();

    QCOMPARE(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
    QVERIFY(m_desk->quit());
}

void EdsCalendarStoreTest::noBus_isEmpty()
{
    m_desk->startGranted();

    QCOMPARE(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
    QVERIFY(!m_desk->hasLoaded(u"libecal"_s));
}

void EdsCalendarStoreTest::noPlugin_isEmpty()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->startGranted(u"/nowhere/quib-eds.so"_s);

    QCOMPARE(m_desk->answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
    QCOMPARE(m_desk->complaints(), QByteArray());
}

void EdsCalendarStoreTest::deadBus_isSurvived()
{
    m_desk->makeCalendar(u"work"_s, Call);
    m_desk->startBus();
    m_desk->startGranted();
    QCOMPARE(m_desk->read(Monday), ShownCall);

    m_desk->killBus();

    QVERIFY(!m_desk->answerTo({u"read"_s, u"2026-03-02"_s}).isEmpty());
    QVERIFY(m_desk->quit());
}

QTEST_GUILESS_MAIN(EdsCalendarStoreTest)
#include "tst_edscalendarstore.moc"
