#include "platform/linux/pickerprogram.h"
#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/runningprogram.h"
#include "platform/linux/x11/xcbpanelhost.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <vector>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

constexpr QRect Card(450, 0, 700, 290);

QString answerOf(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// The window in front; none while it has another title.
xcb_window_t windowNamed(const QString& title)
{
    const auto id = answerOf(u"xdotool"_s, {u"getactivewindow"_s});
    const auto name = answerOf(u"xdotool"_s, {u"getwindowname"_s, id});
    return name.startsWith(title) ? xcb_window_t(id.toUInt()) : xcb_window_t(XCB_NONE);
}

void type(const QString& text)
{
    xdotool({u"type"_s, u"--delay"_s, u"5"_s, text});
}

void key(const QString& name)
{
    xdotool({u"key"_s, name});
}

/// True when all of the upper window can be seen: it is stacked above the lower one.
bool isAbove(xcb_window_t upper, xcb_window_t lower)
{
    auto* connection = qtConnection();
    const XcbOwned<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
        connection, xcb_query_tree(connection, rootWindow(connection)), nullptr));
    const auto* children = xcb_query_tree_children(tree.get());
    const std::vector<xcb_window_t> stack(children,
                                          children + xcb_query_tree_children_length(tree.get()));
    return std::ranges::find(stack, upper) > std::ranges::find(stack, lower);
}

} // namespace

/// The real program in a real window manager, with the panel open above it.
class PickerProgramTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void folder_startsInTheGivenPlace();
    void folder_cancelled_givesNothing_data();
    void folder_cancelled_givesNothing();
    void folder_startingInAGonePlace_startsAboveIt();
    void application_isFoundByTyping();
    void application_arrowsMoveInTheList();
    void applications_areTheVisibleOnes();
    void window_isWhollyVisible_data();
    void window_isWhollyVisible();
    void window_draggedOverThePanel_staysAbove();
    void secondChoice_endsTheFirst();
    void choicesInARow_onlyTheLastStays();
    void destroyedWhileOpen_answersNothingAndEndsTheProgram();
    void parentEnds_endsTheProgram();
    void killedProgram_endsTheChoice();
    void closedWindow_endsTheChoice();
    void missingProgram_endsTheChoice();
    void oddName_arrivesUnharmed();

private:
    void chooseFolder(const QString& start);
    void chooseApplication();
    FilePicker::Answer note();
    QStringList chosen() const;
    qint64 processOfWindow() const;
    void addEntry(const QString& id, const QString& name, const QByteArray& more = {});
    QString folder(const QString& name) const { return m_home->filePath(name); }

    std::unique_ptr<RunningProgram> m_manager;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<QWindow> m_panel;
    std::unique_ptr<XcbPanelHost> m_host;
    std::unique_ptr<PickerProgram> m_picker;
    QList<std::optional<QUrl>> m_answers;
    xcb_window_t m_window = XCB_NONE; ///< Of the choice that is open.
};

void PickerProgramTest::initTestCase()
{
    m_manager = std::make_unique<RunningProgram>(QStringList{u"openbox"_s});
    QTRY_VERIFY(hasWindowManager());
}

void PickerProgramTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", QFile::encodeName(m_home->path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder(u"config"_s)));
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder(u"data"_s)));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(folder(u"system"_s)));
    QVERIFY(QDir(m_home->path()).mkpath(u"data/applications"_s));
    m_panel = std::make_unique<QWindow>();
    m_host = std::make_unique<XcbPanelHost>();
    m_host->adopt(*m_panel);
    m_host->setInputRegion(QRect(30, 0, Card.width(), Card.height()));
    m_host->place({Card.x() - 30.0, 0, 760, 340});
    m_host->orderFront();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
    m_picker = std::make_unique<PickerProgram>(*m_host, QStringLiteral(PICKER_PROGRAM));
    m_answers.clear();
}

void PickerProgramTest::cleanup()
{
    m_picker.reset();
    m_host.reset();
    m_panel.reset();
    QTRY_VERIFY(windowNamed(u"Choose"_s) == XCB_NONE);
}

