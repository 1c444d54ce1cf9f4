#include "platform/linux/calendar/calendardesk.h"
#include "platform/linux/calendar/calendarevent.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// With one calendar, which has been read.
struct ReadDesk : CalendarDesk {
    QStringList shown;

    ReadDesk()
    {
        makeCalendar(u"work"_s, Call);
        startBus();
        startGranted();
        shown = read(Monday);
    }
};

} // namespace

/// A service of the calendars that dies, hangs or is missing.
class EdsCalendarServiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void killedService_isStartedAgain();
    void serviceKilledOften_isStartedAgainSoon();
    void serviceKilledWhileItReads_leavesWhatWasRead();
    void hungService_holdsUpNothing();
    void hungCalendar_holdsUpNoOther();
    void hungCalendar_keepsNoThreadOfDaysThatAreOver();
    void hungCalendar_holdsUpNotTheEnd();
    void hungRegistry_holdsUpNeitherThePanelNorTheEnd();
    void manyRecurringEvents_canBeQuitFrom();
    void noService_isEmpty();
    void noBus_isEmpty();
    void noPlugin_isEmpty();
    void deadBus_isSurvived();
    void busBack_isReadFromAgain_data();
    void busBack_isReadFromAgain();
};

void EdsCalendarServiceTest::killedService_isStartedAgain()
{
    ReadDesk desk;
    QCOMPARE(desk.shown, ShownCall);
    const auto before = desk.changes();

    desk.signalTo(CalendarDesk::Processes, SIGKILL);

    QTRY_VERIFY(desk.changes() > before);
    QCOMPARE(desk.read(Monday), ShownCall);
}

void EdsCalendarServiceTest::serviceKilledOften_isStartedAgainSoon()
{
    CalendarDesk desk;
    for (const auto& id : {u"a"_s, u"b"_s, u"c"_s}) {
        desk.makeCalendar(id, Call);
    }
    desk.startBus();
    desk.startGranted();
    QCOMPARE(desk.read(Monday).size(), 3);

    for (const auto& color : {u"#ff0000"_s, u"#ff7800"_s, u"#00ff00"_s, u"#0000ff"_s}) {
        const auto before = desk.changes();
        desk.signalTo(CalendarDesk::Processes, SIGKILL);
        QTRY_VERIFY(desk.changes() > before);
        QCOMPARE(desk.read(Monday).size(), 3);
        const auto then = desk.changes();
        QVERIFY(desk.write({u"a"_s, u"paint"_s, color}));
        QTRY_VERIFY(desk.changes() > then);
        QVERIFY(desk.answerTo({u"read"_s, u"2026-03-02"_s}).contains(color));
    }
}

void EdsCalendarServiceTest::serviceKilledWhileItReads_leavesWhatWasRead()
{
    ReadDesk desk;
    QCOMPARE(desk.shown, ShownCall);

    desk.signalTo(CalendarDesk::Processes, SIGSTOP);
    desk.send({u"read"_s, u"2026-03-02"_s});
    QCOMPARE(desk.answerTo({u"alive"_s}), u"yes"_s);
    desk.signalTo(CalendarDesk::Processes, SIGKILL);

    QCOMPARE(CalendarDesk::shownIn(desk.awaited(u"read"_s)), ShownCall);
}

void EdsCalendarServiceTest::hungService_holdsUpNothing()
{
    ReadDesk desk;
    QCOMPARE(desk.shown, ShownCall);

    desk.signalTo(CalendarDesk::Processes, SIGSTOP);
    desk.send({u"read"_s, u"2026-03-03"_s});
    QCOMPARE(desk.answerTo({u"alive"_s}), u"yes"_s);
    desk.signalTo(CalendarDesk::Processes, SIGCONT);
    QCOMPARE(desk.awaited(u"read"_s), u"[]"_s);

    desk.signalTo(CalendarDesk::Processes, SIGSTOP);
    desk.send({u"read"_s, u"2026-03-02"_s});
    QCOMPARE(desk.answerTo({u"alive"_s}), u"yes"_s);
    QVERIFY(!desk.hasAnswer(u"read"_s));
    QVERIFY(desk.quit());
}

void EdsCalendarServiceTest::hungCalendar_holdsUpNoOther()
{
    CalendarDesk desk;
    desk.makeHungCalendar(u"holidays"_s);
    desk.makeCalendar(u"work"_s, Call);
    desk.startBus();
    desk.startGranted();

    QCOMPARE(desk.read(Monday), ShownCall);
    const auto before = desk.changes();
    QVERIFY(desk.write({u"work"_s, u"paint"_s, u"#00ff00"_s}));
    QTRY_VERIFY(desk.changes() > before);
    QCOMPARE(desk.read(Monday), ShownCall);

    const auto then = desk.changes();
    desk.endHanging(u"holidays"_s, Call);
    QTRY_VERIFY(desk.changes() > then);
    QCOMPARE(desk.read(Monday).size(), 2);
    QVERIFY(desk.quit());
}

