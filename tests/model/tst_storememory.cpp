#include "support/downloadsfortest.h"
#include "support/privatememory.h"
#include "support/storefixture.h"

#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

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

/// What a large workspace leaves behind once it is on the disk.
class StoreMemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void manyEntries_leaveNoMemoryBehind();
};

void StoreMemoryTest::manyEntries_leaveNoMemoryBehind()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
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

QTEST_GUILESS_MAIN(StoreMemoryTest)
#include "tst_storememory.moc"