FilePicker::Answer PickerProgramTest::note()
{
    return [this](const std::optional<QUrl>& answer) { m_answers << answer; };
}

/// The paths that were answered; an empty one where nothing was chosen.
QStringList PickerProgramTest::chosen() const
{
    QStringList paths;
    for (const auto& answer : m_answers) {
        paths << answer.value_or(QUrl()).toLocalFile();
    }
    return paths;
}

void PickerProgramTest::chooseFolder(const QString& start)
{
    m_picker->chooseFolder(QUrl::fromLocalFile(start), note());
    QTRY_VERIFY((m_window = windowNamed(u"Choose Folder"_s)) != XCB_NONE);
    QTRY_COMPARE(keyboardOwner(), m_window);
}

void PickerProgramTest::chooseApplication()
{
    m_picker->chooseApplication(note());
    QTRY_VERIFY((m_window = windowNamed(u"Choose Application"_s)) != XCB_NONE);
    QTRY_COMPARE(keyboardOwner(), m_window);
}

qint64 PickerProgramTest::processOfWindow() const
{
    return answerOf(u"xdotool"_s, {u"getwindowpid"_s, QString::number(m_window)}).toLongLong();
}

void PickerProgramTest::addEntry(const QString& id, const QString& name, const QByteArray& more)
{
    QFile entry(folder(u"data/applications/"_s + id));
    QVERIFY(entry.open(QIODevice::WriteOnly));
    entry.write("[Desktop Entry]\nType=Application\nExec=true\nName=" + name.toUtf8() + "\n"
                + more);
}

void PickerProgramTest::folder_startsInTheGivenPlace()
{
    const auto start = folder(u"clients/Müller & Söhne"_s);
    QVERIFY(QDir().mkpath(start + u"/site"_s));

    chooseFolder(start);
    type(u"site"_s);
    key(u"Return"_s);

    QTRY_COMPARE(chosen(), QStringList{start + u"/site"_s});
}

void PickerProgramTest::folder_cancelled_givesNothing_data()
{
    QTest::addColumn<QString>("way");

    QTest::addRow("Escape") << u"Escape"_s;
    QTest::addRow("the window manager's key") << u"alt+F4"_s;
}

void PickerProgramTest::folder_cancelled_givesNothing()
{
    QFETCH(QString, way);
    chooseFolder(m_home->path());

    key(way);

    QTRY_COMPARE(chosen(), QStringList{QString()});
}

void PickerProgramTest::folder_startingInAGonePlace_startsAboveIt()
{
    QVERIFY(QDir().mkpath(folder(u"clients/site"_s)));

    chooseFolder(folder(u"clients/gone/deeper"_s));
    type(u"site"_s);
    key(u"Return"_s);

    QTRY_COMPARE(chosen(), QStringList{folder(u"clients/site"_s)});
}

void PickerProgramTest::application_isFoundByTyping()
{
    addEntry(u"a.desktop"_s, u"Alpha"_s);
    addEntry(u"b.desktop"_s, u"Beta Writer"_s);

    chooseApplication();
    type(u"writ"_s);
    key(u"Return"_s);

    QTRY_COMPARE(chosen(), QStringList{folder(u"data/applications/b.desktop"_s)});
}

void PickerProgramTest::application_arrowsMoveInTheList()
{
    addEntry(u"a.desktop"_s, u"Alpha"_s);
    addEntry(u"b.desktop"_s, u"Beta"_s);

    chooseApplication();
    key(u"Down"_s);
    key(u"Return"_s);

    QTRY_COMPARE(chosen(), QStringList{folder(u"data/applications/b.desktop"_s)});
}

void PickerProgramTest::applications_areTheVisibleOnes()
{
    addEntry(u"a.desktop"_s, u"Alpha"_s, "NoDisplay=true\n");
    addEntry(u"b.desktop"_s, u"Beta"_s);

    chooseApplication();
    key(u"Return"_s);

    QTRY_COMPARE(chosen(), QStringList{folder(u"data/applications/b.desktop"_s)});
}

