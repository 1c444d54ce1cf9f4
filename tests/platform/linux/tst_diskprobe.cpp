#include "platform/linux/diskprobe.h"

#include "support/hungdisk.h"
#include "support/writefile.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::DiskProbe;
using quib::FilePresence;

/// Whether files are there, on disks that answer and on one that does not.
class DiskProbeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void presence_isWhatThePathLeadsTo_data();
    void presence_isWhatThePathLeadsTo();
    void presence_isLookedForEachTimeAnew();
    void answer_comesLater();
    void manyQuestions_areAllAnswered();
    void hungDisk_isGivenUpAndHoldsUpNoOther();
    void hungDisk_asksOncePerPath();
    void hungDisk_holdsUpNoEnd();
    void hungDisk_answersAtLast();

private:
    QTemporaryDir m_folder;
};

namespace {

FilePresence ask(DiskProbe& probe, const QString& path)
{
    std::optional<FilePresence> answer;
    probe.ask(path, [&answer](FilePresence presence) { answer = presence; });
    [[maybe_unused]] const bool came = QTest::qWaitFor([&] { return answer.has_value(); }, 30'000);
    return answer.value();
}

} // namespace

void DiskProbeTest::presence_isWhatThePathLeadsTo_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isThere");

    const auto file = writeFile(m_folder.filePath(u"a b%20 'ü'\n.txt"_s), "x");
    QFile::link(file, m_folder.filePath(u"link"_s));
    QFile::link(m_folder.filePath(u"gone"_s), m_folder.filePath(u"broken link"_s));
    QTest::addRow("a file") << file << true;
    QTest::addRow("a folder") << m_folder.path() << true;
    QTest::addRow("a link to a file") << m_folder.filePath(u"link"_s) << true;
    QTest::addRow("a link that leads nowhere") << m_folder.filePath(u"broken link"_s) << false;
    QTest::addRow("nothing") << m_folder.filePath(u"gone"_s) << false;
    QTest::addRow("below a file") << file + u"/below"_s << false;
    QTest::addRow("a file up to a NUL") << file + QChar::Null + u".png"_s << false;
    QTest::addRow("a name that no disk has") << u'/' + QString(5000, u'x') << false;
}

void DiskProbeTest::presence_isWhatThePathLeadsTo()
{
    QFETCH(QString, path);
    QFETCH(bool, isThere);
    DiskProbe probe;

    QCOMPARE(ask(probe, path), isThere ? FilePresence::There : FilePresence::Gone);
}

void DiskProbeTest::presence_isLookedForEachTimeAnew()
{
    DiskProbe probe;
    const auto file = writeFile(m_folder.filePath(u"comes and goes"_s), "x");
    QCOMPARE(ask(probe, file), FilePresence::There);

    QFile::remove(file);
    QCOMPARE(ask(probe, file), FilePresence::Gone);

    writeFile(file, "x");
    QCOMPARE(ask(probe, file), FilePresence::There);
}

void DiskProbeTest::answer_comesLater()
{
    DiskProbe probe;
    int answers = 0;

    probe.ask(m_folder.path(), [&](FilePresence) { ++answers; });
    QCOMPARE(answers, 0);
    QVERIFY(probe.isBusy());

    QTRY_COMPARE(answers, 1);
    QVERIFY(!probe.isBusy());
}

void DiskProbeTest::manyQuestions_areAllAnswered()
{
    DiskProbe probe;
    int answers = 0;

    for (int number = 0; number < 500; ++number) {
        probe.ask(m_folder.filePath(QString::number(number % 200)),
                  [&](FilePresence presence) { answers += presence == FilePresence::Gone; });
    }

    QTRY_COMPARE_WITH_TIMEOUT(answers, 500, 30'000);
}

void DiskProbeTest::hungDisk_isGivenUpAndHoldsUpNoOther()
{
    HungDisk disk;
    if (!disk.isHung()) {
        QSKIP("no file system can be mounted here");
    }
    DiskProbe probe(50ms);
    int unknown = 0;

    for (int number = 0; number < 6; ++number) {
        probe.ask(disk.path(QString::number(number)),
                  [&](FilePresence presence) { unknown += presence == FilePresence::Unknown; });
    }

    QCOMPARE(ask(probe, m_folder.path()), FilePresence::There);
    QTRY_COMPARE(unknown, 6);
}

void DiskProbeTest::hungDisk_asksOncePerPath()
{
    HungDisk disk;
    if (!disk.isHung()) {
        QSKIP("no file system can be mounted here");
    }
    DiskProbe probe(20ms);

    for (int number = 0; number < 200; ++number) {
        QCOMPARE(ask(probe, disk.path(u"file"_s)), FilePresence::Unknown);
    }

    QCOMPARE(ask(probe, m_folder.path()), FilePresence::There);
}

void DiskProbeTest::hungDisk_holdsUpNoEnd()
{
    HungDisk disk;
    if (!disk.isHung()) {
        QSKIP("no file system can be mounted here");
    }
    auto probe = std::make_unique<DiskProbe>(20ms);
    QCOMPARE(ask(*probe, disk.path(u"file"_s)), FilePresence::Unknown);

    probe.reset();

    QVERIFY(disk.isHung());
}

void DiskProbeTest::hungDisk_answersAtLast()
{
    HungDisk disk;
    if (!disk.isHung()) {
        QSKIP("no file system can be mounted here");
    }
    DiskProbe probe(50ms);
    QCOMPARE(ask(probe, disk.path(u"file"_s)), FilePresence::Unknown);

    disk.answerAtLast();

    QTRY_COMPARE(ask(probe, disk.path(u"file"_s)), FilePresence::There);
}

QTEST_GUILESS_MAIN(DiskProbeTest)
#include "tst_diskprobe.moc"
