#include "platform/linux/calendar/calendardesk.h"
#include "platform/linux/calendar/calendarevent.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What other programs do to the calendars while we look.
class EdsCalendarChangesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void changed_anotherProgramAddsMovesAndDeletes();
    void changed_anotherProgramPaints();
    void changed_onTheDayReadLast();
};

void EdsCalendarChangesTest::changed_anotherProgramAddsMovesAndDeletes()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, {});
    desk.startBus();
    desk.startGranted();
    QCOMPARE(desk.read(Monday), QStringList());

    QVERIFY(desk.write({u"work"_s, u"add"_s, QString::fromLatin1(Call)}));
    QTRY_COMPARE(desk.changes(), 1);
    QCOMPARE(desk.read(Monday), ShownCall);

    const auto later = vevent("call", "Call", "DTSTART:20260302T150000Z\nDURATION:PT30M");
    QVERIFY(desk.write({u"work"_s, u"modify"_s, QString::fromLatin1(later)}));
    QTRY_COMPARE(desk.changes(), 2);
    QCOMPARE(desk.read(Monday), QStringList(u"02 15:00 - 02 15:30 Call"_s));

    QVERIFY(desk.write({u"work"_s, u"remove"_s, u"call"_s}));
    QTRY_COMPARE(desk.changes(), 3);
    QCOMPARE(desk.read(Monday), QStringList());
}

void EdsCalendarChangesTest::changed_anotherProgramPaints()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, Call);
    desk.startBus();
    desk.startGranted();
    desk.read(Monday);

    QVERIFY(desk.write({u"work"_s, u"paint"_s, u"#ff7800"_s}));

    QTRY_VERIFY(desk.changes() > 0);
    QVERIFY(desk.answerTo({u"read"_s, u"2026-03-02"_s}).contains(u"#ff7800"_s));
}

void EdsCalendarChangesTest::changed_onTheDayReadLast()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, {});
    desk.startBus();
    desk.startGranted();
    desk.read(Monday);
    desk.read(Monday.addDays(10));

    const auto late = vevent("call", "Call", "DTSTART:20260312T120000Z\nDURATION:PT30M");
    QVERIFY(desk.write({u"work"_s, u"add"_s, QString::fromLatin1(late)}));

    QTRY_VERIFY(desk.changes() > 0);
    QCOMPARE(desk.read(Monday.addDays(10)), QStringList(u"12 12:00 - 12 12:30 Call"_s));
}

QTEST_GUILESS_MAIN(EdsCalendarChangesTest)
#include "tst_edscalendarchanges.moc"