void PickerProgramTest::window_isWhollyVisible_data()
{
    QTest::addColumn<bool>("forFolders");

    QTest::addRow("folder") << true;
    QTest::addRow("application") << false;
}

void PickerProgramTest::window_isWhollyVisible()
{
    QFETCH(bool, forFolders);

    forFolders ? chooseFolder(m_home->path()) : chooseApplication();

    const auto frame = nativeFrame(topLevelOf(m_window));
    QVERIFY(!frame.intersects(Card));
    QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(frame));
}

void PickerProgramTest::window_draggedOverThePanel_staysAbove()
{
    chooseFolder(m_home->path());

    xdotool({u"windowmove"_s, u"--sync"_s, QString::number(m_window), u"500"_s, u"50"_s});

    QVERIFY(nativeFrame(topLevelOf(m_window)).intersects(Card));
    QTRY_VERIFY(isAbove(topLevelOf(m_window), xcb_window_t(m_panel->winId())));

    key(u"Escape"_s);
    QTRY_COMPARE(m_answers.size(), 1);
}

void PickerProgramTest::secondChoice_endsTheFirst()
{
    chooseFolder(m_home->path());

    chooseApplication();

    QTRY_COMPARE(chosen(), QStringList{QString()});
    key(u"Escape"_s);
    QTRY_COMPARE(chosen(), (QStringList{QString(), QString()}));
}

void PickerProgramTest::choicesInARow_onlyTheLastStays()
{
    m_picker->chooseApplication(note()); // Before their windows are there.
    m_picker->chooseFolder(std::nullopt, note());
    chooseFolder(m_home->path());

    QTRY_COMPARE(chosen(), (QStringList{QString(), QString()}));
    key(u"Escape"_s);
    QTRY_COMPARE(chosen(), (QStringList{QString(), QString(), QString()}));
    QTRY_VERIFY(windowNamed(u"Choose"_s) == XCB_NONE);
}

void PickerProgramTest::destroyedWhileOpen_answersNothingAndEndsTheProgram()
{
    chooseFolder(m_home->path());
    const auto program = pid_t(processOfWindow());
    QVERIFY(program > 0);

    m_picker.reset();

    QVERIFY(kill(program, 0) != 0);
    QTRY_VERIFY(windowNamed(u"Choose"_s) == XCB_NONE);
    QCOMPARE(m_answers.size(), 0);
}

void PickerProgramTest::parentEnds_endsTheProgram()
{
    QProcess program;
    program.start(QStringLiteral(PICKER_PROGRAM), {u"--folder"_s, m_home->path()});
    QTRY_VERIFY(windowNamed(u"Choose Folder"_s) != XCB_NONE);

    program.closeWriteChannel(); // As the system does when a parent ends.

    QTRY_COMPARE(program.state(), QProcess::NotRunning);
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QVERIFY(!program.readAllStandardOutput().contains("chosen"));
}

void PickerProgramTest::killedProgram_endsTheChoice()
{
    chooseFolder(m_home->path());

    kill(pid_t(processOfWindow()), SIGKILL);

    QTRY_COMPARE(chosen(), QStringList{QString()});
}

void PickerProgramTest::closedWindow_endsTheChoice()
{
    chooseFolder(m_home->path());

    xdotool({u"windowkill"_s, QString::number(m_window)}); // Cuts its connection to the server.

    QTRY_COMPARE(chosen(), QStringList{QString()});
}

void PickerProgramTest::missingProgram_endsTheChoice()
{
    PickerProgram missing(*m_host, u"/nowhere/quib-picker"_s);

    missing.chooseApplication(note());
    QVERIFY(m_answers.isEmpty()); // Later, never from within the call.

    QTRY_COMPARE(chosen(), QStringList{QString()});
}

void PickerProgramTest::oddName_arrivesUnharmed()
{
    const auto odd = folder(u"100% \"sure\"; $HOME\n#x?"_s);
    QVERIFY(QDir().mkpath(odd));

    chooseFolder(odd);
    key(u"Return"_s);

    QTRY_COMPARE(chosen(), QStringList{odd});
}

QTEST_MAIN(PickerProgramTest)
#include "tst_pickerprogram.moc"
