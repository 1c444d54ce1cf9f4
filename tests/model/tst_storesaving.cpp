#include "support/storefixture.h"

#include <QTest>
#include <QThread>

#include <atomic>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Store;

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
    void olderCopy_neverReplacesANewerOne();
    void scheduleSave_writesWithoutAChange();
    void storeGone_writesNoMore();
    void threadThatSaves_entersTheBackground();
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

QTEST_GUILESS_MAIN(StoreSavingTest)
#include "tst_storesaving.moc"
