#include "model/time/utc.h"
#include "support/panel/timetab.h"

#include "brand/brand.h"
#include "model/locale/money.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Brand;
using quib::Tab;
using quib::Utc;

/// The time per client as its user meets it.
class TotalsCardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TimeTab>(); }
    void cleanup() { m_tab.reset(); }

    void empty_saysNoTimeLoggedYet();
    void bars_areSharesOfTheTotal();
    void unassignedTime_isGreyAndEarnsNothing();
    void deletedClient_readsNoClient();
    void entryThatEndsBeforeItStarts_readsNothing();
    void amountsReadFromTheRight_areTextsOfTheirOwn_data();
    void amountsReadFromTheRight_areTextsOfTheirOwn();
    void weekThatBeganInThePreviousMonth_countsMoreThanTheMonth();
    void firstDayOfAWeek_countsLessThanTheMonth();
    void totals_followTheClockEvery15Seconds();
    void totals_areFreshWhenShownAgain();
    void refresh_keepsTheRows();
    void period_isChosenByPointerAndKeys();
    void twoHundredClients_scroll();
    void keys_scrollWhatDoesNotFit();

private:
    QQuickItem* item(const QString& name) { return m_tab->item(name); }

    std::unique_ptr<TimeTab> m_tab;
};

void TotalsCardTest::empty_saysNoTimeLoggedYet()
{
    QVERIFY(item(u"nothing"_s)->isVisible());
    QCOMPARE(m_tab->text(u"nothing"_s), u"No time logged yet."_s);
    QCOMPARE(m_tab->text(u"total"_s), u"0m"_s);
    QCOMPARE(m_tab->text(u"billable"_s), u"£0 billable"_s);
    QVERIFY(!m_tab->row(0));
}

void TotalsCardTest::bars_areSharesOfTheTotal()
{
    m_tab->entry(3600, m_tab->client(u"Bloom"_s, quib::ClientStatus::Review, 20));
    m_tab->entry(3 * 3600, m_tab->client(u"Café"_s, quib::ClientStatus::Live, 35));
    const auto full = m_tab->part(0, u"track"_s)->width();

    QCOMPARE(m_tab->part(0, u"bar"_s)->width(), full * 0.75);
    QCOMPARE(m_tab->part(1, u"bar"_s)->width(), full * 0.25);
    QCOMPARE(colorOf(m_tab->part(0, u"bar"_s)), Brand::live());
    QCOMPARE(colorOf(m_tab->part(1, u"bar"_s)), Brand::color(u"review"_s));
    QCOMPARE(textOf(m_tab->part(0, u"duration"_s)), u"3h 0m"_s);
    QCOMPARE(textOf(m_tab->part(0, u"amount"_s)), u"£105"_s);
    QCOMPARE(m_tab->text(u"total"_s), u"4h 0m"_s);
    QCOMPARE(m_tab->text(u"billable"_s), u"£125 billable"_s);
    QVERIFY(!item(u"nothing"_s)->isVisible());
}

void TotalsCardTest::unassignedTime_isGreyAndEarnsNothing()
{
    m_tab->entry(3600);

    QCOMPARE(textOf(m_tab->part(0, u"name"_s)), u"No client"_s);
    QCOMPARE(colorOf(m_tab->part(0, u"bar"_s)), Brand::muted2());
    QCOMPARE(textOf(m_tab->part(0, u"amount"_s)), u"£0"_s);
    QCOMPARE(m_tab->text(u"billable"_s), u"£0 billable"_s);
}

void TotalsCardTest::deletedClient_readsNoClient()
{
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->entry(3600, cafe);

    m_tab->store().deleteClient(cafe);

    QCOMPARE(textOf(m_tab->part(0, u"name"_s)), u"No client"_s);
    QCOMPARE(colorOf(m_tab->part(0, u"bar"_s)), Brand::muted2());
    QCOMPARE(m_tab->text(u"billable"_s), u"£0 billable"_s);
}

