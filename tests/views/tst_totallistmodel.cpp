#include "views/totallistmodel.h"

#include "support/datafolderfortest.h"
#include "support/handclock.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Client;
using quib::ClientTotal;
using quib::TotalListModel;

using Period = TotalListModel::Period;

namespace {

/// A store and a model that follows it, their time and place in the test's hand.
struct Report {
    DataFolderForTest folder;
    HandClock hands;
    quib::Store store;
    TotalListModel model;
    QAbstractItemModelTester tester{&model};

    explicit Report(const quib::UserLocale& locale = {.dates = "en_GB"})
        : store({.clock = hands.clock(), .schedule = hands.scheduler(), .locale = locale})
    {
        store.setData({});
        model.setStore(&store);
    }

    QUuid client(const QString& name, double rate = 35)
    {
        auto data = store.data();
        data.clients.append({.id = QUuid::createUuid(), .name = name, .hourlyRate = rate});
        store.setData(data);
        return data.clients.back().id;
    }

    /// An entry from one moment to another, as many hours from now; without an end it runs.
    void entry(double from, std::optional<double> to, const std::optional<QUuid>& client = {})
    {
        const auto at = [&](double hours) { return hands.now.addMSecs(qRound64(hours * 3.6e6)); };
        auto data = store.data();
        data.entries.append({.id = QUuid::createUuid(),
                             .clientID = client,
                             .start = at(from),
                             .end = to ? std::optional(at(*to)) : std::nullopt});
        store.setData(data);
    }

    /// "Café 3600 0.5 35" for each row.
    QStringList rows() const
    {
        QStringList found;
        for (int row = 0; row < model.count(); ++row) {
            const auto get = [&](int role) { return model.index(row).data(role).toString(); };
            found << QStringList{get(TotalListModel::NameRole), get(TotalListModel::SecondsRole),
                                 get(TotalListModel::FractionRole), get(TotalListModel::AmountRole)}
                         .join(u' ');
        }
        return found;
    }
};

} // namespace

class TotalListModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noEntries_areNoRows();
    void rows_haveTimeShareAndAmount();
    void status_isEmptyWithoutAClient();
    void unassignedTime_earnsNothing();
    void deletedClient_becomesARowOfNobody();
    void entryThatEndsBeforeItStarts_keepsTheSharesInBounds();
    void sumBelowZero_leavesNoShares();
    void timerOfTheFuture_countsBelowZero();
    void since_isTheUsersOwn_data();
    void since_isTheUsersOwn();
    void month_onTheFirstDaysOfAWeekThatBeganBefore();
    void refresh_letsTheRunningTimeFlowIn();
    void refresh_inANewWeek_beginsAnew();
    void refresh_afterTheClockWasSetBack();
    void refresh_updatesTheRowsInPlace();
    void refresh_thatChangesNothing_saysNothing();
    void overtaking_movesTheRow();
    void storeChange_isFollowedAtOnce();
    void storeGone_leavesNoRows();
};

void TotalListModelTest::noEntries_areNoRows()
{
    const Report report;

    QCOMPARE(report.rows(), QStringList());
    QCOMPARE(report.model.totalSeconds(), 0.0);
    QCOMPARE(report.model.totalAmount(), 0.0);
}

void TotalListModelTest::rows_haveTimeShareAndAmount()
{
    Report report;
    report.entry(-4, -3, report.client(u"Bloom"_s, 20));
    report.entry(-3, 0, report.client(u"Café"_s, 35));

    QCOMPARE(report.rows(), (QStringList{u"Café 10800 0.75 105"_s, u"Bloom 3600 0.25 20"_s}));
    QCOMPARE(report.model.totalSeconds(), 14400.0);
    QCOMPARE(report.model.totalAmount(), 125.0);
}

void TotalListModelTest::status_isEmptyWithoutAClient()
{
    const auto records = quib::totalRecords(
        {{.client = Client{.status = quib::ClientStatus::Live}, .seconds = 2}, {.seconds = 1}});

    QCOMPARE(records.at(0).status, u"live"_s);
    QCOMPARE(records.at(1).status, QString());
}

void TotalListModelTest::unassignedTime_earnsNothing()
{
    Report report;
    report.entry(-4, -3, report.client(u"Café"_s));
    report.entry(-3, 0);

    QCOMPARE(report.rows(), (QStringList{u"No client 10800 0.75 0"_s, u"Café 3600 0.25 35"_s}));
    QCOMPARE(report.model.totalAmount(), 35.0);
}

