#include "platform/linux/base/memory.h"
#include "support/privatememory.h"

#include <QTest>

#include <memory>
#include <thread>
#include <vector>

namespace {

using Block = std::vector<char>;

constexpr qint64 MiB = 1'048'576;

/// A block of memory that is really used.
std::unique_ptr<Block> usedBlock(std::size_t bytes)
{
    return std::make_unique<Block>(bytes, '\1');
}

} // namespace

/// What has been freed is of use to others.
class MemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void trimming_givesBackWhatIsFreeBetweenWhatIsUsed();
    void largeBlock_goesBackAtOnce_howeverLargeTheLastOneWas();
    void threads_shareOneHeap();
};

void MemoryTest::initTestCase()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("the sanitizer has a heap of its own");
#endif
    quib::useOneHeap();
}

void MemoryTest::trimming_givesBackWhatIsFreeBetweenWhatIsUsed()
{
    const auto before = privateMemory();
    std::vector<std::unique_ptr<Block>> blocks(512);
    for (auto& block : blocks) {
        block = usedBlock(100'000);
    }
    const auto last = std::move(blocks.back()); // Else the heap would just end earlier.
    QVERIFY(privateMemory() - before > 40 * MiB);

    blocks.clear();
    quib::trimMemory();

    QVERIFY2(privateMemory() - before < 5 * MiB, qPrintable(QString::number(privateMemory())));
}

void MemoryTest::largeBlock_goesBackAtOnce_howeverLargeTheLastOneWas()
{
    usedBlock(30 * MiB).reset();
    const auto before = privateMemory();
    auto block = usedBlock(10 * MiB);
    const auto last = usedBlock(1000);

    block.reset();

    QVERIFY(privateMemory() - before < MiB);
}

void MemoryTest::threads_shareOneHeap()
{
    std::unique_ptr<Block> ofAnother;
    std::thread([&] { ofAnother = usedBlock(1000); }).join();
    const auto own = usedBlock(1000);

    // Heaps of threads begin at multiples of 64 MiB, far away.
    const auto distance = ofAnother->data() - own->data();
    QVERIFY(std::abs(distance) < 16 * MiB);
}

QTEST_GUILESS_MAIN(MemoryTest)
#include "tst_memory.moc"
