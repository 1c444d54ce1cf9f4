#include "platform/linux/openerdesk.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QUrl>

#include <algorithm>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using Started = QList<QStringList>;

QString fileAddress(const QString& path)
{
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
}

bool isRunning(int pid)
{
    return kill(pid, 0) == 0;
}

/// While it lives, whoever opens the file waits as for a disk that is gone: for as long as the
/// kernel gives a holder of a lease to give it back, 45 seconds.
class HungFile {
public:
    explicit HungFile(const QString& path)
        : m_file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC))
    {
        std::signal(SIGIO, SIG_IGN); // The kernel asks for the lease with it.
        m_isHung = fcntl(m_file, F_SETLEASE, F_WRLCK) == 0;
    }
    ~HungFile() { close(m_file); }
    Q_DISABLE_COPY_MOVE(HungFile)

    bool isHung() const { return m_isHung; }

private:
    int m_file;
    bool m_isHung = false;
};

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

class GioOpenerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void openPath_document_opensInItsDefault();
    void openPath_folder_opensInTheFileManager();
    void openPath_desktopEntry_launchesTheApplication();
    void openPath_program_isRun();
    void openPath_whatMayBeExecutedByChance_isADocument_data();
    void openPath_whatMayBeExecutedByChance_isADocument();
    void openPath_whatCanNotBeOpened_doesNothing_data();
    void openPath_whatCanNotBeOpened_doesNothing();
    void openAddress_opensInTheSchemesApplication();
    void openAddress_unknownScheme_doesNothing();
    void openWith_folder_opensInTheApplication();
    void openWith_missingApplication_doesNothing();
    void openInTextEditor_choosesAWindow_data();
    void openInTextEditor_choosesAWindow();
    void openInTextEditor_onlyATerminal_opensInIt();
    void anyName_arrivesUnharmed_data();
    void anyName_arrivesUnharmed();
    void application_startsAsIfByTheDesktop_data();
    void application_startsAsIfByTheDesktop();
    void application_outlivesUs_data();
    void application_outlivesUs();
    void application_ends_leavesNoZombie();
    void hungDisk_blocksNothing();
    void hungApplicationOnTheBus_blocksNothing();
    void applicationOnTheBus_isAskedThere();
    void applicationOnTheBus_isGone_nothingIsSaid();
    void busDies_weLiveOn();
    void noBus_noneIsStarted();
};

void GioOpenerTest::openPath_document_opensInItsDefault()
{
    OpenerDesk desk;
    desk.install(u"another"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    desk.install(u"editor"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    desk.setDefaults(u"text/plain=editor"_s);
    const auto notes = desk.makeFile(u"notes.txt"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, notes}));

    QTRY_COMPARE(desk.started(), (Started{{u"editor"_s, notes}}));
}

void GioOpenerTest::openPath_folder_opensInTheFileManager()
{
    OpenerDesk desk;
    desk.install(u"browser"_s, u"%u"_s, u"MimeType=x-scheme-handler/file;"_s);
    desk.install(u"files"_s, u"%u"_s, u"MimeType=inode/directory;"_s);
    const auto folder = desk.makeFolder(u"a folder.desktop"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, folder}));

    QTRY_COMPARE(desk.started(), (Started{{u"files"_s, folder}}));
}

void GioOpenerTest::openPath_desktopEntry_launchesTheApplication()
{
    OpenerDesk desk;
    const auto entry = desk.install(u"player"_s, u"--start %U"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, entry}));

    QTRY_COMPARE(desk.started(), (Started{{u"player"_s, u"--start"_s}}));
}

void GioOpenerTest::openPath_program_isRun()
{
    OpenerDesk desk;
    const auto program = desk.path(u"Some App.AppImage"_s);
    QVERIFY(QFile::copy(QStringLiteral(RECORD_PROGRAM), program));
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, program}));

    QTRY_COMPARE(desk.started(), Started{{}});
}

void GioOpenerTest::openPath_whatMayBeExecutedByChance_isADocument_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");

    QTest::addRow("picture") << u"cat.png"_s << "\x89PNG"_ba;
    QTest::addRow("script") << u"script.txt"_s << "#!/bin/sh\necho no\n"_ba;
    QTest::addRow("almost empty") << u"short.txt"_s << "\x7f"_ba;
}

void GioOpenerTest::openPath_whatMayBeExecutedByChance_isADocument()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    OpenerDesk desk;
    desk.install(u"viewer"_s, u"%f"_s, u"MimeType=text/plain;image/png;"_s);
    const auto path = desk.makeFile(name, bytes);
    QFile::setPermissions(path, QFile::Permissions(0x7777));
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, path}));

    QTRY_COMPARE(desk.started(), (Started{{u"viewer"_s, path}}));
}

void GioOpenerTest::openPath_whatCanNotBeOpened_doesNothing_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("missing file") << u"missing.txt"_s;
    QTest::addRow("missing folder") << u"missing"_s;
    QTest::addRow("missing entry") << u"missing.desktop"_s;
    QTest::addRow("no application for its type") << u"cat.png"_s;
    QTest::addRow("an entry that is none") << u"garbage.desktop"_s;
    QTest::addRow("an entry whose program is missing") << u"gone.desktop"_s;
    QTest::addRow("an entry that is a link") << u"link.desktop"_s;
    QTest::addRow("nothing") << QString();
}

