#include "desktop/desk/desk.h"
#include "desktop/desk/places.h"
#include "desktop/desk/recorder.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Where a line of the menu is, once it has been opened at MenuCorner.
constexpr QPoint MenuCorner = places::MenuCorner;
constexpr int PinLine = 82;
constexpr int LoginLine = 115;
constexpr int ShortcutsLine = 139;
constexpr int DataLine = 163;
constexpr int QuitLine = 196;

constexpr QPoint FirstClient = places::FirstClient;
constexpr QPoint SecondClient{540, 129};
constexpr QPoint ChooseFolder = places::ChooseFolder;
constexpr QColor Popup{30, 27, 38};

} // namespace

/// What the menu does, and what is done with windows of other programs. No status bar is there, so
/// the menu opens on the top bar.
class CommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quitFromTheMenu_savesEverything();
    void quitKey_quitsWhileThePanelHasTheKeyboard();
    void quitKey_quitsWhileTheMenuIsOpen();
    void editShortcuts_opensTheFileInTheTextEditor();
    void showDataFolder_opensItInTheFileManager();
    void launchAtLogin_writesAnEntryAndTakesItAway();
    void pinFromTheMenu_keepsThePanelOpen();
    void folderChosen_isKeptWhenASecondChoiceIsCancelled();

private:
    static void chooseInMenu(const Desk& desk, int line);
};

void CommandsTest::chooseInMenu(const Desk& desk, int line)
{
    desk.rightClick(MenuCorner);
    QTRY_COMPARE(desk.pixel({MenuCorner.x() + 180, line}), Popup);
    desk.click({MenuCorner.x() + 100, line});
}

void CommandsTest::quitFromTheMenu_savesEverything()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.addTask(u"Last thing"_s);

    chooseInMenu(desk, QuitLine);

    QVERIFY(quib->waitForFinished());
    QCOMPARE(quib->exitStatus(), QProcess::NormalExit);
    QCOMPARE(quib->exitCode(), 0);
    QCOMPARE(desk.savedTasks().value(0), u"Last thing"_s);
}

void CommandsTest::quitKey_quitsWhileThePanelHasTheKeyboard()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.addTask(u"Last thing"_s);

    desk.key(u"ctrl+q"_s);

    QVERIFY(quib->waitForFinished());
    QCOMPARE(quib->exitCode(), 0);
    QCOMPARE(desk.savedTasks().value(0), u"Last thing"_s);
}

void CommandsTest::quitKey_quitsWhileTheMenuIsOpen()
{
    Desk desk;
    const auto listener = desk.startListener(); // Has the keyboard, until the menu opens.
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.rightClick(MenuCorner);
    QTRY_COMPARE(desk.pixel({MenuCorner.x() + 180, QuitLine}), Popup);

    desk.key(u"ctrl+q"_s);

    QVERIFY(quib->waitForFinished());
    QCOMPARE(quib->exitCode(), 0);
}

void CommandsTest::editShortcuts_opensTheFileInTheTextEditor()
{
    Desk desk;
    const Recorder editor(desk, {u"text/plain"_s});
    const auto quib = desk.startQuib();
    const auto file = desk.dataFolder() + u"/shortcuts.json"_s;
    QVERIFY(QFile::remove(file)); // It is written again, to be there to edit.
    desk.openWithPointer();

    chooseInMenu(desk, ShortcutsLine);

    QTRY_COMPARE(editor.opened(), QStringList{file});
    QVERIFY(QFile::exists(file));
}

void CommandsTest::showDataFolder_opensItInTheFileManager()
{
    Desk desk;
    const Recorder fileManager(desk, {u"inode/directory"_s});
    const auto quib = desk.startQuib();
    desk.openWithPointer();

    chooseInMenu(desk, DataLine);

    QTRY_COMPARE(fileManager.opened(), QStringList{desk.dataFolder()});
}

void CommandsTest::launchAtLogin_writesAnEntryAndTakesItAway()
{
    Desk desk;
    const auto entry = desk.folder(u".config/autostart/org.korvel.Quib.desktop"_s);
    const auto quib = desk.startQuib();
    desk.openWithPointer();

    chooseInMenu(desk, LoginLine);
    QTRY_VERIFY(QFile::exists(entry));

    chooseInMenu(desk, LoginLine);
    QTRY_VERIFY(!QFile::exists(entry));
}

void CommandsTest::pinFromTheMenu_keepsThePanelOpen()
{
    Desk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();

    chooseInMenu(desk, PinLine);
    QTRY_VERIFY(desk.pixel(Desk::Pin).blue() > 150); // Lit.
    desk.moveTo(Desk::FarAway);
    desk.click(Desk::FarAway);
    QVERIFY(desk.isExpanded());

    chooseInMenu(desk, PinLine);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
}

void CommandsTest::folderChosen_isKeptWhenASecondChoiceIsCancelled()
{
    Desk desk;
    QVERIFY(QDir().mkpath(desk.folder(u"work/shop"_s)));
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(2);
    desk.click(FirstClient);
    QTRY_VERIFY(desk.pixel({710, 174}).blue() > 150); // "Track time"
    const auto folderOfTheFirst
        = [&] { return desk.data()["clients"_L1][0]["folderPath"_L1].toString(); };

    desk.click(ChooseFolder);
    QVERIFY(desk.waitForFront(u"Choose Folder"_s));
    desk.moveTo(Desk::FarAway);
    desk.type(desk.folder(u"work/shop"_s)); // Takes longer than a collapse would.
    QVERIFY(desk.isExpanded());
    desk.key(u"Return"_s);
    QTRY_COMPARE(folderOfTheFirst(), desk.folder(u"work/shop"_s));
    QVERIFY(desk.waitForExpanded(false)); // Nothing holds it open any more.

    desk.openWithPointer();
    desk.click(SecondClient);
    desk.click(ChooseFolder);
    QVERIFY(desk.waitForFront(u"Choose Folder"_s));
    desk.key(u"Escape"_s);
    QTRY_VERIFY(!desk.titleInFront().startsWith(u"Choose"_s));
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    QCOMPARE(folderOfTheFirst(), desk.folder(u"work/shop"_s));
    QCOMPARE(desk.data()["clients"_L1][1]["folderPath"_L1].toString(), QString());
}

QTEST_GUILESS_MAIN(CommandsTest)
#include "tst_commands.moc"
