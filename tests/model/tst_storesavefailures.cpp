#include "support/storefixture.h"

#include <QDir>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

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

} // namespace

/// A save that does not succeed loses nothing: the old file stays, and what is new is tried again.
class StoreSaveFailuresTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saveNow_afterAFailure_triesAgain();
    void nextChange_afterAFailure_triesAgain();
    void rateThatIsNotFinite_leavesTheOldFile();
    void folderRemovedMeanwhile_isMadeAgain();
};

void StoreSaveFailuresTest::saveNow_afterAFailure_triesAgain()
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

void StoreSaveFailuresTest::nextChange_afterAFailure_triesAgain()
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

void StoreSaveFailuresTest::rateThatIsNotFinite_leavesTheOldFile()
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

void StoreSaveFailuresTest::folderRemovedMeanwhile_isMadeAgain()
{
    StoreFixture f;
    QVERIFY(QDir(f.folder.path()).removeRecursively());

    f.store.setNotes(u"new"_s);
    f.hands.advance(400ms);

    QTRY_COMPARE(notesOnDisk(f.folder), u"new"_s);
}

QTEST_GUILESS_MAIN(StoreSaveFailuresTest)
#include "tst_storesavefailures.moc"
