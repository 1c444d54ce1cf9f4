#include "app/appdelegate.h"
#include "app/panelengine.h"

#include "support/fakes/fakeshell.h"
#include "support/fakes/handclock.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::AppDelegate;

/// The menu and what it does, among fakes.
class QuibCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void menu_hasItsLines();
    void icon_isThereAtEachSize();
    void openQuib_opensPinsAndTakesTheKeyboard();
    void pressedItem_opensQuib();
    void pin_isCheckedWhenTheMenuOpensNext();
    void pin_expands();
    void unpinning_collapsesWhenThePointerIsOutside();
    void login_isSwitched();
    void login_failing_beepsAndTellsTheTruth();
    void login_changedElsewhere_isCheckedWhenTheMenuOpens();
    void editShortcuts_writesTheFileAndOpensIt();
    void showData_opensTheDataFolder();
    void folderThatIsNoText_isOpenedAsItStands();
    void quit_endsTheEventLoop();

private:
    void choose(const QString& title);
    quib::MenuItem line(const QString& title) const;

    HandClock m_hands;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakeShell> m_shell;
    std::unique_ptr<AppDelegate> m_delegate;
};

void QuibCommandsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("QUIB_DATA_DIR", m_folder->path().toLocal8Bit());
    m_shell = std::make_unique<FakeShell>();
    m_shell->pointer.now.position = {960, 700};
    m_delegate = std::make_unique<AppDelegate>(std::move(m_shell->platform), m_hands.clock(),
                                               m_hands.scheduler());
    m_delegate->applicationDidFinishLaunching(std::make_unique<quib::PanelEngine>());
    m_delegate->applicationDidShow();
    m_shell->asked.clear();
}

void QuibCommandsTest::cleanup()
{
    m_delegate.reset();
    m_shell.reset();
}

/// As the user does: the menu opens, then a line of it is pressed.
void QuibCommandsTest::choose(const QString& title)
{
    auto& item = m_shell->statusItem;
    Q_EMIT item.menuWillOpen();
    for (int row = 0; row < item.menu.size(); ++row) {
        if (item.menu[row].title == title) {
            Q_EMIT item.chosen(row);
            return;
        }
    }
    QFAIL("the menu has no such line");
}

quib::MenuItem QuibCommandsTest::line(const QString& title) const
{
    Q_EMIT m_shell->statusItem.menuWillOpen();
    for (const auto& item : std::as_const(m_shell->statusItem.menu)) {
        if (item.title == title) {
            return item;
        }
    }
    return {};
}

void QuibCommandsTest::menu_hasItsLines()
{
    const QList<quib::MenuItem> wanted{{.title = u"Open Quib"_s},
                                       {.title = u"Keep Open (Pin)"_s, .isCheckable = true},
                                       {},
                                       {.title = u"Launch at Login"_s, .isCheckable = true},
                                       {.title = u"Edit Shortcuts\u2026"_s},
                                       {.title = u"Show Data Folder"_s},
                                       {},
                                       {.title = u"Quit Korvel Quib"_s, .keyEquivalent = u"q"_s}};

    QVERIFY(m_shell->statusItem.menu == wanted);
    QVERIFY(m_delegate->commands().menu()->items() == wanted);
}

void QuibCommandsTest::icon_isThereAtEachSize()
{
    const auto& icon = m_shell->statusItem.icon;

    QCOMPARE(icon.accessibleName, u"Korvel Quib"_s);
    QVERIFY(icon.images.size() >= 3);
    for (const auto& image : icon.images) {
        QVERIFY(!image.isNull());
        QVERIFY(qAlpha(image.pixel(image.rect().center())) > 0);
    }
}

void QuibCommandsTest::openQuib_opensPinsAndTakesTheKeyboard()
{
    choose(u"Open Quib"_s);

    QVERIFY(m_delegate->model().isExpanded());
    QVERIFY(line(u"Keep Open (Pin)"_s).isChecked);
    QVERIFY(m_shell->asked.contains(u"take keyboard"_s));
}