void EdsCalendarServiceTest::hungCalendar_keepsNoThreadOfDaysThatAreOver()
{
    constexpr int Days = 4;
    constexpr int ComeAndGo = 2; // Of the libraries.
    CalendarDesk desk;
    desk.makeHungCalendar(u"holidays"_s);
    desk.makeCalendar(u"work"_s, Call);
    desk.startBus();
    desk.startGranted();
    QCOMPARE(desk.read(Monday), ShownCall);
    const auto before = desk.threads();

    for (int day = 1; day <= Days; ++day) {
        QCOMPARE(desk.read(Monday.addDays(day)), QStringList());
    }

    QTRY_VERIFY(desk.threads() <= before + ComeAndGo);
    desk.endHanging(u"holidays"_s, Call);
}

void EdsCalendarServiceTest::hungCalendar_holdsUpNotTheEnd()
{
    CalendarDesk desk;
    desk.makeHungCalendar(u"holidays"_s);
    desk.makeCalendar(u"work"_s, Call);
    desk.startBus();
    desk.startGranted();
    QCOMPARE(desk.read(Monday), ShownCall);

    QVERIFY(desk.quit()); // It would hang for ever.

    desk.endHanging(u"holidays"_s, Call);
}

void EdsCalendarServiceTest::hungRegistry_holdsUpNeitherThePanelNorTheEnd()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, Call);
    desk.startBus();
    desk.startService(CalendarDesk::Registry);
    desk.signalTo({CalendarDesk::Registry}, SIGSTOP);
    desk.startGranted();

    desk.send({u"read"_s, u"2026-03-02"_s});

    QTRY_COMPARE(desk.connections(), 2); // The second is the library's.
    QCOMPARE(desk.answerTo({u"alive"_s}), u"yes"_s);
    QVERIFY(!desk.hasAnswer(u"read"_s));
    QVERIFY(desk.quit());
}

void EdsCalendarServiceTest::manyRecurringEvents_canBeQuitFrom()
{
    CalendarDesk desk;
    QByteArray events;
    for (int i = 0; i < 400; ++i) {
        events += vevent(
            "daily" + QByteArray::number(i), "Daily",
            "DTSTART;TZID=Europe/Berlin:20150105T100000\nDURATION:PT5M\nRRULE:FREQ=DAILY");
    }
    desk.makeCalendar(u"work"_s, events);
    desk.startBus();
    desk.startGranted();

    desk.send({u"read"_s, u"2026-03-02"_s});
    QTRY_VERIFY(desk.owns(CalendarDesk::Factory));

    QCOMPARE(desk.answerTo({u"alive"_s}), u"yes"_s);
    QVERIFY(desk.quit());
}

void EdsCalendarServiceTest::noService_isEmpty()
{
    CalendarDesk desk;
    desk.startBus({CalendarDesk::PermissionStore});
    desk.startGranted();

    QCOMPARE(desk.answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
    QVERIFY(desk.quit());
}

void EdsCalendarServiceTest::noBus_isEmpty()
{
    CalendarDesk desk;
    desk.startGranted();

    QCOMPARE(desk.answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
    QVERIFY(!desk.hasLoaded(u"libecal"_s));
}

void EdsCalendarServiceTest::noPlugin_isEmpty()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, Call);
    desk.startBus();
    desk.startGranted(u"/nowhere/quib-eds.so"_s);

    QCOMPARE(desk.answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
    QCOMPARE(desk.complaints(), QByteArray());
}

void EdsCalendarServiceTest::deadBus_isSurvived()
{
    ReadDesk desk;
    QCOMPARE(desk.shown, ShownCall);

    desk.killBus();

    QVERIFY(!desk.answerTo({u"read"_s, u"2026-03-02"_s}).isEmpty());
    QVERIFY(desk.quit());
}

void EdsCalendarServiceTest::busBack_isReadFromAgain_data()
{
    QTest::addColumn<bool>("isReadMeanwhile");

    QTest::addRow("nobody asked meanwhile") << false;
    QTest::addRow("read while there was none") << true;
}

/// And what changes is told.
void EdsCalendarServiceTest::busBack_isReadFromAgain()
{
    QFETCH(const bool, isReadMeanwhile);
    ReadDesk desk;
    QCOMPARE(desk.shown, ShownCall);
    for (int round = 0; round < 2; ++round) {
        desk.killBus();
        QVERIFY(!isReadMeanwhile || desk.read(Monday) == ShownCall);
        const auto before = desk.changes();

        desk.startBus();

        QTRY_VERIFY_WITH_TIMEOUT(desk.changes() > before, 10'000);
        QTRY_VERIFY(desk.read(Monday) == ShownCall && desk.connections() == 2);
        const auto then = desk.changes();
        QVERIFY(desk.write({u"work"_s, u"paint"_s, round == 0 ? u"#ff0000"_s : u"#0000ff"_s}));
        QTRY_VERIFY(desk.changes() > then);
    }
    QVERIFY(desk.answerTo({u"read"_s, u"2026-03-02"_s}).contains(u"#0000ff"_s));
    QVERIFY(desk.quit());
}

QTEST_GUILESS_MAIN(EdsCalendarServiceTest)
#include "tst_edscalendarservice.moc"