void TotalListModelTest::deletedClient_becomesARowOfNobody()
{
    Report report;
    const auto cafe = report.client(u"Café"_s);
    report.entry(-4, -1, cafe);
    report.entry(-1, 0);

    report.store.deleteClient(cafe);

    QCOMPARE(report.rows(), (QStringList{u"No client 10800 0.75 0"_s, u"No client 3600 0.25 0"_s}));
    QCOMPARE(report.model.totalAmount(), 0.0);
}

void TotalListModelTest::entryThatEndsBeforeItStarts_keepsTheSharesInBounds()
{
    Report report;
    report.entry(-4, -2, report.client(u"Café"_s));
    report.entry(-1, -2, report.client(u"Bloom"_s));

    QCOMPARE(report.rows(), (QStringList{u"Café 7200 1 70"_s, u"Bloom -3600 0 -35"_s}));
    QCOMPARE(report.model.totalSeconds(), 3600.0);
}

void TotalListModelTest::sumBelowZero_leavesNoShares()
{
    Report report;
    report.entry(-4, -3, report.client(u"Café"_s));
    report.entry(-1, -3, report.client(u"Bloom"_s));

    QCOMPARE(report.rows(), (QStringList{u"Café 3600 0 35"_s, u"Bloom -7200 0 -70"_s}));
    QCOMPARE(report.model.totalSeconds(), -3600.0);
}

void TotalListModelTest::timerOfTheFuture_countsBelowZero()
{
    Report report;
    report.entry(2, {}, report.client(u"Café"_s));

    QCOMPARE(report.rows(), QStringList{u"Café -7200 0 -70"_s});
}

void TotalListModelTest::since_isTheUsersOwn_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<Period>("period");
    QTest::addColumn<QDateTime>("since");

    const auto utc = [](const QString& text) { return QDateTime::fromString(text, Qt::ISODate); };
    QTest::addRow("a week from Monday") << "en_GB"_ba
                                        << "UTC"_ba << utc(u"2026-03-04T10:00:00Z"_s)
                                        << Period::Week << utc(u"2026-03-02T00:00:00Z"_s);
    QTest::addRow("a week from Sunday") << "en_US"_ba
                                        << "UTC"_ba << utc(u"2026-03-04T10:00:00Z"_s)
                                        << Period::Week << utc(u"2026-03-01T00:00:00Z"_s);
    QTest::addRow("of the user's time zone") << "en_GB"_ba
                                             << "Asia/Tokyo"_ba << utc(u"2026-03-01T16:00:00Z"_s)
                                             << Period::Week << utc(u"2026-03-01T15:00:00Z"_s);
    QTest::addRow("with a day of 23 hours in it")
        << "en_GB"_ba
        << "Europe/Berlin"_ba << utc(u"2026-03-29T20:00:00Z"_s) << Period::Week
        << utc(u"2026-03-22T23:00:00Z"_s);
    QTest::addRow("with a day of 25 hours in it")
        << "en_GB"_ba
        << "Europe/Berlin"_ba << utc(u"2026-10-25T22:30:00Z"_s) << Period::Week
        << utc(u"2026-10-18T22:00:00Z"_s);
    QTest::addRow("a month") << "en_GB"_ba
                             << "UTC"_ba << utc(u"2026-03-04T10:00:00Z"_s) << Period::Month
                             << utc(u"2026-03-01T00:00:00Z"_s);
    QTest::addRow("a month with a changed clock in it")
        << "en_GB"_ba
        << "Europe/Berlin"_ba << utc(u"2026-03-31T20:00:00Z"_s) << Period::Month
        << utc(u"2026-02-28T23:00:00Z"_s);
}

/// What ended a second before the period is no part of it.
void TotalListModelTest::since_isTheUsersOwn()
{
    QFETCH(QByteArray, locale);
    QFETCH(QByteArray, zone);
    QFETCH(QDateTime, now);
    QFETCH(Period, period);
    QFETCH(QDateTime, since);
    Report report({.dates = locale, .timeZone = QTimeZone(zone)});
    report.hands.now = now;
    report.model.setPeriod(period);
    auto data = report.store.data();

    data.entries = {{.id = QUuid::createUuid(), .start = since.addDays(-9), .end = now}};
    report.store.setData(data);
    QCOMPARE(report.model.totalSeconds(), static_cast<double>(since.secsTo(now)));

    data.entries
        = {{.id = QUuid::createUuid(), .start = since.addSecs(-60), .end = since.addSecs(-1)}};
    report.store.setData(data);
    QCOMPARE(report.model.count(), 0);
}

