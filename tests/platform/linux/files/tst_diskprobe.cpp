#include "platform/linux/files/presenceof.h"
#include "support/writefile.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using quib::DiskProbe;
using quib::FilePresence;

/// Whether files are there, on disks that answer.
class DiskProbeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void presence_isWhatThePathLeadsTo_data();
    void presence_isWhatThePathLeadsTo();
    void presence_isLookedForEachTimeAnew();
    void answer_comesLater();
    void manyQuestions_areAllAnswered();

private:
    QTemporaryDir m_folder;
};

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

    QCOMPARE(presenceOf(path, probe), isThere ? FilePresence::There : FilePresence::Gone);
}

void DiskProbeTest::presence_isLookedForEachTimeAnew()
{
    DiskProbe probe;
    const auto file = writeFile(m_folder.filePath(u"comes and goes"_s), "x");
    QCOMPARE(presenceOf(file, probe), FilePresence::There);

    QFile::remove(file);
    QCOMPARE(presenceOf(file, probe), FilePresence::Gone);

    writeFile(file, "x");
    QCOMPARE(presenceOf(file, probe), FilePresence::There);
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

QTEST_GUILESS_MAIN(DiskProbeTest)
#include "tst_diskprobe.moc"
