#include "views/models/recordlistmodel.h"

#include "support/valueof.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

namespace {

struct Record {
    QUuid id;
    int value = 0;

    bool operator==(const Record&) const = default;
};

/// A model as small as one can be.
class Rows final : public quib::RecordListModel {
public:
    QList<Record> shown;

    Rows() { setRoles(shown, {{"value", &Record::value}, {"twice", twice}}); }

    void showAll(const QList<Record>& wanted) { show(shown, wanted, &Record::id); }

private:
    static int twice(const Record& record) { return 2 * record.value; }
};

QUuid idOf(int number)
{
    return QUuid::createUuidV5(QUuid(), QByteArray::number(number));
}

QList<Record> someRecords(QRandomGenerator& dice)
{
    QList<Record> records(dice.bounded(9));
    std::ranges::generate(records, [&] { return Record{idOf(dice.bounded(5)), dice.bounded(3)}; });
    return records;
}

} // namespace

class RecordListModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roles_areMembersAndFunctions();
    void changedRecord_announcesItsRowOnly();
    void newRecord_announcesItsRowOnly();
    void movedRecord_keepsItsIndex();
    void sameRecords_sayNothing();
    void count_isAnnouncedWhenItChanges();
    void twinLost_leavesNoGhostRow();
    void anyListToAnyOther_endsAsWanted();
};

void RecordListModelTest::roles_areMembersAndFunctions()
{
    Rows rows;

    rows.showAll({{idOf(1), 10}, {idOf(2), 20}});

    QCOMPARE(rows.roleNames().size(), 2);
    QCOMPARE(valueOf(rows, 1, "value"), QVariant(20));
    QCOMPARE(valueOf(rows, 1, "twice"), QVariant(40));
    QVERIFY(!valueOf(rows, 1, "other").isValid());
    QVERIFY(!valueOf(rows, 2, "value").isValid());
}

void RecordListModelTest::changedRecord_announcesItsRowOnly()
{
    Rows rows;
    rows.showAll({{idOf(1), 10}, {idOf(2), 20}, {idOf(3), 30}});
    QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&rows, &QAbstractItemModel::rowsInserted);

    rows.showAll({{idOf(1), 10}, {idOf(2), 21}, {idOf(3), 30}});

    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.front().front().toModelIndex().row(), 1);
    QCOMPARE(inserted.count(), 0);
}

void RecordListModelTest::newRecord_announcesItsRowOnly()
{
    Rows rows;
    rows.showAll({{idOf(1), 10}, {idOf(2), 20}});
    QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&rows, &QAbstractItemModel::rowsInserted);

    rows.showAll({{idOf(3), 30}, {idOf(1), 10}, {idOf(2), 20}});

    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.front().at(1).toInt(), 0);
    QCOMPARE(changed.count(), 0);
}

void RecordListModelTest::movedRecord_keepsItsIndex()
{
    Rows rows;
    rows.showAll({{idOf(1), 10}, {idOf(2), 20}, {idOf(3), 30}});
    const QPersistentModelIndex first = rows.index(0);

    rows.showAll({{idOf(2), 20}, {idOf(3), 30}, {idOf(1), 10}});

    QCOMPARE(first.row(), 2);
}

void RecordListModelTest::sameRecords_sayNothing()
{
    Rows rows;
    const QList<Record> records{{idOf(1), 10}, {idOf(2), 20}};
    rows.showAll(records);
    QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    QSignalSpy count(&rows, &quib::RecordListModel::countChanged);

    rows.showAll(records);
    rows.showAll(rows.shown);

    QCOMPARE(changed.count(), 0);
    QCOMPARE(count.count(), 0);
}

void RecordListModelTest::count_isAnnouncedWhenItChanges()
{
    Rows rows;
    QSignalSpy count(&rows, &quib::RecordListModel::countChanged);

    rows.showAll({{idOf(1), 10}, {idOf(2), 20}});
    rows.showAll({{idOf(2), 20}, {idOf(3), 30}});

    QCOMPARE(count.count(), 1);
    QCOMPARE(rows.count(), 2);
}

void RecordListModelTest::twinLost_leavesNoGhostRow()
{
    Rows rows;
    rows.showAll({{idOf(1), 10}, {idOf(1), 20}});
    QSignalSpy removed(&rows, &QAbstractItemModel::rowsRemoved);

    rows.showAll({{idOf(1), 20}});

    QCOMPARE(removed.count(), 1);
    QCOMPARE(rows.shown, (QList<Record>{{idOf(1), 20}}));
}

void RecordListModelTest::anyListToAnyOther_endsAsWanted()
{
    Rows rows;
    const QAbstractItemModelTester invariants(
        &rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QRandomGenerator dice(1); // Repeats often: five ids in lists of up to eight.

    for (int round = 0; round < 2000; ++round) {
        const auto wanted = someRecords(dice);
        rows.showAll(wanted);
        QCOMPARE(rows.shown, wanted);
    }
}

QTEST_GUILESS_MAIN(RecordListModelTest)
#include "tst_recordlistmodel.moc"
