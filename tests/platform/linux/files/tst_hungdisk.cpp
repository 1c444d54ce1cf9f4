#include "platform/linux/files/presenceof.h"
#include "support/hungdisk.h"

#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::DiskProbe;
using quib::FilePresence;

/// Whether files are there, on a disk that does not answer.
class HungDiskTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_disk.reset(); }
    void isGivenUpAndHoldsUpNoOther();
    void asksOncePerPath();
    void holdsUpNoEnd();
    void answersAtLast();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<HungDisk> m_disk;
};

void HungDiskTest::init()
{
    m_disk = std::make_unique<HungDisk>();
    if (!m_disk->isHung()) {
        QSKIP(m_disk->hindrance().constData()); // As in some containers.
    }
}

void HungDiskTest::isGivenUpAndHoldsUpNoOther()
{
    DiskProbe probe(50ms);
    int unknown = 0;

    for (int number = 0; number < 6; ++number) {
        probe.ask(m_disk->path(QString::number(number)),
                  [&](FilePresence presence) { unknown += presence == FilePresence::Unknown; });
    }

    QCOMPARE(presenceOf(m_folder.path(), probe), FilePresence::There);
    QTRY_COMPARE(unknown, 6);
}

void HungDiskTest::asksOncePerPath()
{
    DiskProbe probe(20ms);

    for (int number = 0; number < 200; ++number) {
        QCOMPARE(presenceOf(m_disk->path(u"file"_s), probe), FilePresence::Unknown);
    }

    QCOMPARE(presenceOf(m_folder.path(), probe), FilePresence::There);
}

void HungDiskTest::holdsUpNoEnd()
{
    auto probe = std::make_unique<DiskProbe>(20ms);
    QCOMPARE(presenceOf(m_disk->path(u"file"_s), *probe), FilePresence::Unknown);

    probe.reset();

    QVERIFY(m_disk->isHung());
}

void HungDiskTest::answersAtLast()
{
    DiskProbe probe(50ms);
    QCOMPARE(presenceOf(m_disk->path(u"file"_s), probe), FilePresence::Unknown);

    m_disk->answerAtLast();

    QTRY_COMPARE(presenceOf(m_disk->path(u"file"_s), probe), FilePresence::There);
}

QTEST_GUILESS_MAIN(HungDiskTest)
#include "tst_hungdisk.moc"