void TotalsCardTest::entryThatEndsBeforeItStarts_readsNothing()
{
    m_tab->entry(7200, m_tab->client(u"Café"_s));
    m_tab->entry(-3600, m_tab->client(u"Bloom"_s));

    QCOMPARE(m_tab->part(0, u"bar"_s)->width(), m_tab->part(0, u"track"_s)->width());
    QCOMPARE(m_tab->part(1, u"bar"_s)->width(), 0.0);
    QCOMPARE(textOf(m_tab->part(1, u"duration"_s)), u"0m"_s);
    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);
}

void TotalsCardTest::amountsReadFromTheRight_areTextsOfTheirOwn_data()
{
    QTest::addColumn<QByteArray>("country");

    QTest::addRow("Israel") << "he_IL"_ba;
    QTest::addRow("Egypt") << "ar_EG"_ba;
}

void TotalsCardTest::amountsReadFromTheRight_areTextsOfTheirOwn()
{
    QFETCH(QByteArray, country);
    const auto before = qgetenv("LC_ALL");
    qputenv("LC_ALL", country);
    m_tab = std::make_unique<TimeTab>();
    qputenv("LC_ALL", before);
    m_tab->entry(3600, m_tab->client(u"Café"_s, quib::ClientStatus::Live, 1234));
    m_tab->settle();
    const auto amount = quib::formatMoney(1234, {.money = country});

    auto* shown = m_tab->part(0, u"shrunk"_s);
    QVERIFY(shown->isVisible());
    QVERIFY(!m_tab->part(0, u"digits"_s)->isVisible());
    QCOMPARE(textOf(shown), amount);
    QCOMPARE(m_tab->text(u"billable"_s), u"\u2068%1\u2069 billable"_s.arg(amount));
}

void TotalsCardTest::weekThatBeganInThePreviousMonth_countsMoreThanTheMonth()
{
    m_tab->hands.now = QDateTime({2026, 4, 1}, {12, 0}, Utc);
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->entry(3600, cafe);
    m_tab->entry(36 * 3600, cafe); // Since midnight of the 31st of March.
    QCOMPARE(m_tab->text(u"total"_s), u"37h 0m"_s);

    m_tab->click(m_tab->segment(1));

    QCOMPARE(m_tab->text(u"total"_s), u"13h 0m"_s);
    QCOMPARE(m_tab->text(u"billable"_s), u"£455 billable"_s);
}

/// Of a week that goes on in the next month.
void TotalsCardTest::firstDayOfAWeek_countsLessThanTheMonth()
{
    m_tab->hands.now = QDateTime({2026, 3, 28}, {20, 0}, Utc);
    m_tab->entry(2 * 3600);
    m_tab->hands.now = QDateTime({2026, 3, 29}, {12, 0}, Utc); // A Sunday.
    m_tab->entry(3600);
    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);

    m_tab->click(m_tab->segment(1));

    QCOMPARE(m_tab->text(u"total"_s), u"3h 0m"_s);
}

void TotalsCardTest::totals_followTheClockEvery15Seconds()
{
    m_tab->running(3600 - 15);
    QCOMPARE(m_tab->text(u"total"_s), u"59m"_s);
    QCOMPARE(m_tab->totalsBeat()->interval(), 15.0);
    QVERIFY(m_tab->totalsBeat()->isRunning());
    m_tab->hands.now = m_tab->hands.now.addSecs(15);

    m_tab->totalsBeat()->setClock(m_tab->hands.clock()); // Beats at once.

    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);
    QVERIFY(m_tab->totalsBeat()->untilNext() <= 15s);
}

void TotalsCardTest::totals_areFreshWhenShownAgain()
{
    m_tab->running(60);
    m_tab->model.setTab(Tab::Tasks);
    m_tab->hands.now = m_tab->hands.now.addSecs(3600);

    m_tab->model.setTab(Tab::Time);

    QCOMPARE(m_tab->text(u"total"_s), u"1h 1m"_s);
}

