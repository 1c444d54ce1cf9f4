#include "support/report.h"
#include "support/valueof.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using quib::Client;
using quib::TotalListModel;

/// The rows of the report and their figures.
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
    void ratesWithoutMeasure_earnWhatCanBeShown();
    void timerOfTheFuture_countsBelowZero();
    void storeChange_isFollowedAtOnce();
    void hidden_followsNothingUntilItIsShown();
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

void TotalListModelTest::ratesWithoutMeasure_earnWhatCanBeShown()
{
    constexpr auto Most = std::numeric_limits<double>::max();
    Report report;
    report.entry(-4, -1, report.client(u"Café"_s, Most));
    report.entry(-4, -2, report.client(u"Bloom"_s, Most));
    QCOMPARE(report.model.totalAmount(), Most);

    report.entry(-4, 0, report.client(u"Cellar"_s, -Most));

    QCOMPARE(valueOf(report.model, 0, "amount").toDouble(), -Most);
    QVERIFY(std::isfinite(report.model.totalAmount()));
}

void TotalListModelTest::timerOfTheFuture_countsBelowZero()
{
    Report report;
    report.entry(2, {}, report.client(u"Café"_s));

    QCOMPARE(report.rows(), QStringList{u"Café -7200 0 -70"_s});
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

void TotalListModelTest::hidden_followsNothingUntilItIsShown()
{
    Report report;
    report.entry(-1, 0, report.client(u"Café"_s));
    report.model.setShown(false);

    report.entry(-2, 0);
    report.model.refresh();
    report.model.setPeriod(TotalListModel::Period::Month);
    QCOMPARE(report.rows(), QStringList{u"Café 3600 1 35"_s});
    report.model.setShown(true);

    QCOMPARE(report.rows().size(), 2);
    QCOMPARE(report.model.totalSeconds(), 3 * 3600.0);
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
