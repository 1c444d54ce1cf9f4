#include "desktop/desk/desk.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// One program for each data folder.
class InstanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void secondStart_opensTheFirstAndGivesItTheKeyboard_data();
    void secondStart_opensTheFirstAndGivesItTheKeyboard();
    void anotherDataFolder_isAnotherInstance();
    void firstCrashed_theNextStartsAnew();
    void snapshot_takesNoPart();
    void snapshotWithoutAFolder_isAnOrdinaryStart();
};

void InstanceTest::secondStart_opensTheFirstAndGivesItTheKeyboard_data()
{
    QTest::addColumn<bool>("sessionBus");

    QTest::addRow("with a session bus") << true;
    QTest::addRow("without a session bus") << false;
}

void InstanceTest::secondStart_opensTheFirstAndGivesItTheKeyboard()
{
    QFETCH(bool, sessionBus);
    Desk desk({.sessionBus = sessionBus});
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(3);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));

    QCOMPARE(desk.runQuib(), 0);
    QVERIFY(desk.waitForExpanded(true));
    desk.type(u"Typed at once"_s);
    desk.key(u"Return"_s);

    QTRY_COMPARE(desk.savedTasks().value(0), u"Typed at once"_s);
    QVERIFY(desk.isExpanded()); // Pinned: the pointer is elsewhere.
    QCOMPARE(quib->state(), QProcess::Running);
}

void InstanceTest::anotherDataFolder_isAnotherInstance()
{
    Desk desk;
    const auto first = desk.startQuib();

    desk.setVariable(u"QUIB_DATA_DIR"_s, desk.folder(u"other data"_s));
    const auto second = desk.start(Desk::quib());

    QVERIFY(!second->waitForFinished(1500));
    QCOMPARE(first->state(), QProcess::Running);
    second->terminate();
    second->waitForFinished();
}

void InstanceTest::firstCrashed_theNextStartsAnew()
{
    Desk desk({.sessionBus = false});
    const auto first = desk.startQuib();
    first->kill();
    first->waitForFinished();

    const auto second = desk.startQuib();

    QCOMPARE(second->state(), QProcess::Running);
    desk.moveTo(Desk::Notch);
    QVERIFY(desk.waitForExpanded(true));
}

void InstanceTest::snapshot_takesNoPart()
{
    Desk desk;
    const auto quib = desk.startQuib();

    QCOMPARE(desk.runQuib({u"--snapshot"_s, desk.folder(u"runtime"_s)}), 0);

    QVERIFY(QFile::exists(desk.folder(u"runtime/home.png"_s)));
    QVERIFY(!desk.isExpanded());
}

void InstanceTest::snapshotWithoutAFolder_isAnOrdinaryStart()
{
    Desk desk;

    const auto quib = desk.startQuib({}, {u"--snapshot"_s});
    desk.moveTo(Desk::Notch);

    QVERIFY(desk.waitForExpanded(true));
    QCOMPARE(quib->state(), QProcess::Running);
}

QTEST_GUILESS_MAIN(InstanceTest)
#include "tst_instance.moc"
