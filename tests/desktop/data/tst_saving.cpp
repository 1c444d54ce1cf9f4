#include "desktop/desk/desk.h"
#include "support/sendsignal.h"

#include <QDir>
#include <QHash>
#include <QTest>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

/// Whatever ends the program, what was typed is on disk.
class SavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void endingSoonAfterAChange_leavesItOnDisk_data();
    void endingSoonAfterAChange_leavesItOnDisk();
    void serverGoneSoonAfterAChange_leavesItOnDisk();
    void nothingChanged_nothingIsWritten();
    void firstStart_isInTheUsersDataHome();
    void unreadableFile_survivesStartAndEnd();
    void dataFolderRemoved_isMadeAgain();
    void writingInTheBackground_yieldsToTheOthers();
};

namespace {

/// Two tasks are there at first; where a third would be, the card is black.
bool showsAThirdTask(const Desk& desk)
{
    const auto row = desk.picture().copy({470, 172, 150, 18});
    auto empty = row;
    empty.fill(Qt::black);
    return row != empty;
}

/// Types a task, and waits until it is in the list.
void addTask(const Desk& desk, const QString& title)
{
    desk.openWithPointer();
    desk.showTab(3);
    desk.click(Desk::TaskField);
    desk.type(title);
    QTRY_VERIFY(!showsAThirdTask(desk));
    desk.key(u"Return"_s);
    QTRY_VERIFY(showsAThirdTask(desk));
}

/// By their numbers, as the system has it; that of the main thread is the process's.
QHash<qint64, int> nicenessOfThreads(const QProcess& quib)
{
    QHash<qint64, int> found;
    const QDir threads(u"/proc/%1/task"_s.arg(quib.processId()));
    for (const auto& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile facts(threads.filePath(thread + u"/stat"_s));
        if (facts.open(QIODevice::ReadOnly)) {
            const auto line = facts.readAll();
            const auto behindTheName = line.mid(line.lastIndexOf(')') + 2).split(' ');
            found.insert(thread.toLongLong(), behindTheName.value(16).toInt());
        }
    }
    return found;
}

void end(QProcess& quib, int signal)
{
    sendSignal(quib.processId(), signal);
}

} // namespace

void SavingTest::endingSoonAfterAChange_leavesItOnDisk_data()
{
    QTest::addColumn<int>("signal");

    QTest::addRow("SIGTERM") << SIGTERM;
    QTest::addRow("SIGINT") << SIGINT;
    QTest::addRow("SIGHUP") << SIGHUP;
}

void SavingTest::endingSoonAfterAChange_leavesItOnDisk()
{
    QFETCH(int, signal);
    Desk desk;
    const auto quib = desk.startQuib();
    addTask(desk, u"Just now"_s);

    end(*quib, signal); // Before the 0.4 s after which it is written anyway.

    QVERIFY(quib->waitForFinished());
    QCOMPARE(quib->exitStatus(), QProcess::NormalExit);
    QCOMPARE(quib->exitCode(), 0);
    QCOMPARE(desk.savedTasks().value(0), u"Just now"_s);
}

void SavingTest::serverGoneSoonAfterAChange_leavesItOnDisk()
{
    Desk desk;
    const auto quib = desk.startQuib();
    addTask(desk, u"Just now"_s);

    desk.killServer();

    QVERIFY(quib->waitForFinished());
    QCOMPARE(desk.savedTasks().value(0), u"Just now"_s);
}

void SavingTest::nothingChanged_nothingIsWritten()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(3);

    end(*quib, SIGTERM);

    QVERIFY(quib->waitForFinished());
    QVERIFY(QDir(desk.dataFolder()).exists());
    QCOMPARE(QDir(desk.dataFolder()).entryList(QDir::Files), QStringList{u"shortcuts.json"_s});
}

void SavingTest::firstStart_isInTheUsersDataHome()
{
    Desk desk;
    const QDir folder(desk.folder(u".local/share/KorvelQuib"_s));
    const auto quib = desk.startQuib({u"env"_s, u"-u"_s, u"QUIB_DATA_DIR"_s});
    QCOMPARE(folder.entryList(QDir::Files), QStringList{u"shortcuts.json"_s});

    addTask(desk, u"First change"_s);

    QTRY_VERIFY(folder.exists(u"data.json"_s));
    QVERIFY(!QFile::exists(desk.dataFolder()));
}

void SavingTest::unreadableFile_survivesStartAndEnd()
{
    Desk desk;
    desk.writeData("{ \"clients\": [ almost");
    const auto quib = desk.startQuib();

    end(*quib, SIGTERM);

    QVERIFY(quib->waitForFinished());
    QFile file(desk.dataFolder() + u"/data.json"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "{ \"clients\": [ almost");
}

void SavingTest::dataFolderRemoved_isMadeAgain()
{
    Desk desk;
    const auto quib = desk.startQuib();
    addTask(desk, u"Before"_s);
    QTRY_COMPARE(desk.savedTasks().value(0), u"Before"_s);

    QVERIFY(QDir(desk.dataFolder()).removeRecursively());
    desk.type(u"After"_s);
    desk.key(u"Return"_s);

    QTRY_COMPARE(desk.savedTasks().value(0), u"After"_s);
}

void SavingTest::writingInTheBackground_yieldsToTheOthers()
{
    Desk desk;
    const auto quib = desk.startQuib();
    const auto before = nicenessOfThreads(*quib);
    const auto usual = before.value(quib->processId());
    if (usual >= 10) {
        QSKIP("the tests themselves run at a niceness of 10 or more");
    }
    QCOMPARE(before.values().count(usual), before.size());

    addTask(desk, u"Saved"_s);
    QTRY_COMPARE(desk.savedTasks().value(0), u"Saved"_s);

    auto after = nicenessOfThreads(*quib).values(); // The one that wrote rests.
    std::ranges::sort(after);
    QCOMPARE(after.count(usual), after.size() - 1);
    QVERIFY(after.last() > usual);
}

QTEST_GUILESS_MAIN(SavingTest)
#include "tst_saving.moc"
