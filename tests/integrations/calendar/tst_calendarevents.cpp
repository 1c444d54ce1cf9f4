#include "brand/brand.h"
#include "integrations/calendar/calendarfixture.h"

#include <QSignalSpy>
#include <QTest>
#include <QUuid>

using namespace Qt::StringLiterals;
using namespace quib;

/// What is shown of that which the calendars have.
class CalendarEventsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reload_keepsWhatStillMatters_data();
    void reload_keepsWhatStillMatters();
    void reload_noneLeft_isEmpty();
    void reload_sortsByStart();
    void reload_equalStarts_keepTheStoresOrder();
    void reload_hasNoLimit();
    void event_isAsTheStoreHasIt();
    void event_withoutId_hasAFreshOne();
    void event_withoutTitle_isUntitled();
    void event_withoutColor_isPurple();
    void event_longTitle_isCut_data();
    void event_longTitle_isCut();
    void sameEvents_announceNothing();
};

void CalendarEventsTest::reload_keepsWhatStillMatters_data()
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

void CalendarEventsTest::reload_keepsWhatStillMatters()
{
    QFETCH(const double, from);
    QFETCH(const double, to);
    QFETCH(const bool, isAllDay);
    QFETCH(const bool, isKept);
    CalendarFixture f;
    auto there = f.entry(u"Event"_s, from, to);
    there.isAllDay = isAllDay;
    f.grant();

    f.answer({there});

    QCOMPARE(f.controller.events().size(), isKept ? 1 : 0);
}

void CalendarEventsTest::reload_noneLeft_isEmpty()
{
    CalendarFixture f;
    f.grant();
    f.answer({f.entry(u"Call"_s, 1, 2)});

    f.hands.advance(std::chrono::hours(3));
    f.controller.reload();
    f.answer({f.entry(u"Call"_s, -2, -1)});

    QVERIFY(f.controller.events().isEmpty());
}

void CalendarEventsTest::reload_sortsByStart()
{
    CalendarFixture f;
    auto day = f.entry(u"Day"_s, -9, 15);
    day.isAllDay = true;
    f.grant();

    f.answer({f.entry(u"Late"_s, 5, 6), f.entry(u"Soon"_s, 1, 2), day, f.entry(u"Now"_s, -1, 8)});

    QCOMPARE(f.titles(), QStringList({u"Day"_s, u"Now"_s, u"Soon"_s, u"Late"_s}));
}

void CalendarEventsTest::reload_equalStarts_keepTheStoresOrder()
{
    CalendarFixture f;
    QList<CalendarEntry> entries;
    QStringList expected;
    for (int i = 0; i < 40; ++i) {
        entries << f.entry(u"%1"_s.arg((i * 7) % 40), 1, 2 + i % 3);
        expected << *entries.back().title;
    }
    entries << f.entry(u"First"_s, 0.5, 2);
    f.grant();

    f.answer(entries);

    QCOMPARE(f.titles(), QStringList(u"First"_s) + expected);
}

void CalendarEventsTest::reload_hasNoLimit()
{
    CalendarFixture f;
    f.grant();

    f.answer(QList<CalendarEntry>(5000, f.entry(u"Call"_s, 1, 2)));

    QCOMPARE(f.controller.events().size(), 5000);
}

void CalendarEventsTest::event_isAsTheStoreHasIt()
{
    CalendarFixture f;
    auto call = f.entry(u"Call"_s, 1, 2);
    call.id = u"work/call"_s;
    call.color = QColor(1, 2, 3);
    f.grant();

    f.answer({call});

    const CalendarController::Event event{.id = u"work/call"_s,
                                          .title = u"Call"_s,
                                          .start = f.hands.now.addSecs(3600),
                                          .end = f.hands.now.addSecs(7200),
                                          .allDay = false,
                                          .color = QColor(1, 2, 3)};
    QCOMPARE(f.controller.events(), QList{event});
}

void CalendarEventsTest::event_withoutId_hasAFreshOne()
{
    CalendarFixture f;
    auto nameless = f.entry(u"Call"_s, 1, 2);
    nameless.id.reset();
    f.grant();

    f.answer({nameless, nameless});

    const auto first = f.controller.events().at(0).id;
    const auto second = f.controller.events().at(1).id;
    QVERIFY(!QUuid(first).isNull());
    QVERIFY(!QUuid(second).isNull());
    QVERIFY(first != second);
}

void CalendarEventsTest::event_withoutTitle_isUntitled()
{
    CalendarFixture f;
    auto untitled = f.entry(u"Call"_s, 1, 2);
    untitled.title.reset();
    f.grant();

    f.answer({untitled});

    QCOMPARE(f.titles(), QStringList(u"Untitled"_s));
}

void CalendarEventsTest::event_withoutColor_isPurple()
{
    CalendarFixture f;
    f.grant();

    f.answer({f.entry(u"Call"_s, 1, 2)});

    QCOMPARE(f.controller.events().at(0).color, Brand::systemPurple());
}

void CalendarEventsTest::event_longTitle_isCut_data()
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

void CalendarEventsTest::event_longTitle_isCut()
{
    QFETCH(const QString, title);
    QFETCH(const QString, shown);
    CalendarFixture f;
    f.grant();

    f.answer({f.entry(title, 1, 2)});

    QCOMPARE(f.titles(), QStringList(shown));
}

void CalendarEventsTest::sameEvents_announceNothing()
{
    CalendarFixture f;
    f.grant();
    const QSignalSpy changes(&f.controller, &CalendarController::eventsChanged);
    f.answer({f.entry(u"Call"_s, 1, 2)});

    f.controller.reload();
    f.answer({f.entry(u"Call"_s, 1, 2)});

    QCOMPARE(changes.size(), 1);
}

QTEST_GUILESS_MAIN(CalendarEventsTest)
#include "tst_calendarevents.moc"
