#include "platform/linux/launch/openerdesk.h"
#include "support/hungfile.h"
#include "support/sendsignal.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QUrl>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

QString fileAddress(const QString& path)
{
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
}

bool isRunning(int pid)
{
    return kill(pid, 0) == 0;
}

/// Those that run and those that nobody has buried.
int childrenOf(qint64 parent)
{
    int count = 0;
    const auto processes = QDir(u"/proc"_s).entryList({u"[1-9]*"_s}, QDir::Dirs);
    for (const auto& process : processes) {
        QFile file(u"/proc/"_s + process + u"/stat"_s);
        if (file.open(QIODevice::ReadOnly)) {
            const auto facts = file.readAll();
            const auto afterName = facts.mid(facts.lastIndexOf(')') + 2).split(' ');
            count += afterName.value(1).toLongLong() == parent ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class GioLaunchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void application_startsAsIfByTheDesktop_data();
    void application_startsAsIfByTheDesktop();
    void application_outlivesUs_data();
    void application_outlivesUs();
    void application_ends_leavesNoZombie();
    void hungDisk_blocksNothing();
    void hungHandler_keepsNobodyWaiting();
    void askedForJustBeforeTheEnd_isOpened();
    void hungApplicationOnTheBus_blocksNothing();
    void applicationOnTheBus_isAskedThere();
    void applicationOnTheBus_isGone_nothingIsSaid();
    void busDies_weLiveOn();
    void noBus_noneIsStarted();
};

void GioLaunchTest::application_startsAsIfByTheDesktop_data()
{
    QTest::addColumn<bool>("isProgram");

    QTest::addRow("application") << false;
    QTest::addRow("program file") << true;
}

void GioLaunchTest::application_startsAsIfByTheDesktop()
{
    QFETCH(const bool, isProgram);
    OpenerDesk desk;
    desk.startBus();
    const auto entry = desk.install(u"player"_s);
    desk.environment.insert(u"QT_QPA_PLATFORM"_s, u"the user's"_s);
    desk.environment.remove(u"QT_QPA_UPDATE_IDLE_TIME"_s);
    desk.environment.insert(u"XDG_ACTIVATION_TOKEN"_s, u"ours"_s);
    desk.environment.insert(u"DESKTOP_STARTUP_ID"_s, u"ours"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, isProgram ? QStringLiteral(RECORD_PROGRAM) : entry}));

    QTRY_COMPARE(desk.records().size(), 1);
    const auto record = desk.records().first();
    const auto variables = record.value(u"environment"_s).toObject();
    QCOMPARE(variables.value(u"QT_QPA_PLATFORM"_s).toString(), u"the user's"_s);
    QVERIFY(!variables.contains(u"QT_QPA_UPDATE_IDLE_TIME"_s));
    QVERIFY(!variables.contains(u"XDG_ACTIVATION_TOKEN"_s));
    QVERIFY(!variables.contains(u"DESKTOP_STARTUP_ID"_s));
    QCOMPARE(variables.value(u"DBUS_SESSION_BUS_ADDRESS"_s).toString(),
             desk.environment.value(u"DBUS_SESSION_BUS_ADDRESS"_s));
    QVERIFY(record.value(u"session"_s).toInt() != getsid(pid_t(desk.pid())));
    QVERIFY(record.value(u"signalsAreAsExpected"_s).toBool());
}

void GioLaunchTest::application_outlivesUs_data()
{
    QTest::addColumn<bool>("isKilled");

    QTest::addRow("we quit") << false;
    QTest::addRow("we are killed") << true;
}

void GioLaunchTest::application_outlivesUs()
{
    QFETCH(const bool, isKilled);
    OpenerDesk desk;
    desk.environment.insert(u"QUIB_STAYS"_s, u"1"_s);
    const auto entry = desk.install(u"player"_s);
    desk.start();
    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QVERIFY(desk.ask({u"openPath"_s, QStringLiteral(RECORD_PROGRAM)}));
    QTRY_COMPARE(desk.records().size(), 2);

    if (isKilled) {
        desk.kill();
    } else {
        QVERIFY(desk.quit());
    }

    for (const auto& record : desk.records()) {
        QVERIFY(isRunning(record.value(u"pid"_s).toInt()));
    }
}

