#include "model/billing/timesheet.h"
#include "support/bytesof.h"
#include "support/storefixture.h"
#include "support/writefile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Store;

namespace {

/// A user whose downloads go where the desktop's list of folders says.
class User {
public:
    explicit User(const QByteArray& downloads)
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.path()));
        writeFile(m_home.filePath(u"user-dirs.dirs"_s), "XDG_DOWNLOAD_DIR=\"" + downloads + "\"\n");
    }
    ~User() { qunsetenv("XDG_CONFIG_HOME"); }
    Q_DISABLE_COPY_MOVE(User)

private:
    QTemporaryDir m_home;
};

} // namespace

class StoreExportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void exportTimesheet_writesToTheDownloads();
    void exportTimesheet_twiceADay_replacesTheFirst();
    void exportTimesheet_changesNothing();
    void exportTimesheet_missingFolder_isAbsent();
    void exportTimesheet_folderInTheWay_isAbsent();
    void downloadsFolder_isTheUsers();
};

void StoreExportTest::exportTimesheet_writesToTheDownloads()
{
    const QTemporaryDir downloads;
    const User user(QFile::encodeName(downloads.path()));
    DataFolderForTest folder;
    HandClock hands;
    Store store({.clock = hands.clock(),
                 .schedule = hands.scheduler(),
                 .locale = {.dates = "th_TH", .timeZone = QTimeZone("Asia/Bangkok")}});
    store.startTimer({}, u"running"_s);
    hands.advance(1h);

    const auto url = store.exportTimesheet();

    QCOMPARE(url,
             std::optional(
                 QUrl::fromLocalFile(downloads.filePath(u"Korvel-timesheet-2569-03-02.csv"_s))));
    QCOMPARE(bytesOf(url->toLocalFile()), quib::timesheetCsv(store.data(), hands.now));
}

void StoreExportTest::exportTimesheet_twiceADay_replacesTheFirst()
{
    const QTemporaryDir downloads;
    const User user(QFile::encodeName(downloads.path()));
    StoreFixture f;
    f.store.startTimer({}, u"a note that makes the file longer"_s);
    const auto first = f.store.exportTimesheet();
    f.store.setData({});

    const auto second = f.store.exportTimesheet();

    QCOMPARE(second, first);
    QCOMPARE(bytesOf(second->toLocalFile()), quib::timesheetCsv({}, f.hands.now));
    QCOMPARE(QDir(downloads.path()).entryList(QDir::Files).size(), 1);
}

void StoreExportTest::exportTimesheet_changesNothing()
{
    const QTemporaryDir downloads;
    const User user(QFile::encodeName(downloads.path()));
    StoreFixture f;

    f.store.exportTimesheet();

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreExportTest::exportTimesheet_missingFolder_isAbsent()
{
    const QTemporaryDir downloads;
    const User user(QFile::encodeName(downloads.filePath(u"gone"_s)));
    StoreFixture f;

    QVERIFY(!f.store.exportTimesheet());
    QVERIFY(QDir(downloads.path()).isEmpty());
}

void StoreExportTest::exportTimesheet_folderInTheWay_isAbsent()
{
    const QTemporaryDir downloads;
    const User user(QFile::encodeName(downloads.path()));
    StoreFixture f;
    QVERIFY(QDir(downloads.path()).mkdir(quib::timesheetName(f.hands.now, {})));

    QVERIFY(!f.store.exportTimesheet());
}

void StoreExportTest::downloadsFolder_isTheUsers()
{
    const User user("/somewhere/else");

    QCOMPARE(quib::downloadsFolder(), std::optional(u"/somewhere/else"_s));
}

QTEST_GUILESS_MAIN(StoreExportTest)
#include "tst_storeexport.moc"