void QuibCommandsTest::pressedItem_opensQuib()
{
    Q_EMIT m_shell->statusItem.pressed();

    QVERIFY(m_delegate->model().isExpanded());
    QVERIFY(m_delegate->model().isPinned());
}

void QuibCommandsTest::pin_isCheckedWhenTheMenuOpensNext()
{
    QVERIFY(!line(u"Keep Open (Pin)"_s).isChecked);

    m_delegate->model().setPinned(true);
    QVERIFY(line(u"Keep Open (Pin)"_s).isChecked);

    m_delegate->model().setPinned(false);
    QVERIFY(!line(u"Keep Open (Pin)"_s).isChecked);
}

void QuibCommandsTest::pin_expands()
{
    choose(u"Keep Open (Pin)"_s);

    QVERIFY(m_delegate->model().isPinned());
    QVERIFY(m_delegate->model().isExpanded());
}

void QuibCommandsTest::unpinning_collapsesWhenThePointerIsOutside()
{
    choose(u"Keep Open (Pin)"_s);

    choose(u"Keep Open (Pin)"_s);
    QVERIFY(m_delegate->model().isExpanded());
    m_delegate->life().checkHover();
    m_hands.advance(60ms);

    QVERIFY(!m_delegate->model().isExpanded());
}

void QuibCommandsTest::login_isSwitched()
{
    choose(u"Launch at Login"_s);
    QVERIFY(m_shell->loginItem.enabled);
    QVERIFY(line(u"Launch at Login"_s).isChecked);

    choose(u"Launch at Login"_s);
    QVERIFY(!m_shell->loginItem.enabled);
    QVERIFY(!line(u"Launch at Login"_s).isChecked);
    QCOMPARE(m_shell->desktop.beeps, 0);
}

void QuibCommandsTest::login_failing_beepsAndTellsTheTruth()
{
    m_shell->loginItem.fails = true;

    choose(u"Launch at Login"_s);

    QCOMPARE(m_shell->desktop.beeps, 1);
    QVERIFY(!line(u"Launch at Login"_s).isChecked);
}

void QuibCommandsTest::login_changedElsewhere_isCheckedWhenTheMenuOpens()
{
    m_shell->loginItem.enabled = true;

    QVERIFY(line(u"Launch at Login"_s).isChecked);
}

void QuibCommandsTest::editShortcuts_writesTheFileAndOpensIt()
{
    const auto file = m_folder->filePath(u"shortcuts.json"_s);
    QVERIFY(QFile::remove(file));

    choose(u"Edit Shortcuts…"_s);

    QVERIFY(QFileInfo::exists(file));
    QCOMPARE(m_shell->opener.asked, QStringList{u"edit "_s + file});
}

void QuibCommandsTest::showData_opensTheDataFolder()
{
    choose(u"Show Data Folder"_s);

    QCOMPARE(m_shell->opener.asked, QStringList{u"open "_s + m_folder->path()});
}

void QuibCommandsTest::folderThatIsNoText_isOpenedAsItStands()
{
    const auto folder = QFile::encodeName(m_folder->path()) + "/caf\xe9";
    qputenv("QUIB_DATA_DIR", folder);

    choose(u"Show Data Folder"_s);
    choose(u"Edit Shortcuts…"_s);

    const auto& opened = m_shell->opener.paths;
    QCOMPARE(opened.size(), 2U);
    QCOMPARE(opened[0].native(), folder.toStdString());
    QCOMPARE(opened[1].native(), (folder + "/shortcuts.json").toStdString());
    QVERIFY(std::filesystem::remove_all(opened[0]) > 1); // Which Qt could not.
}

void QuibCommandsTest::quit_endsTheEventLoop()
{
    QTimer::singleShot(0, this, [this] { choose(u"Quit Korvel Quib"_s); });

    QCOMPARE(QCoreApplication::exec(), 0); // Runs into the time limit where nothing quits.
}

QTEST_MAIN(QuibCommandsTest)
#include "tst_quibcommands.moc"
