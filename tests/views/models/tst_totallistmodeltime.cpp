#include "model/time/utc.h"
#include "support/report.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::TotalListModel;
using quib::Utc;

using Period = TotalListModel::Period;

/// The report as time goes by: where its week and month begin, and what flows into it.
class TotalListModelTimeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void since_isTheUsersOwn_data();
    void since_isTheUsersOwn();
    void month_onTheFirstDaysOfAWeekThatBeganBefore();
    void refresh_letsTheRunningTimeFlowIn();
    void refresh_inANewWeek_beginsAnew();
    void refresh_afterTheClockWasSetBack();
    void refresh_updatesTheRowsInPlace();
    void refresh_thatChangesNothing_saysNothing();
    void overtaking_movesTheRow();
};

void TotalListModelTimeTest::since_isTheUsersOwn_data()
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
void TotalListModelTimeTest::since_isTheUsersOwn()
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

void TotalListModelTimeTest::month_onTheFirstDaysOfAWeekThatBeganBefore()
{
    Report report;
    report.hands.now = QDateTime({2026, 4, 30}, {12, 0}, Utc); // A Thursday.
    report.entry(-24 * 10, -24 * 10 + 2);
    report.entry(-2, -1);
    QCOMPARE(report.model.totalSeconds(), 3600.0);

    report.model.setPeriod(Period::Month);

    QCOMPARE(report.model.totalSeconds(), 3 * 3600.0);
}

void TotalListModelTimeTest::refresh_letsTheRunningTimeFlowIn()
{
    Report report;
    report.entry(-1, {}, report.client(u"Café"_s));
    report.hands.now = report.hands.now.addSecs(15);

    report.model.refresh();

    QCOMPARE(report.model.totalSeconds(), 3615.0);
}

void TotalListModelTimeTest::refresh_inANewWeek_beginsAnew()
{
    Report report;
    report.entry(-1, 0);
    QCOMPARE(report.model.count(), 1);
    report.hands.now = report.hands.now.addDays(7);

    report.model.refresh();

    QCOMPARE(report.model.count(), 0);
}

void TotalListModelTimeTest::refresh_afterTheClockWasSetBack()
{
    Report report;
    report.entry(-0.5, {}, report.client(u"Café"_s));
    report.hands.now = report.hands.now.addSecs(-3600);

    report.model.refresh();

    QCOMPARE(report.rows(), QStringList{u"Café -1800 0 -17.5"_s});
}

void TotalListModelTimeTest::refresh_updatesTheRowsInPlace()
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

void TotalListModelTimeTest::refresh_thatChangesNothing_saysNothing()
{
    Report report;
    report.entry(-2, -1, report.client(u"Café"_s));
    const QSignalSpy changes(&report.model, &TotalListModel::dataChanged);
    const QSignalSpy totals(&report.model, &TotalListModel::totalsChanged);
    report.hands.now = report.hands.now.addSecs(15);

    report.model.refresh();

    QCOMPARE(changes.count() + totals.count(), 0);
}

void TotalListModelTimeTest::overtaking_movesTheRow()
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

QTEST_GUILESS_MAIN(TotalListModelTimeTest)
#include "tst_totallistmodeltime.moc"
