#include "model/file/datafile.h"
#include "support/hungfile.h"
#include "support/storefixture.h"

#include <QSemaphore>
#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Store;

namespace {

/// A timer that runs, beside a client and notes.
quib::QuibData timed()
{
    return {.clients = {{.id = idOf(1), .name = u"Bloom"_s}},
            .entries = {{.id = idOf(2), .start = QDateTime({2026, 3, 2}, {8, 0}, quib::Utc)}},
            .notes = u"before"_s};
}

/// A store whose file does not answer yet.
struct SlowStart {
    DataFolderForTest folder;
    HandClock hands;
    std::unique_ptr<HungFile> file;
    std::unique_ptr<Store> store;

    explicit SlowStart(const quib::QuibData& data = timed())
    {
        folder.put(quib::encodeQuibData(data).value());
        file = std::make_unique<HungFile>(folder.file());
        store = std::make_unique<Store>(
            Store::Surroundings{.clock = hands.clock(), .schedule = hands.scheduler()});
        store->beginLoading();
    }

    /// Answers once somebody waits for the file, while this thread does what it likes.
    std::jthread answerer()
    {
        return std::jthread([this] {
            while (!file->isWaitedFor()) {
                std::this_thread::sleep_for(1ms);
            }
            file->answerAtLast();
        });
    }
};

} // namespace

/// The file is read beside the start: what happens until then, and then.
class StoreStartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fileThatDoesNotAnswer_holdsNothingUp();
    void runningTimer_isToldOnceItIsKnown();
    void noRunningTimer_isNothingToTell();
    void noThread_theFirstQuestionReads();
    void question_waitsForTheFile_data();
    void question_waitsForTheFile();
    void changeBeforeTheAnswer_keepsWhatTheFileHolds_data();
    void changeBeforeTheAnswer_keepsWhatTheFileHolds();
    void quitBeforeTheAnswer_writesNothing();
    void fileThatDoesNotAnswer_doesNotHoldUpTheEnd();
    void applications_areLookedForBesideTheStart();
};

void StoreStartTest::fileThatDoesNotAnswer_holdsNothingUp()
{
    SlowStart start;
    QVERIFY(start.file->isHung());

    QVERIFY(!start.store->hasRunningEntry());
    start.store->saveNow();

    QTRY_VERIFY(start.file->isWaitedFor());
    QCOMPARE(start.hands.scheduled, 0);
    start.file->answerAtLast();
    QCOMPARE(start.store->data(), timed());
}

void StoreStartTest::runningTimer_isToldOnceItIsKnown()
{
    SlowStart start;
    const QSignalSpy told(start.store.get(), &Store::entriesChanged);
    QTRY_VERIFY(start.file->isWaitedFor());
    QVERIFY(told.isEmpty() && !start.store->hasRunningEntry());

    start.file->answerAtLast();

    QTRY_COMPARE(told.count(), 1);
    QVERIFY(start.store->hasRunningEntry());
    QCOMPARE(start.store->runningSince(), timed().entries.front().start);
    QCOMPARE(start.hands.scheduled, 0);
}

void StoreStartTest::noRunningTimer_isNothingToTell()
{
    SlowStart start(quib::QuibData{.notes = u"before"_s});
    const QSignalSpy told(start.store.get(), &Store::entriesChanged);

    start.file->answerAtLast();

    QCOMPARE(start.store->notes(), u"before"_s);
    QCoreApplication::processEvents();
    QVERIFY(told.isEmpty());
}

void StoreStartTest::noThread_theFirstQuestionReads()
{
    const DataFolderForTest folder;
    folder.put(quib::encodeQuibData(timed()).value());
    Store store;

    QVERIFY(!store.hasRunningEntry());
    QCOMPARE(store.data(), timed());
    folder.put(quib::encodeQuibData({.notes = u"of another"_s}).value());
    store.beginLoading(); // Too late: nothing is read again.

    QVERIFY(store.hasRunningEntry());
    QCOMPARE(store.data(), timed());
}