void GioOpenerTest::openPath_whatCanNotBeOpened_doesNothing()
{
    QFETCH(const QString, name);
    OpenerDesk desk;
    desk.install(u"editor"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    const auto notes = desk.makeFile(u"notes.txt"_s);
    desk.makeFile(u"cat.png"_s);
    desk.makeFile(u"garbage.desktop"_s, "[[[[\0\xff"_ba);
    desk.makeFile(u"gone.desktop"_s, "[Desktop Entry]\nType=Application\nName=G\nExec=/not/here\n");
    desk.makeFile(u"link.desktop"_s, "[Desktop Entry]\nType=Link\nName=L\nURL=file:///\n");
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, name.isEmpty() ? name : desk.path(name)}));

    QVERIFY(desk.ask({u"openPath"_s, notes}));
    QTRY_COMPARE(desk.started(), (Started{{u"editor"_s, notes}}));
    QVERIFY(desk.quit());
    QCOMPARE(desk.complaints(), QByteArray());
}

void GioOpenerTest::openAddress_opensInTheSchemesApplication()
{
    OpenerDesk desk;
    desk.install(u"browser"_s, u"%u"_s, u"MimeType=x-scheme-handler/https;"_s);
    const auto address = u"https://example.org/a%20b?c=%C3%A9&d=$(id)'#e"_s;
    desk.start();

    QVERIFY(desk.ask({u"openAddress"_s, address}));

    QTRY_COMPARE(desk.started(), (Started{{u"browser"_s, address}}));
}

void GioOpenerTest::openAddress_unknownScheme_doesNothing()
{
    OpenerDesk desk;
    desk.install(u"browser"_s, u"%u"_s, u"MimeType=x-scheme-handler/https;"_s);
    desk.start();

    QVERIFY(desk.ask({u"openAddress"_s, u"unheard-of://x/y"_s}));

    QVERIFY(desk.ask({u"openAddress"_s, u"https://x.org/"_s}));
    QTRY_COMPARE(desk.started(), (Started{{u"browser"_s, u"https://x.org/"_s}}));
}

void GioOpenerTest::openWith_folder_opensInTheApplication()
{
    OpenerDesk desk;
    desk.install(u"files"_s, u"%f"_s, u"MimeType=inode/directory;"_s);
    const auto editor = desk.install(u"code"_s, u"--new-window %F"_s);
    const auto folder = desk.makeFolder(u"site"_s);
    desk.start();

    QVERIFY(desk.ask({u"openWith"_s, folder, editor}));

    QTRY_COMPARE(desk.started(), (Started{{u"code"_s, u"--new-window"_s, folder}}));
}

void GioOpenerTest::openWith_missingApplication_doesNothing()
{
    OpenerDesk desk;
    const auto editor = desk.install(u"code"_s);
    const auto folder = desk.makeFolder(u"site"_s);
    desk.start();

    QVERIFY(desk.ask({u"openWith"_s, folder, desk.path(u"missing.desktop"_s)}));
    QVERIFY(desk.ask({u"openWith"_s, folder, desk.path(u"missing"_s)}));
    QVERIFY(desk.ask({u"openWith"_s, folder, folder}));

    QVERIFY(desk.ask({u"openWith"_s, folder, editor}));
    QTRY_COMPARE(desk.started(), (Started{{u"code"_s, folder}}));
}

void GioOpenerTest::openInTextEditor_choosesAWindow_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("used");

    QTest::addRow("the default") << u"window"_s << u"window"_s;
    QTest::addRow("the default needs a terminal") << u"terminal"_s << u"window"_s;
}

void GioOpenerTest::openInTextEditor_choosesAWindow()
{
    QFETCH(const QString, chosen);
    QFETCH(const QString, used);
    OpenerDesk desk;
    desk.install(u"terminal"_s, u"%f"_s, u"MimeType=text/plain;\nTerminal=true"_s);
    desk.install(u"tree"_s, u"%f"_s, u"MimeType=application/json;"_s);
    desk.install(u"window"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    desk.setDefaults(u"application/json=tree\ntext/plain=%1"_s.arg(chosen));
    const auto file = desk.makeFile(u"shortcuts.json"_s, "{}");
    desk.start();

    QVERIFY(desk.ask({u"openInTextEditor"_s, file}));

    QTRY_COMPARE(desk.started(), (Started{{used, file}}));
}

void GioOpenerTest::openInTextEditor_onlyATerminal_opensInIt()
{
    OpenerDesk desk;
    desk.install(u"vi"_s, u"%f"_s, u"MimeType=text/plain;\nTerminal=true"_s);
    const auto file = desk.makeFile(u"shortcuts.json"_s, "{}");
    QVERIFY(QFile::link(QStringLiteral(RECORD_PROGRAM), desk.makeFolder(u"bin"_s) + u"/xterm"_s));
    desk.environment.insert(u"PATH"_s, desk.path(u"bin"_s));
    desk.start();

    QVERIFY(desk.ask({u"openInTextEditor"_s, file}));

    QTRY_COMPARE(desk.started(),
                 (Started{{u"-e"_s, QStringLiteral(RECORD_PROGRAM), u"vi"_s, file}}));
}

void GioOpenerTest::anyName_arrivesUnharmed_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("blanks") << u" a  b "_s;
    QTest::addRow("quotes") << u"a \"b\" 'c'"_s;
    QTest::addRow("percent signs") << u"100% %f%U%%20"_s;
    QTest::addRow("line breaks") << u"a\nb\rc\td"_s;
    QTest::addRow("leading dash") << u"--help"_s;
    QTest::addRow("leading dot") << u".hidden"_s;
    QTest::addRow("what a shell reads") << u"$HOME `id` $(id) ;&|<>*?!#~"_s;
    QTest::addRow("backslashes") << u"a\\b\\"_s;
    QTest::addRow("what addresses escape") << u"a#b?c&d=e+f@g:h[i]"_s;
    QTest::addRow("beyond ASCII") << u"été 漢字 🦊 a\u0301"_s;
}

