#include "model/datafile.h"
#include "support/downloadsfortest.h"
#include "support/privatememory.h"
#include "support/storefixture.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>
#include <QThread>

#include <atomic>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Store;

namespace {

/// The notes in the file as it stands; empty when it cannot be read.
QString notesOnDisk(const DataFolderForTest& folder)
{
    return quib::decodeQuibData(folder.bytes()).value_or(quib::QuibData()).notes;
}

/// Something in the way of the file, for as long as this lives: no save succeeds.
class Obstacle {
public:
    explicit Obstacle(const DataFolderForTest& folder)
        : m_path(folder.file())
    {
        QDir().mkpath(m_path);
    }
    ~Obstacle() { QDir().rmdir(m_path); }
    Q_DISABLE_COPY_MOVE(Obstacle)

private:
    QString m_path;
};

quib::QuibData entriesOf(int count)
{
    quib::QuibData data;
    const QDateTime start({2026, 3, 2}, {9, 0}, quib::Utc);
    for (int number = 0; number < count; ++number) {
        data.entries.append({.id = QUuid::createUuid(),
                             .start = start,
                             .end = start,
                             .note = u"Homepage, round %1"_s.arg(number)});
    }
    return data;
}

} // namespace

class StoreSavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void change_isWritten400MillisecondsLater();
    void tenChangesInARow_areWrittenOnce();
    void changesApart_areWrittenEach();
    void copy_isOfTheMomentOfTheChange();
    void quittingRightAfterAChange_keepsTheChange();
    void saveNow_nothingPending_touchesNothing();
    void saveNow_afterASave_touchesNothing();
    void saveNow_cancelsThePendingSave();
    void saveNow_afterAFailure_triesAgain();
    void nextChange_afterAFailure_triesAgain();
    void rateThatIsNotFinite_leavesTheOldFile();
    void olderCopy_neverReplacesANewerOne();
    void folderRemovedMeanwhile_isMadeAgain();
    void scheduleSave_writesWithoutAChange();
    void storeGone_writesNoMore();
    void threadThatSaves_entersTheBackground();
    void manyEntries_leaveNoMemoryBehind();
};

void StoreSavingTest::change_isWritten400MillisecondsLater()
{
    StoreFixture f;

    f.store.setNotes(u"new"_s);
    f.hands.advance(399ms);
    QCOMPARE(f.hands.ran, 0);

    f.hands.advance(1ms);
    QCOMPARE(f.hands.ran, 1);
    QTRY_COMPARE(notesOnDisk(f.folder), u"new"_s);
    QCOMPARE(quib::decodeQuibData(f.folder.bytes()), std::optional(f.store.data()));
}

void StoreSavingTest::tenChangesInARow_areWrittenOnce()
{
    StoreFixture f;

    for (int change = 1; change <= 10; ++change) {
        f.hands.advance(100ms);
        f.store.setNotes(QString::number(change));
    }
    f.hands.advance(399ms);
    QCOMPARE(f.hands.ran, 0);

    f.hands.advance(1h);
    QCOMPARE(f.hands.ran, 1);
    QTRY_COMPARE(notesOnDisk(f.folder), u"10"_s);
}

void StoreSavingTest::changesApart_areWrittenEach()
{
    StoreFixture f;

    f.store.setNotes(u"first"_s);
    f.hands.advance(400ms);
    QTRY_COMPARE(notesOnDisk(f.folder), u"first"_s);

    f.store.setNotes(u"second"_s);
    f.hands.advance(400ms);
    QTRY_COMPARE(notesOnDisk(f.folder), u"second"_s);
}

void StoreSavingTest::copy_isOfTheMomentOfTheChange()
{
    StoreFixture f;
    f.store.setNotes(u"first"_s);
    f.hands.advance(400ms); // Starts the write of the first copy.

    f.store.setNotes(u"second"_s);

    QTRY_COMPARE(notesOnDisk(f.folder), u"first"_s);
}

void StoreSavingTest::quittingRightAfterAChange_keepsTheChange()
{
    StoreFixture f;
    f.store.setNotes(u"last words"_s);
    f.hands.advance(100ms);

    f.store.saveNow();

    QCOMPARE(notesOnDisk(f.folder), u"last words"_s);
}

void StoreSavingTest::saveNow_nothingPending_touchesNothing()
{
    DataFolderForTest folder;
    HandClock hands;
    Store store({.clock = hands.clock(), .schedule = hands.scheduler()});
    QDir(folder.path()).removeRecursively();

    store.saveNow();

    QVERIFY(!QFile::exists(folder.path()));
}

void StoreSavingTest::saveNow_afterASave_touchesNothing()
{
    StoreFixture f;
    f.store.setNotes(u"new"_s);
    f.hands.advance(400ms);
    f.store.saveNow();
    QVERIFY(QFile::remove(f.folder.file()));

    f.store.saveNow();

    QVERIFY(!QFile::exists(f.folder.file()));
}

