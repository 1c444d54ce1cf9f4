#include "desktop/desk/desk.h"
#include "support/soundfile.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const auto OwnName = u"org.korvel.Quib"_s;
const auto Player = u"org.mpris.MediaPlayer2.mpv"_s;
constexpr QPoint MiddleOfPause = places::PlayPause;
constexpr QPoint LeftBarOfPause = places::LeftInPlayPause;

Program startPlayer(Desk& desk)
{
    const auto song = desk.folder(u"song.wav"_s);
    writeSound(song, "So What", "Miles Davis");
    return desk.start(u"mpv"_s,
                      {u"--no-config"_s, u"--ao=null"_s, u"--no-video"_s, u"--really-quiet"_s,
                       u"--loop"_s, u"--script=/usr/lib/mpv-mpris/mpris.so"_s, song});
}

bool offersToPause(const Desk& desk)
{
    return desk.pixel(LeftBarOfPause).lightness() > 200
        && desk.pixel(MiddleOfPause).lightness() < 80;
}

/// Opens the panel, types a task, and waits until it is on disk.
void addAndSave(const Desk& desk, const QString& title)
{
    desk.addTask(title);
    QTRY_COMPARE_WITH_TIMEOUT(desk.savedTasks().value(0), title, 10'000);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
}

} // namespace

/// The session bus is killed, comes back and hangs under the running program.
class BusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void killed_thePanelWorks();
    void back_playersAreShownAgain();
    void back_aSecondStartIsHeard();
    void hung_thePanelWorksAndQuits();
    void hungAtTheStart_thePanelOpensAndWorks_data();
    void hungAtTheStart_thePanelOpensAndWorks();
    void backHung_thePanelWorks();
};

void BusTest::killed_thePanelWorks()
{
    Desk desk;
    const auto quib = desk.startQuib();

    desk.killBus();

    addAndSave(desk, u"Without a bus"_s);
    QCOMPARE(desk.runQuib(), 0); // The lock tells the second start.
    QVERIFY(desk.waitForExpanded(true));
    QCOMPARE(quib->state(), QProcess::Running);
}

void BusTest::back_playersAreShownAgain()
{
    Desk desk;
    auto player = startPlayer(desk);
    QTRY_VERIFY_WITH_TIMEOUT(desk.isOnBus(Player), 15'000);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    QTRY_VERIFY_WITH_TIMEOUT(offersToPause(desk), 10'000);

    desk.killBus();
    player->kill();
    player->waitForFinished();
    QTRY_VERIFY_WITH_TIMEOUT(!offersToPause(desk), 10'000);
    desk.startBus();
    player = startPlayer(desk);

    QTRY_VERIFY_WITH_TIMEOUT(offersToPause(desk), 20'000);
    player->kill();
    player->waitForFinished();
}

void BusTest::back_aSecondStartIsHeard()
{
    Desk desk;
    const auto quib = desk.startQuib();
    QTRY_VERIFY_WITH_TIMEOUT(desk.isOnBus(OwnName), 10'000);

    desk.killBus();
    desk.startBus();

    QTRY_VERIFY_WITH_TIMEOUT(desk.isOnBus(OwnName), 10'000);
    QCOMPARE(desk.runQuib(), 0);
    QVERIFY(desk.waitForExpanded(true));
    QCOMPARE(quib->state(), QProcess::Running);
}

void BusTest::hung_thePanelWorksAndQuits()
{
    Desk desk;
    const auto quib = desk.startQuib();
    QTRY_VERIFY_WITH_TIMEOUT(desk.isOnBus(OwnName), 10'000); // Reached after the first frame.

    desk.hangBus();

    addAndSave(desk, u"On a bus that hangs"_s);
    quib->terminate();
    QVERIFY(quib->waitForFinished(10'000));
    QCOMPARE(quib->exitStatus(), QProcess::NormalExit);
}

/// What Qt does on some desktops before anything is shown.
void BusTest::hungAtTheStart_thePanelOpensAndWorks_data()
{
    QTest::addColumn<QStringList>("variables");

    QTest::addRow("no desktop") << QStringList();
    QTest::addRow("Plasma") << QStringList{u"XDG_CURRENT_DESKTOP=KDE"_s,
                                           u"KDE_SESSION_VERSION=5"_s};
    QTest::addRow("GNOME") << QStringList{u"XDG_CURRENT_DESKTOP=GNOME"_s};
    QTest::addRow("input methods by the portal")
        << QStringList{u"QT_IM_MODULE=ibus"_s, u"IBUS_USE_PORTAL=1"_s};
}

void BusTest::hungAtTheStart_thePanelOpensAndWorks()
{
    QFETCH(const QStringList, variables);
    Desk desk;
    for (const auto& variable : variables) {
        desk.setVariable(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    }
    desk.hangBus();

    const auto quib = desk.startQuib();

    addAndSave(desk, u"Started on a bus that hangs"_s);
    QCOMPARE(desk.runQuib(), 0);
    QVERIFY(desk.waitForExpanded(true));
    desk.resumeBus();
    QTRY_VERIFY_WITH_TIMEOUT(desk.isOnBus(OwnName), 10'000);
    quib->terminate();
    QVERIFY(quib->waitForFinished(10'000));
}

void BusTest::backHung_thePanelWorks()
{
    Desk desk;
    const auto quib = desk.startQuib();

    desk.killBus();
    desk.startBus();
    desk.hangBus();

    addAndSave(desk, u"Back, but hung"_s);
    desk.resumeBus();
    QTRY_VERIFY_WITH_TIMEOUT(desk.isOnBus(OwnName), 10'000);
    desk.hangBus();
    quib->terminate();
    QVERIFY(quib->waitForFinished(10'000));
}

QTEST_GUILESS_MAIN(BusTest)
#include "tst_bus.moc"