void TotalsCardTest::refresh_keepsTheRows()
{
    const auto cafe = m_tab->client(u"Café"_s);
    m_tab->entry(7200, cafe);
    m_tab->entry(3600, m_tab->client(u"Bloom"_s));
    const QList<QQuickItem*> before{m_tab->row(0), m_tab->row(1)};

    m_tab->store().startTimer(cafe, {});
    m_tab->hands.now = m_tab->hands.now.addSecs(15);
    m_tab->totalsBeat()->setClock(m_tab->hands.clock());
    m_tab->entry(3 * 3600, m_tab->store().data().clients.back().id);

    QCOMPARE(m_tab->row(1), before[0]); // Overtaken.
    QCOMPARE(m_tab->row(0), before[1]);
}

void TotalsCardTest::period_isChosenByPointerAndKeys()
{
    m_tab->hands.now = QDateTime({2026, 4, 30}, {12, 0}, Utc);
    auto data = m_tab->store().data();
    const auto before = m_tab->hands.now.addDays(-20);
    data.entries = {{.id = QUuid::createUuid(), .start = before, .end = before.addSecs(7200)}};
    m_tab->store().setData(data);
    m_tab->entry(3600);
    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);

    m_tab->click(m_tab->segment(1));
    QCOMPARE(m_tab->text(u"total"_s), u"3h 0m"_s);
    item(u"period"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_tab->press(Qt::Key_Left);
    QCOMPARE(m_tab->text(u"total"_s), u"1h 0m"_s);
    m_tab->press(Qt::Key_Right);

    QCOMPARE(m_tab->text(u"total"_s), u"3h 0m"_s);
}

void TotalsCardTest::twoHundredClients_scroll()
{
    quib::QuibData data;
    for (int i = 0; i < 200; ++i) {
        data.clients.append({.id = QUuid::createUuid(), .name = u"Client %1"_s.arg(i)});
        data.entries.append({.id = QUuid::createUuid(),
                             .clientID = data.clients.back().id,
                             .start = m_tab->hands.now.addSecs(i - 3600),
                             .end = m_tab->hands.now});
    }
    m_tab->store().setData(data);
    auto* list = item(u"list"_s);
    QCOMPARE(list->property("count").toInt(), 200);
    QVERIFY(!m_tab->row(199)); // Rows are built when they come into sight.

    QMetaObject::invokeMethod(list, "positionViewAtEnd");

    QCOMPARE(textOf(m_tab->part(199, u"name"_s)), u"Client 199"_s);
    QVERIFY(m_tab->rect(u"list"_s).contains(inScene(m_tab->row(199))));
}

void TotalsCardTest::keys_scrollWhatDoesNotFit()
{
    for (int i = 0; i < 12; ++i) {
        m_tab->entry(3600 - i, m_tab->client(u"Client %1"_s.arg(i)));
    }
    m_tab->settle();
    const auto isWhole = [this](int number) {
        const auto* row = m_tab->row(number);
        return row && m_tab->rect(u"list"_s).contains(inScene(row));
    };
    item(u"export"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_tab->press(Qt::Key_Tab);
    QCOMPARE(m_tab->focused(), u"list"_s);
    QVERIFY(isWhole(0) && !isWhole(11));

    m_tab->press(Qt::Key_Down);
    QVERIFY(!isWhole(0));
    m_tab->press(Qt::Key_End);
    QVERIFY(isWhole(11));
    m_tab->press(Qt::Key_Down);
    QVERIFY(isWhole(11));
    m_tab->press(Qt::Key_PageUp);
    QVERIFY(!isWhole(11));
    m_tab->press(Qt::Key_Home);
    m_tab->press(Qt::Key_PageUp);

    QVERIFY(isWhole(0));
}

QTEST_MAIN(TotalsCardTest)
#include "tst_totalscard.moc"