void StoreSavingTest::saveNow_cancelsThePendingSave()
{
    StoreFixture f;
    f.store.setNotes(u"new"_s);

    f.store.saveNow();

    QCOMPARE(f.hands.waiting(), 0);
}

void StoreSavingTest::saveNow_afterAFailure_triesAgain()
{
    StoreFixture f;
    {
        const Obstacle obstacle(f.folder);
        f.store.setNotes(u"new"_s);
        f.hands.advance(400ms);
        f.store.saveNow(); // Waits for the background, then fails too.
    }
    QCOMPARE(notesOnDisk(f.folder), QString());

    f.store.saveNow();

    QCOMPARE(notesOnDisk(f.folder), u"new"_s);
}

void StoreSavingTest::nextChange_afterAFailure_triesAgain()
{
    StoreFixture f;
    {
        const Obstacle obstacle(f.folder);
        f.store.setNotes(u"lost for now"_s);
        f.store.saveNow();
    }

    f.store.addClient();
    f.hands.advance(400ms);

    QTRY_COMPARE(notesOnDisk(f.folder), u"lost for now"_s);
}

void StoreSavingTest::rateThatIsNotFinite_leavesTheOldFile()
{
    StoreFixture f;
    auto client = quib::Client{.id = f.store.addClient(), .hourlyRate = 30};
    f.store.saveNow();
    const auto before = f.folder.bytes();

    client.hourlyRate = std::numeric_limits<double>::infinity();
    f.store.updateClient(client);
    f.store.saveNow();
    QCOMPARE(f.folder.bytes(), before);

    client.hourlyRate = 31;
    f.store.updateClient(client);
    f.store.saveNow();
    QVERIFY(f.folder.bytes().contains("31"));
}

void StoreSavingTest::olderCopy_neverReplacesANewerOne()
{
    StoreFixture f;

    for (int round = 0; round < 50; ++round) {
        f.store.setNotes(u"old %1"_s.arg(round));
        f.hands.advance(400ms); // The background begins.
        f.store.setNotes(u"new %1"_s.arg(round));
        f.store.saveNow();

        QCOMPARE(notesOnDisk(f.folder), u"new %1"_s.arg(round));
    }
}

void StoreSavingTest::folderRemovedMeanwhile_isMadeAgain()
{
    StoreFixture f;
    QVERIFY(QDir(f.folder.path()).removeRecursively());

    f.store.setNotes(u"new"_s);
    f.hands.advance(400ms);

    QTRY_COMPARE(notesOnDisk(f.folder), u"new"_s);
}

void StoreSavingTest::scheduleSave_writesWithoutAChange()
{
    DataFolderForTest folder;
    HandClock hands;
    Store store({.clock = hands.clock(), .schedule = hands.scheduler()});

    store.scheduleSave();
    hands.advance(400ms);

    QTRY_VERIFY(QFile::exists(folder.file()));
}

void StoreSavingTest::storeGone_writesNoMore()
{
    DataFolderForTest folder;
    HandClock hands;
    {
        Store store({.clock = hands.clock(), .schedule = hands.scheduler()});
        store.setNotes(u"new"_s);
    }

    hands.advance(1s);

    QCOMPARE(hands.ran, 0);
    QVERIFY(!QFile::exists(folder.file()));
}

void StoreSavingTest::threadThatSaves_entersTheBackground()
{
    const DataFolderForTest folder;
    HandClock hands;
    std::atomic<QThread*> entered = nullptr;
    std::atomic<bool> wasWritten = false;
    Store store({.clock = hands.clock(), .schedule = hands.scheduler(), .enterBackground = [&] {
                     entered = QThread::currentThread();
                     wasWritten = QFile::exists(folder.file());
                 }});

    store.setNotes(u"new"_s);
    hands.advance(400ms);

    QTRY_COMPARE(notesOnDisk(folder), u"new"_s);
    QVERIFY(entered != nullptr);
    QVERIFY(entered != QThread::currentThread());
    QVERIFY(!wasWritten);
}

void StoreSavingTest::manyEntries_leaveNoMemoryBehind()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer keeps what is freed");
#endif
    const DownloadsForTest downloads;
    StoreFixture f;
    f.startWith(entriesOf(100'000));
    const auto before = privateMemory();

    for (const auto& notes : {u"first"_s, u"second"_s, u"third"_s}) {
        f.store.setNotes(notes);
        f.hands.advance(400ms);
        f.store.saveNow(); // Waits for the thread that saves.
        QVERIFY(f.store.exportTimesheet());
    }

    const auto left = privateMemory() - before;
    QVERIFY2(left < 2'000'000, qPrintable(u"%1 bytes"_s.arg(left)));
    QVERIFY(QFileInfo(f.folder.file()).size() > 15'000'000);
}

QTEST_GUILESS_MAIN(StoreSavingTest)
#include "tst_storesaving.moc"