void TotalListModelTest::month_onTheFirstDaysOfAWeekThatBeganBefore()
{
    Report report;
    report.hands.now = QDateTime({2026, 4, 30}, {12, 0}, Qt::UTC); // A Thursday.
    report.entry(-24 * 10, -24 * 10 + 2);
    report.entry(-2, -1);
    QCOMPARE(report.model.totalSeconds(), 3600.0);

    report.model.setPeriod(Period::Month);

    QCOMPARE(report.model.totalSeconds(), 3 * 3600.0);
}

void TotalListModelTest::refresh_letsTheRunningTimeFlowIn()
{
    Report report;
    report.entry(-1, {}, report.client(u"Café"_s));
    report.hands.now = report.hands.now.addSecs(15);

    report.model.refresh();

    QCOMPARE(report.model.totalSeconds(), 3615.0);
}

void TotalListModelTest::refresh_inANewWeek_beginsAnew()
{
    Report report;
    report.entry(-1, 0);
    QCOMPARE(report.model.count(), 1);
    report.hands.now = report.hands.now.addDays(7);

    report.model.refresh();

    QCOMPARE(report.model.count(), 0);
}

void TotalListModelTest::refresh_afterTheClockWasSetBack()
{
    Report report;
    report.entry(-0.5, {}, report.client(u"Café"_s));
    report.hands.now = report.hands.now.addSecs(-3600);

    report.model.refresh();

    QCOMPARE(report.rows(), QStringList{u"Café -1800 0 -17.5"_s});
}

void TotalListModelTest::refresh_updatesTheRowsInPlace()
{
    Report report;
    report.entry(-2, {}, report.client(u"Café"_s));
    report.entry(-4, -3, report.client(u"Bloom"_s));
    const QSignalSpy changes(&report.model, &TotalListModel::dataChanged);
    const QSignalSpy insertions(&report.model, &TotalListModel::rowsInserted);
    const QSignalSpy removals(&report.model, &TotalListModel::rowsRemoved);
    const QSignalSpy resets(&report.model, &TotalListModel::modelReset);
    report.hands.now = report.hands.now.addSecs(15);

    report.model.refresh();

    QCOMPARE(changes.count(), 2); // The shares of both.
    QCOMPARE(insertions.count() + removals.count() + resets.count(), 0);
}

void TotalListModelTest::refresh_thatChangesNothing_saysNothing()
{
    Report report;
    report.entry(-2, -1, report.client(u"Café"_s));
    const QSignalSpy changes(&report.model, &TotalListModel::dataChanged);
    const QSignalSpy totals(&report.model, &TotalListModel::totalsChanged);
    report.hands.now = report.hands.now.addSecs(15);

    report.model.refresh();

    QCOMPARE(changes.count() + totals.count(), 0);
}

void TotalListModelTest::overtaking_movesTheRow()
{
    Report report;
    report.entry(-2, -1, report.client(u"Bloom"_s));
    report.entry(-0.5, {}, report.client(u"Café"_s));
    const QSignalSpy moves(&report.model, &TotalListModel::rowsMoved);
    report.hands.now = report.hands.now.addSecs(3600);

    report.model.refresh();

    QVERIFY(report.rows().front().startsWith(u"Café"_s));
    QCOMPARE(moves.count(), 1);
}

void TotalListModelTest::storeChange_isFollowedAtOnce()
{
    Report report;
    const auto cafe = report.client(u"Café"_s);
    report.store.startTimer(cafe, {});
    QCOMPARE(report.rows(), QStringList{u"Café 0 0 0"_s});
    report.hands.now = report.hands.now.addSecs(3600);
    report.store.stopTimer();
    QCOMPARE(report.rows(), QStringList{u"Café 3600 1 35"_s});

    auto client = *report.store.client(cafe);
    client.name = u"Corner Café"_s;
    client.hourlyRate = 50;
    report.store.updateClient(client);

    QCOMPARE(report.rows(), QStringList{u"Corner Café 3600 1 50"_s});
    QCOMPARE(report.model.totalAmount(), 50.0);
}

void TotalListModelTest::storeGone_leavesNoRows()
{
    TotalListModel model;
    {
        const DataFolderForTest folder;
        quib::Store store;
        store.setData(
            {.entries = {{.id = QUuid::createUuid(), .start = QDateTime::currentDateTimeUtc()}}});
        model.setStore(&store);
        QCOMPARE(model.count(), 1);
    }

    model.refresh();

    QCOMPARE(model.count(), 0);
}

QTEST_GUILESS_MAIN(TotalListModelTest)
#include "tst_totallistmodel.moc"