void GioLaunchTest::application_ends_leavesNoZombie()
{
    OpenerDesk desk;
    const auto entry = desk.install(u"player"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QVERIFY(desk.ask({u"openPath"_s, QStringLiteral(RECORD_PROGRAM)}));

    QTRY_COMPARE(desk.records().size(), 2);
    QTRY_COMPARE(childrenOf(desk.pid()), 0);
}

void GioLaunchTest::hungDisk_blocksNothing()
{
    OpenerDesk desk;
    const auto entry = desk.install(u"player"_s);
    const auto hung = desk.makeFile(u"hung.desktop"_s);
    const HungFile disk(hung);
    if (!disk.isHung()) {
        QSKIP("this file system knows no leases");
    }
    desk.start();

    for (int i = 0; i < 20; ++i) {
        QVERIFY(desk.ask({u"openPath"_s, hung}));
    }

    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QTRY_COMPARE(desk.started(), (Started{{u"player"_s}}));
    QVERIFY(desk.quit());
}

/// The desktop's own reader of entries has one lock for the whole program.
void GioLaunchTest::hungHandler_keepsNobodyWaiting()
{
    OpenerDesk desk;
    const auto handler = desk.install(u"editor"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    desk.install(u"code"_s);
    desk.makeFile(u"config/autostart/org.korvel.Quib.desktop"_s,
                  "[Desktop Entry]\nType=Application\nName=Q\nExec=true\n");
    const auto notes = desk.makeFile(u"notes.txt"_s);
    desk.start();
    const HungFile disk(handler);
    if (!disk.isHung()) {
        QSKIP("this file system knows no leases");
    }

    QVERIFY(desk.ask({u"openPath"_s, notes}));
    QTRY_VERIFY(disk.isWaitedFor());

    QVERIFY(desk.ask({u"openWithFirst"_s, desk.path({}), u"code.desktop"_s}));
    QCOMPARE(desk.answer({u"startsAtLogin"_s}), u"yes"_s);
    QVERIFY(desk.quit());
}

void GioLaunchTest::askedForJustBeforeTheEnd_isOpened()
{
    OpenerDesk desk;
    desk.environment.insert(u"QUIB_PATIENT_AT_THE_END"_s, u"1"_s);
    desk.install(u"editor"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    const auto notes = desk.makeFile(u"notes.txt"_s);
    desk.start();

    desk.tell({u"openPath"_s, notes});
    QVERIFY(desk.quit());

    QTRY_COMPARE(desk.started(), (Started{{u"editor"_s, notes}}));
}

void GioLaunchTest::hungApplicationOnTheBus_blocksNothing()
{
    OpenerDesk desk;
    desk.startBus();
    const auto name = u"org.quibtest.Viewer"_s;
    const auto hung = desk.install(name, u"%f"_s, u"DBusActivatable=true"_s);
    const auto entry = desk.install(u"player"_s);
    const auto service = desk.startService(name);
    sendSignal(service->processId(), SIGSTOP);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, hung}));
    QVERIFY(desk.ask({u"openWithFirst"_s, desk.path({}), name + u".desktop"_s}));

    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QTRY_COMPARE(desk.started(), (Started{{u"player"_s}}));
    QVERIFY(desk.quit());
    service->kill();
    service->waitForFinished();
}

void GioLaunchTest::applicationOnTheBus_isAskedThere()
{
    OpenerDesk desk;
    desk.startBus();
    const auto name = u"org.quibtest.Viewer"_s;
    const auto entry = desk.install(name, u"%f"_s, u"DBusActivatable=true"_s);
    const auto service = desk.startService(name);
    const auto folder = desk.makeFolder(u"a b"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QTRY_VERIFY(service->canReadLine());
    QCOMPARE(service->readLine(),
             "org.freedesktop.Application.Activate /org/quibtest/Viewer \n"_ba);
    QVERIFY(desk.ask({u"openWithFirst"_s, folder, name + u".desktop"_s}));
    QTRY_VERIFY(service->canReadLine());
    QCOMPARE(service->readLine(),
             "org.freedesktop.Application.Open /org/quibtest/Viewer "_ba
                 + fileAddress(folder).toLatin1() + '\n');

    service->kill();
    service->waitForFinished();
}

void GioLaunchTest::applicationOnTheBus_isGone_nothingIsSaid()
{
    OpenerDesk desk;
    desk.startBus();
    const auto gone = desk.install(u"org.quibtest.Gone"_s, u"%f"_s, u"DBusActivatable=true"_s);
    const auto service = desk.startService(u"org.freedesktop.FileManager1"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, gone}));

    QVERIFY(desk.ask({u"openPath"_s, desk.install(u"player"_s)}));
    QTRY_COMPARE(desk.started(), (Started{{u"player"_s}}));
    QVERIFY(desk.quit());
    QCOMPARE(desk.complaints(), QByteArray());
    service->kill();
    service->waitForFinished();
}

void GioLaunchTest::busDies_weLiveOn()
{
    OpenerDesk desk;
    desk.startBus();
    const auto entry = desk.install(u"player"_s);
    desk.start();
    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QTRY_COMPARE(desk.started().size(), 1);

    desk.killBus();

    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QTRY_COMPARE(desk.started().size(), 2);
    QVERIFY(desk.quit());
}

void GioLaunchTest::noBus_noneIsStarted()
{
    OpenerDesk desk;
    const auto entry = desk.install(u"player"_s);
    QVERIFY(
        QFile::link(QStringLiteral(RECORD_PROGRAM), desk.makeFolder(u"bin"_s) + u"/dbus-launch"_s));
    desk.environment.insert(u"PATH"_s, desk.path(u"bin"_s));
    desk.environment.insert(u"DISPLAY"_s, u":77"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QVERIFY(desk.ask({u"reveal"_s, desk.path(u"x"_s)}));

    QTRY_COMPARE(desk.started(), (Started{{u"player"_s}}));
    QVERIFY(!desk.records()
                 .first()
                 .value(u"environment"_s)
                 .toObject()
                 .contains(u"DBUS_SESSION_BUS_ADDRESS"_s));
}

QTEST_GUILESS_MAIN(GioLaunchTest)
#include "tst_giolaunch.moc"
