#include "support/panel/hometab.h"
#include "support/travel.h"

#include "brand/brand.h"
#include "views/motion/beat.h"

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::CalendarAuthorization;

/// The day's events as their user meets them.
class TodayCardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<HomeTab>(); }
    void cleanup() { m_tab.reset(); }

    void calendar_neverAsked_offersToConnect();
    void calendar_connected_showsTheEvents();
    void calendar_denied_saysWhere();
    void calendar_empty_isClear();
    void events_sayWhenAndHowFarOff();
    void timeZoneChanges_eventsSayWhenThere();
    void distance_countsLive();
    void distance_keepsItsWidthWhileItCounts();
    void manyEvents_scroll();

private:
    QQuickItem* part(const QString& name) { return m_tab->part(u"todayCard"_s, name); }
    QString text(const QString& name) { return m_tab->text(u"todayCard"_s, name); }
    QList<QQuickItem*> events() { return m_tab->rows(u"todayCard"_s, u"event"_s); }
    static QString text(QQuickItem* row, const QString& name)
    {
        return textOf(ShownPanel::find(row, name));
    }
    /// The clock of the events, which beats once more at that moment.
    void turnClock(const QDateTime& now);

    std::unique_ptr<HomeTab> m_tab;
};

void TodayCardTest::turnClock(const QDateTime& now)
{
    m_tab->hands.now = now;
    m_tab->item(u"events"_s)->findChild<quib::Beat*>()->setClock(m_tab->hands.clock());
}

void TodayCardTest::calendar_neverAsked_offersToConnect()
{
    QCOMPARE(text(u"heading"_s), u"Today"_s);
    QCOMPARE(text(u"message"_s), u"See today's meetings and calls here."_s);
    QVERIFY(!part(u"left"_s)->isVisible());

    m_tab->calendars.authorizations.front()(CalendarAuthorization::WriteOnly);

    QVERIFY(part(u"connect"_s)->isVisible());
    QCOMPARE(textOf(part(u"connect"_s), "title"), u"Connect Calendar"_s);
    QCOMPARE(colorOf(part(u"connect"_s), "fill"), Brand::purple());
}

void TodayCardTest::calendar_connected_showsTheEvents()
{
    m_tab->click(part(u"connect"_s));
    auto& calendars = m_tab->calendars;
    QCOMPARE(calendars.requests.size(), 1);

    calendars.requests.front()(true);
    calendars.readings.back().answer({m_tab->event(u"Call"_s, 5)});
    m_tab->settle();

    QVERIFY(!part(u"connect"_s)->isVisible());
    QCOMPARE(text(u"left"_s), u"1 left"_s);
    QCOMPARE(events().size(), 1);
}

void TodayCardTest::calendar_denied_saysWhere()
{
    m_tab->calendars.authorizations.front()(CalendarAuthorization::Denied);

    QCOMPARE(text(u"message"_s),
             u"Calendar access is off. Turn it on in System Settings › Privacy & Security › "
             "Calendars."_s);
    QVERIFY(!part(u"connect"_s)->isVisible());
    QVERIFY(!part(u"left"_s)->isVisible());
}

void TodayCardTest::calendar_empty_isClear()
{
    m_tab->grant({});

    QCOMPARE(text(u"message"_s), u"Clear for the rest of the day"_s);
    QCOMPARE(text(u"left"_s), u"0 left"_s);
    QVERIFY(part(u"left"_s)->isVisible());
}

void TodayCardTest::events_sayWhenAndHowFarOff()
{
    auto allDay = m_tab->event(u"Fair"_s, -60);
    allDay.isAllDay = true;
    m_tab->grant({allDay, m_tab->event(u"Call"_s, 5)});
    const auto rows = events();
    QCOMPARE(rows.size(), 2);

    turnClock(m_tab->hands.now);
    QCOMPARE(text(rows[0], u"time"_s), u"All day"_s);
    QVERIFY(!ShownPanel::find(rows[0], u"distance"_s)->isVisible());
    QVERIFY(ShownPanel::find(rows[1], u"distance"_s)->isVisible());
    QCOMPARE(text(rows[1], u"time"_s), u"9:05\u202FAM"_s);
    QCOMPARE(text(rows[1], u"distanceText"_s), u"5 min"_s);
}

void TodayCardTest::timeZoneChanges_eventsSayWhenThere()
{
    const Travel travel("Europe/London");
    m_tab->grant({m_tab->event(u"Call"_s, 5)});
    auto* row = events().front();
    QCOMPARE(text(row, u"time"_s), u"9:05\u202FAM"_s);

    Travel::to("Asia/Tokyo");
    turnClock(m_tab->hands.now.addSecs(1));

    QCOMPARE(text(row, u"time"_s), u"6:05\u202FPM"_s);
}

void TodayCardTest::distance_countsLive()
{
    m_tab->grant({m_tab->event(u"Call"_s, 5)});
    auto* row = events().front();
    turnClock(m_tab->hands.now.addMSecs(400));
    QCOMPARE(text(row, u"distanceText"_s), u"4 min, 59 sec"_s);

    turnClock(m_tab->hands.now.addMSecs(995));
    m_tab->hands.now = m_tab->hands.now.addMSecs(1005);

    QTRY_COMPARE(text(row, u"distanceText"_s), u"4 min, 58 sec"_s);
}

void TodayCardTest::distance_keepsItsWidthWhileItCounts()
{
    m_tab.reset();
    const auto before = QGuiApplication::font();
    QGuiApplication::setFont(QFont(u"Inter"_s)); // Its digits are not of one width.
    m_tab = std::make_unique<HomeTab>();
    m_tab->grant({m_tab->event(u"Call"_s, 15)});
    auto* row = events().front();
    const auto start = m_tab->hands.now;
    QSet<double> widths;

    for (int second = 1; second < 5 * 60; ++second) {
        turnClock(start.addSecs(second));
        if (text(row, u"distanceText"_s).size() == u"10 min, 10 sec"_s.size()) {
            widths << ShownPanel::find(row, u"capsule"_s)->width();
        }
    }

    QGuiApplication::setFont(before);
    QCOMPARE(widths.size(), 1);
}

void TodayCardTest::manyEvents_scroll()
{
    m_tab->grantMany(200);

    QCOMPARE(text(u"left"_s), u"200 left"_s);
    auto* list = m_tab->item(u"events"_s);
    QVERIFY(list->property("overflows").toBool());
    list->forceActiveFocus(Qt::TabFocusReason);
    m_tab->press(Qt::Key_End);
    QVERIFY(list->property("atYEnd").toBool());
}

QTEST_MAIN(TodayCardTest)
#include "tst_todaycard.moc"
