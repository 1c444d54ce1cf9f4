#include "model/file/datafile.h"
#include "support/enlarge.h"
#include "support/storefixture.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Store;

namespace {

/// A store of the next start of the program.
struct Start {
    HandClock hands;
    Store store{{.clock = hands.clock(), .schedule = hands.scheduler()}};
};

/// A hundred megabytes more than the process has now, for as long as this lives.
class LittleMemory {
public:
    LittleMemory()
    {
        QFile pages(u"/proc/self/statm"_s);
        const bool isKnown
            = pages.open(QIODevice::ReadOnly) && ::getrlimit(RLIMIT_AS, &m_before) == 0;
        auto little = m_before;
        little.rlim_cur = pages.readLine().split(' ').first().toULong() * pageSize() + 100'000'000;
        if (!isKnown || ::setrlimit(RLIMIT_AS, &little) != 0) {
            qFatal("memory can't be limited here");
        }
    }
    ~LittleMemory() { ::setrlimit(RLIMIT_AS, &m_before); }
    Q_DISABLE_COPY_MOVE(LittleMemory)

private:
    static rlim_t pageSize() { return static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)); }

    rlimit m_before{};
};

} // namespace

class StoreLoadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void firstStart_showsSampleDataAndWritesNothing();
    void firstChange_writesTheSampleDataToo();
    void savedData_isLoaded();
    void unreadableFile_survivesStartAndQuit_data();
    void unreadableFile_survivesStartAndQuit();
    void unreadableFile_isReplacedByTheFirstChange();
    void loading_announcesAndSavesNothing();
    void folderInTheWay_isNoReasonToFail();
    void dataFolderThatCanNotBeMade_isNoReasonToFail();
    void fileOfATerabyte_isUnreadable_data();
    void fileOfATerabyte_isUnreadable();
    void tooLittleMemory_isNoReasonToFail();
    void pipeInTheWay_isNotWaitedFor();
    void loading_removesNothing();
    void findApplication_isNotAskedWhenThereIsData();
};

void StoreLoadingTest::firstStart_showsSampleDataAndWritesNothing()
{
    const DataFolderForTest folder;

    Start start;
    start.hands.advance(1h);
    start.store.saveNow();

    QCOMPARE(start.store.data().clients.size(), 3);
    QVERIFY(!QFile::exists(folder.file()));
}

void StoreLoadingTest::firstChange_writesTheSampleDataToo()
{
    const DataFolderForTest folder;
    Start start;

    start.store.setNotes(u"mine"_s);
    start.hands.advance(400ms);

    QTRY_VERIFY(QFile::exists(folder.file()));
    const auto saved = quib::decodeQuibData(folder.bytes());
    QCOMPARE(saved, std::optional(start.store.data()));
    QCOMPARE(saved->clients.size(), 3);
    QCOMPARE(saved->notes, u"mine"_s);
}

void StoreLoadingTest::savedData_isLoaded()
{
    const DataFolderForTest folder;
    const quib::QuibData data{.clients = {{.id = idOf(1), .name = u"Bloom"_s}}, .notes = u"x"_s};
    folder.put(quib::encodeQuibData(data).value());

    const Start start;

    QCOMPARE(start.store.data(), data);
}

void StoreLoadingTest::unreadableFile_survivesStartAndQuit_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::addRow("empty") << QByteArray();
    QTest::addRow("an empty object") << "{}"_ba;
    QTest::addRow("not JSON") << "hello"_ba;
    QTest::addRow("a megabyte of [") << QByteArray(1 << 20, '[');
}

void StoreLoadingTest::unreadableFile_survivesStartAndQuit()
{
    QFETCH(QByteArray, bytes);
    const DataFolderForTest folder;
    folder.put(bytes);
    const auto modified = QFileInfo(folder.file()).lastModified();

    Start start;
    start.hands.advance(1h);
    start.store.saveNow();

    QCOMPARE(start.store.data().clients.size(), 3);
    QCOMPARE(folder.bytes(), bytes);
    QCOMPARE(QFileInfo(folder.file()).lastModified(), modified);
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{u"data.json"_s});
}