void StoreStartTest::question_waitsForTheFile_data()
{
    using Question = std::function<bool(const Store&)>;
    QTest::addColumn<Question>("isAnswered");

    QTest::addRow("data") << Question([](auto& store) { return store.data() == timed(); });
    QTest::addRow("notes") << Question([](auto& store) { return store.notes() == u"before"_s; });
    QTest::addRow("client") << Question(
        [](auto& store) { return store.client(idOf(1)).has_value(); });
    QTest::addRow("running entry")
        << Question([](auto& store) { return store.runningEntry().has_value(); });
    QTest::addRow("running since")
        << Question([](auto& store) { return store.runningSince().isValid(); });
    QTest::addRow("totals") << Question(
        [](auto& store) { return !store.totals(timed().entries[0].start).isEmpty(); });
}

void StoreStartTest::question_waitsForTheFile()
{
    QFETCH(const std::function<bool(const Store&)>, isAnswered);
    SlowStart start;
    const auto answerer = start.answerer();

    QVERIFY(isAnswered(*start.store));
}

void StoreStartTest::changeBeforeTheAnswer_keepsWhatTheFileHolds_data()
{
    using Change = std::function<void(Store&)>;
    using Edit = std::function<void(quib::QuibData&)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<Edit>("apply");
    const auto row = [](const char* name, const Change& change, const Edit& apply) {
        QTest::addRow("%s", name) << change << apply;
    };

    row(
        "notes", [](auto& store) { store.setNotes(u"after"_s); },
        [](auto& data) { data.notes = u"after"_s; });
    row(
        "client deleted", [](auto& store) { store.deleteClient(idOf(1)); },
        [](auto& data) { data.clients.clear(); });
    row(
        "launch item", [](auto& store) { store.addLaunchItem({.name = u"Mail"_s}); },
        [](auto& data) { data.launch.append({.name = u"Mail"_s}); });
    row(
        "timer stopped", [](auto& store) { store.stopTimer(); },
        [](auto& data) { data.entries[0].end = HandClock().now; });
    row(
        "saved as it is", [](auto& store) { store.scheduleSave(); }, [](auto&) {});
}

void StoreStartTest::changeBeforeTheAnswer_keepsWhatTheFileHolds()
{
    QFETCH(const std::function<void(Store&)>, change);
    QFETCH(const std::function<void(quib::QuibData&)>, apply);
    SlowStart start;
    const auto answerer = start.answerer();

    change(*start.store);
    start.store->saveNow();

    auto expected = timed();
    apply(expected);
    QCOMPARE(start.store->data(), expected);
    QCOMPARE(quib::decodeQuibData(start.folder.bytes()), std::optional(expected));
}

void StoreStartTest::quitBeforeTheAnswer_writesNothing()
{
    SlowStart start;
    const auto answerer = start.answerer();

    start.store->saveNow();
    start.store.reset();

    QCOMPARE(start.hands.scheduled, 0);
    QCOMPARE(quib::decodeQuibData(start.folder.bytes()), std::optional(timed()));
}

void StoreStartTest::fileThatDoesNotAnswer_doesNotHoldUpTheEnd()
{
    SlowStart start;
    QTRY_VERIFY(start.file->isWaitedFor());

    start.store.reset(); // Runs into the time limit where it waits.

    QVERIFY(start.file->isHung());
}

void StoreStartTest::applications_areLookedForBesideTheStart()
{
    const DataFolderForTest folder;
    QSemaphore found;
    const auto slowly = [&](const QString& name) {
        found.acquire();
        return std::optional(u"/opt/"_s + name);
    };

    Store store({.findApplication = slowly});
    store.beginLoading(); // Runs into the time limit where it waits.
    found.release(100);

    QCOMPARE(store.data().launch.back().target, u"/opt/WhatsApp"_s);
    QVERIFY(!QFile::exists(folder.file()));
}

QTEST_GUILESS_MAIN(StoreStartTest)
#include "tst_storestart.moc"
