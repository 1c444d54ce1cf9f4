#include "desktop/desk/carrying.h"
#include "support/hungdisk.h"

using namespace Qt::StringLiterals;

/// A shelf with files on a disk that does not answer, as a share of a server that is gone.
class DeadDiskTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void panel_goesOnAsEver();
    void program_endsAsEver();

private:
    std::unique_ptr<HungDisk> m_disk;
};

namespace {

/// Eleven files that nobody can look at, behind one that is there.
QByteArray shelfOn(const HungDisk& disk, const QString& there)
{
    QStringList paths{there, disk.path(u"file"_s)};
    for (int number = 0; number < 10; ++number) {
        paths << disk.path(QString::number(number));
    }
    return workspaceWithShelf(paths);
}

} // namespace

void DeadDiskTest::init()
{
    m_disk = std::make_unique<HungDisk>();
    if (!m_disk->isHung()) {
        QSKIP(m_disk->hindrance().constData()); // As in some containers.
    }
}

void DeadDiskTest::panel_goesOnAsEver()
{
    Desk desk;
    const auto there = writeFile(desk.folder(u"there.txt"_s), "x");
    desk.writeData(shelfOn(*m_disk, there));
    const auto quib = desk.startQuib();
    const auto listener = desk.startListener();

    for (int round = 0; round < 3; ++round) {
        desk.openWithPointer();
        desk.showTab(5);
        desk.showTab(3);
        desk.click(Desk::TaskField);
        desk.type(u"task %1"_s.arg(round));
        desk.key(u"Return"_s);
        QTRY_COMPARE(desk.savedTasks().size(), round + 1);
        desk.moveTo(Desk::FarAway);
        QVERIFY(desk.waitForExpanded(false));
    }
    QVERIFY(m_disk->isHung());
}

void DeadDiskTest::program_endsAsEver()
{
    Desk desk;
    desk.writeData(shelfOn(*m_disk, desk.folder({})));
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(5);

    quib->terminate();

    QVERIFY(quib->waitForFinished(10'000));
    QCOMPARE(quib->exitStatus(), QProcess::NormalExit);
    QCOMPARE(quib->exitCode(), 0);
}

QTEST_GUILESS_MAIN(DeadDiskTest)
#include "tst_deaddisk.moc"
