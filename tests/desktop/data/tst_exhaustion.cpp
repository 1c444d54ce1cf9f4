#include "desktop/desk/desk.h"
#include "support/sendsignal.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// What the system no longer gives ends neither the program nor what was saved.
class ExhaustionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void limit_leavesWhatWasSavedAndIsSurvived_data();
    void limit_leavesWhatWasSavedAndIsSurvived();
    void noMemory_leavesWhatWasSaved();
    void stormOfSignals_leavesWhatWasTyped();
};

namespace {

constexpr int SomethingTyped = 60; ///< Letters, more than a limit leaves room for.
#ifdef __SANITIZE_ADDRESS__
constexpr bool NeedsFiles = true; ///< The sanitizers ask by a pipe whether memory is there.
#else
constexpr bool NeedsFiles = false;
#endif

/// Of a process that runs, by the words of prlimit.
void limit(const QProcess& process, const QStringList& limits)
{
    QCOMPARE(
        QProcess::execute(u"prlimit"_s,
                          QStringList{u"--pid"_s, QString::number(process.processId())} + limits),
        0);
}

/// The file is whole, and has these tasks in front.
bool hasSaved(const Desk& desk, const QStringList& tasks)
{
    return desk.savedTasks().mid(0, tasks.size()) == tasks;
}

} // namespace

void ExhaustionTest::limit_leavesWhatWasSavedAndIsSurvived_data()
{
    QTest::addColumn<QStringList>("limits");
    QTest::addColumn<QStringList>("lifted");

    QTest::addRow("files may not grow")
        << QStringList{u"--fsize=100:"_s} << QStringList{u"--fsize=unlimited:"_s};
    QTest::addRow("no more files")
        << QStringList{u"--nofile=3:"_s} << QStringList{u"--nofile=1024:"_s};
}

void ExhaustionTest::limit_leavesWhatWasSavedAndIsSurvived()
{
    QFETCH(const QStringList, limits);
    QFETCH(const QStringList, lifted);
    if (NeedsFiles && limits.first().contains(u"nofile"_s)) {
        QSKIP("sanitizers end a program that can open no file");
    }
    Desk desk;
    const auto quib = desk.startQuib();
    desk.addTask(u"Before"_s);
    QTRY_VERIFY(hasSaved(desk, {u"Before"_s}));

    limit(*quib, limits);
    desk.addTask(QString(SomethingTyped, u'x'));
    for (int tab = 0; tab < 7; ++tab) {
        desk.showTab(tab);
    }
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false)); // By then the save has been tried.
    QVERIFY(hasSaved(desk, {u"Before"_s}));
    QCOMPARE(quib->state(), QProcess::Running);

    limit(*quib, lifted);
    desk.addTask(u"After"_s);
    QTRY_VERIFY(hasSaved(desk, {u"After"_s, QString(SomethingTyped, u'x'), u"Before"_s}));
    quib->terminate();
    QVERIFY(quib->waitForFinished());
    QCOMPARE(quib->exitCode(), 0);
}

/// A program that gets no memory may end; what it had saved is there.
void ExhaustionTest::noMemory_leavesWhatWasSaved()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.addTask(u"Before"_s);
    QTRY_VERIFY(hasSaved(desk, {u"Before"_s}));

    limit(*quib, {u"--as=1000000:"_s});
    desk.openWithPointer();
    for (int tab = 0; tab < 7 && quib->state() == QProcess::Running; ++tab) {
        desk.showTab(tab);
    }
    quib->terminate();
    QTRY_COMPARE(quib->state(), QProcess::NotRunning);

    QVERIFY(hasSaved(desk, {u"Before"_s}));
}

void ExhaustionTest::stormOfSignals_leavesWhatWasTyped()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.addTask(u"Just now"_s);
    desk.showTab(0); // It has been added then.

    for (int i = 0; i < 500 && quib->state() == QProcess::Running; ++i) {
        sendSignal(quib->processId(), std::array{SIGTERM, SIGINT, SIGHUP}.at(std::size_t(i % 3)));
        quib->waitForFinished(1);
    }

    QTRY_COMPARE(quib->state(), QProcess::NotRunning);
    QVERIFY(
        hasSaved(desk, {u"Just now"_s})); // A late signal may still have ended what was left of it.
}

QTEST_GUILESS_MAIN(ExhaustionTest)
#include "tst_exhaustion.moc"
