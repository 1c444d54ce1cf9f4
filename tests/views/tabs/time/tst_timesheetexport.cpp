#include "views/tabs/time/timesheetexport.h"

#include "support/downloadsfortest.h"
#include "support/workspace.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::TimesheetExport;

class TimesheetExportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void write_tellsWhereTheFileIs();
    void write_again_tellsAgain();
    void write_thatFails_saysNothing();
    void failure_afterAnExport_keepsIt();
    void forget_bringsItToRest();
    void withoutAStore_nothingIsWritten();
};

namespace {

struct Exporting {
    DownloadsForTest downloads;
    Workspace workspace;
    TimesheetExport timesheet;
    QSignalSpy written{&timesheet, &TimesheetExport::written};
    QSignalSpy changes{&timesheet, &TimesheetExport::exportedChanged};

    Exporting() { timesheet.setStore(workspace.store.get()); }
};

} // namespace

void TimesheetExportTest::write_tellsWhereTheFileIs()
{
    Exporting exporting;
    QVERIFY(!exporting.timesheet.hasExported());

    exporting.timesheet.write();

    const auto path = exporting.downloads.files().value(0);
    QVERIFY(path.endsWith(u".csv"_s));
    QCOMPARE(exporting.written, (QList<QVariantList>{{path}}));
    QCOMPARE(exporting.timesheet.exported(), QUrl::fromLocalFile(path));
    QVERIFY(exporting.timesheet.hasExported());
}

void TimesheetExportTest::write_again_tellsAgain()
{
    Exporting exporting;

    exporting.timesheet.write();
    exporting.timesheet.write();

    QCOMPARE(exporting.written.count(), 2);
    QCOMPARE(exporting.changes.count(), 1);
}

void TimesheetExportTest::write_thatFails_saysNothing()
{
    Exporting exporting;
    exporting.downloads.remove();

    exporting.timesheet.write();

    QCOMPARE(exporting.written.count(), 0);
    QVERIFY(!exporting.timesheet.hasExported());
}

void TimesheetExportTest::failure_afterAnExport_keepsIt()
{
    Exporting exporting;
    exporting.timesheet.write();
    exporting.downloads.remove();

    exporting.timesheet.write();

    QCOMPARE(exporting.written.count(), 1);
    QVERIFY(exporting.timesheet.hasExported());
}

void TimesheetExportTest::forget_bringsItToRest()
{
    Exporting exporting;
    exporting.timesheet.write();

    exporting.timesheet.forget();

    QVERIFY(!exporting.timesheet.hasExported());
    QCOMPARE(exporting.changes.count(), 2);
    QCOMPARE(exporting.downloads.files().size(), 1); // The file stays.
}

void TimesheetExportTest::withoutAStore_nothingIsWritten()
{
    Exporting exporting;
    exporting.workspace.store.reset();

    exporting.timesheet.write();

    QCOMPARE(exporting.written.count(), 0);
    QVERIFY(exporting.downloads.files().isEmpty());
}

QTEST_GUILESS_MAIN(TimesheetExportTest)
#include "tst_timesheetexport.moc"