void GioOpenerTest::anyName_arrivesUnharmed()
{
    QFETCH(const QString, name);
    OpenerDesk desk;
    desk.install(u"editor"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    desk.install(u"files"_s, u"-- %u"_s, u"MimeType=inode/directory;"_s);
    const auto code = desk.install(u"code"_s, u"%F"_s);
    const auto folder = desk.makeFolder(name);
    const auto file = desk.makeFile(name + u"/f.txt"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, file}));
    QVERIFY(desk.ask({u"openPath"_s, folder}));
    QVERIFY(desk.ask({u"openWith"_s, folder, code}));
    QVERIFY(desk.ask({u"openWith"_s, folder, QStringLiteral(RECORD_PROGRAM)}));
    QVERIFY(desk.ask({u"openInTextEditor"_s, folder}));

    QTRY_COMPARE(desk.started().size(), 5);
    Started expected{{u"editor"_s, file},
                     {u"files"_s, u"--"_s, folder},
                     {u"code"_s, folder},
                     {folder},
                     {u"editor"_s, folder}};
    std::ranges::sort(expected);
    QCOMPARE(desk.started(), expected);
}

void GioOpenerTest::application_startsAsIfByTheDesktop_data()
{
    QTest::addColumn<bool>("isProgram");

    QTest::addRow("application") << false;
    QTest::addRow("program file") << true;
}

void GioOpenerTest::application_startsAsIfByTheDesktop()
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
    QVERIFY(record.value(u"hasOwnSession"_s).toBool());
    QVERIFY(record.value(u"signalsAreAsExpected"_s).toBool());
}

void GioOpenerTest::application_outlivesUs_data()
{
    QTest::addColumn<bool>("isKilled");

    QTest::addRow("we quit") << false;
    QTest::addRow("we are killed") << true;
}

void GioOpenerTest::application_outlivesUs()
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

void GioOpenerTest::application_ends_leavesNoZombie()
{
    OpenerDesk desk;
    const auto entry = desk.install(u"player"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QVERIFY(desk.ask({u"openPath"_s, QStringLiteral(RECORD_PROGRAM)}));

    QTRY_COMPARE(desk.records().size(), 2);
    QTRY_COMPARE(childrenOf(desk.pid()), 0);
}

void GioOpenerTest::hungDisk_blocksNothing()
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

void GioOpenerTest::hungApplicationOnTheBus_blocksNothing()
{
    OpenerDesk desk;
    desk.startBus();
    const auto name = u"org.quibtest.Viewer"_s;
    const auto hung = desk.install(name, u"%f"_s, u"DBusActivatable=true"_s);
    const auto entry = desk.install(u"player"_s);
    const auto service = desk.startService(name);
    kill(pid_t(service->processId()), SIGSTOP);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, hung}));
    QVERIFY(desk.ask({u"openWith"_s, desk.path({}), hung}));

    QVERIFY(desk.ask({u"openPath"_s, entry}));
    QTRY_COMPARE(desk.started(), (Started{{u"player"_s}}));
    QVERIFY(desk.quit());
    service->kill();
    service->waitForFinished();
}

void GioOpenerTest::applicationOnTheBus_isAskedThere()
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
    QVERIFY(desk.ask({u"openWith"_s, folder, entry}));
    QTRY_VERIFY(service->canReadLine());
    QCOMPARE(service->readLine(),
             "org.freedesktop.Application.Open /org/quibtest/Viewer "_ba
                 + fileAddress(folder).toLatin1() + '\n');

    service->kill();
    service->waitForFinished();
}

void GioOpenerTest::applicationOnTheBus_isGone_nothingIsSaid()
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

void GioOpenerTest::busDies_weLiveOn()
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

void GioOpenerTest::noBus_noneIsStarted()
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

QTEST_GUILESS_MAIN(GioOpenerTest)
#include "tst_gioopener.moc"
