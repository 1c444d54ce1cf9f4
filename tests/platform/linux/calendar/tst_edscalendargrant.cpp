#include "platform/linux/calendar/calendardesk.h"
#include "platform/linux/calendar/calendarevent.h"
#include "platform/linux/calendar/fakedialog.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// Nothing of the calendars is touched without the grant, nor after a refusal.
class EdsCalendarGrantTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void beforeTheGrant_nothingIsTouched();
    void refused_nothingIsTouched();
    void changed_refusedMeanwhile_readsAnewWhenGranted();
    void refusal_countsMoreThanALateAuthorization();
};

void EdsCalendarGrantTest::beforeTheGrant_nothingIsTouched()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, Call);
    desk.startBus();
    desk.start();

    QCOMPARE(desk.answerTo({u"authorization"_s}), u"0"_s);
    QCOMPARE(desk.answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);

    QVERIFY(!desk.owns(CalendarDesk::Registry));
    QVERIFY(!desk.owns(CalendarDesk::Factory));
    QVERIFY(!desk.hasLoaded(u"libecal"_s));
    QCOMPARE(desk.answerTo({u"request"_s}), u"1"_s);
    QCOMPARE(desk.read(Monday), ShownCall);
    QVERIFY(desk.owns(CalendarDesk::Registry));
    QVERIFY(desk.owns(CalendarDesk::Factory));
    QVERIFY(desk.hasLoaded(u"libecal"_s));
}

void EdsCalendarGrantTest::refused_nothingIsTouched()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, Call);
    desk.startBus();
    desk.setPermission(u"no"_s);
    desk.start();

    QCOMPARE(desk.answerTo({u"authorization"_s}), u"2"_s);
    QCOMPARE(desk.answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);

    QVERIFY(!desk.owns(CalendarDesk::Registry));
    QVERIFY(!desk.hasLoaded(u"libecal"_s));
}

void EdsCalendarGrantTest::changed_refusedMeanwhile_readsAnewWhenGranted()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, {});
    desk.startBus();
    desk.startGranted();
    QCOMPARE(desk.read(Monday), QStringList());
    FakeDialog dialog;
    dialog.response = 1;
    QVERIFY(dialog.start(desk.environment.value(u"DBUS_SESSION_BUS_ADDRESS"_s)));

    QCOMPARE(desk.answerTo({u"request"_s}), u"0"_s);
    QVERIFY(desk.write({u"work"_s, u"add"_s, QString::fromLatin1(Call)}));
    QCOMPARE(desk.answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);

    dialog.response = 0;
    QCOMPARE(desk.answerTo({u"request"_s}), u"1"_s);
    QCOMPARE(desk.read(Monday), ShownCall);
    QCOMPARE(desk.changes(), 0); // Nothing was told while it was refused.
    QVERIFY(desk.write({u"work"_s, u"remove"_s, u"call"_s}));
    QTRY_COMPARE(desk.changes(), 1);
    QVERIFY(desk.quit());
}

void EdsCalendarGrantTest::refusal_countsMoreThanALateAuthorization()
{
    CalendarDesk desk;
    desk.makeCalendar(u"work"_s, Call);
    desk.startBus();
    desk.setPermission(u"yes"_s);
    FakeDialog dialog;
    dialog.response = 1;
    QVERIFY(dialog.start(desk.environment.value(u"DBUS_SESSION_BUS_ADDRESS"_s)));
    desk.signalTo({CalendarDesk::PermissionStore}, SIGSTOP);
    desk.start();

    desk.send({u"authorization"_s});
    QCOMPARE(desk.answerTo({u"request"_s}), u"0"_s);
    desk.signalTo({CalendarDesk::PermissionStore}, SIGCONT);

    QCOMPARE(desk.awaited(u"authorization"_s), u"3"_s);
    QCOMPARE(desk.answerTo({u"read"_s, u"2026-03-02"_s}), u"[]"_s);
}

QTEST_GUILESS_MAIN(EdsCalendarGrantTest)
#include "tst_edscalendargrant.moc"