void StoreLoadingTest::unreadableFile_isReplacedByTheFirstChange()
{
    const DataFolderForTest folder;
    folder.put("{}");
    Start start;

    start.store.setNotes(u"mine"_s);
    start.hands.advance(400ms);

    QTRY_VERIFY(folder.bytes() != "{}");
    QCOMPARE(quib::decodeQuibData(folder.bytes()), std::optional(start.store.data()));
    QCOMPARE(start.store.data().clients.size(), 3);
}

void StoreLoadingTest::loading_announcesAndSavesNothing()
{
    const DataFolderForTest folder;

    Start start;

    QCOMPARE(start.hands.scheduled, 0);
}

void StoreLoadingTest::folderInTheWay_isNoReasonToFail()
{
    const DataFolderForTest folder;
    QVERIFY(QDir().mkpath(folder.file()));

    Start start;
    start.store.setNotes(u"kept in memory"_s);
    start.store.saveNow();

    QCOMPARE(start.store.notes(), u"kept in memory"_s);
    QVERIFY(QFileInfo(folder.file()).isDir());
}

void StoreLoadingTest::dataFolderThatCanNotBeMade_isNoReasonToFail()
{
    const DataFolderForTest folder;
    const auto inTheWay = writeFile(folder.path() + u"/file"_s, "no folder");
    qputenv("QUIB_DATA_DIR", QFile::encodeName(inTheWay + u"/data"_s));

    Start start;
    start.store.setNotes(u"kept in memory"_s);
    start.hands.advance(400ms);
    start.store.saveNow();

    QCOMPARE(start.store.data().clients.size(), 3);
    QCOMPARE(start.store.notes(), u"kept in memory"_s);
    QVERIFY(QFileInfo(inTheWay).isFile());
}

void StoreLoadingTest::fileOfATerabyte_isUnreadable_data()
{
    QTest::addColumn<qint64>("size");

    QTest::addRow("a gigabyte") << (qint64(1) << 30);
    QTest::addRow("a terabyte") << (qint64(1) << 40);
}

void StoreLoadingTest::fileOfATerabyte_isUnreadable()
{
    QFETCH(qint64, size);
    const DataFolderForTest folder;
    if (const auto hindrance = enlarge(folder.file(), size); !hindrance.isEmpty()) {
        QSKIP(hindrance.constData());
    }

    const Start start;

    QCOMPARE(start.store.data().clients.size(), 3);
    QCOMPARE(QFileInfo(folder.file()).size(), size);
}

void StoreLoadingTest::tooLittleMemory_isNoReasonToFail()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("the sanitizer ends what finds no memory");
#endif
    const DataFolderForTest folder;
    QFile file(folder.file());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(400'000'000));

    std::optional<Start> start;
    {
        const LittleMemory little;
        start.emplace();
        start->store.data(); // Which is loaded by then.
    }

    QCOMPARE(start->store.data().clients.size(), 3);
}

void StoreLoadingTest::pipeInTheWay_isNotWaitedFor()
{
    const DataFolderForTest folder;
    QCOMPARE(::mkfifo(QFile::encodeName(folder.file()).constData(), 0600), 0);

    const Start start; // Runs into the time limit where it waits for a writer.

    QCOMPARE(start.store.data().clients.size(), 3);
}

void StoreLoadingTest::loading_removesNothing()
{
    const DataFolderForTest folder;
    const auto leftover = writeFile(folder.path() + u"/.korvel-quib-2147483647-0123456789abcdef"_s,
                                    "x"); // Of a dead process.

    const Start start;
    start.store.data();
    QVERIFY(QFile::exists(leftover));

    Store::removeLeftovers();
    QVERIFY(!QFile::exists(leftover));
}

void StoreLoadingTest::findApplication_isNotAskedWhenThereIsData()
{
    const DataFolderForTest folder;
    folder.put(quib::encodeQuibData({}).value());
    bool asked = false;

    const Store store({.findApplication = [&](const QString&) -> std::optional<QString> {
        asked = true;
        return {};
    }});

    QVERIFY(store.data().clients.isEmpty());
    QVERIFY(!asked);
}

QTEST_GUILESS_MAIN(StoreLoadingTest)
#include "tst_storeloading.moc"
