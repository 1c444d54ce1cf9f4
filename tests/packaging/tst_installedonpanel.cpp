#include "desktop/desk/desk.h"
#include "packaging/installed.h"
#include "support/bytesof.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The installed program on a desktop that finds it where things are installed.
class InstalledOnPanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void desktopsEntry_startsOpensAndPins();
    void picker_isFound();

private:
    static bool activate(const Desk& desk);
    bool choose(const Desk& desk, const QString& action) const;
    static bool succeeds(const Desk& desk, const QStringList& command);

    Installed m_tree;
};

void InstalledOnPanelTest::initTestCase()
{
    QVERIFY2(m_tree.isWhole(), m_tree.problem().constData());
}

/// As desktops call an application whose entry says that the bus starts it.
bool InstalledOnPanelTest::activate(const Desk& desk)
{
    return succeeds(desk,
                    {u"gdbus"_s, u"call"_s, u"--session"_s, u"--dest"_s, u"org.korvel.Quib"_s,
                     u"--object-path"_s, u"/org/korvel/Quib"_s, u"--method"_s,
                     u"org.freedesktop.Application.Activate"_s, u"{}"_s});
}

/// By the words of the installed entry, as desktops do that do not ask the bus.
bool InstalledOnPanelTest::choose(const Desk& desk, const QString& action) const
{
    const auto entry = m_tree.path(u"share/applications/org.korvel.Quib.desktop"_s);
    const auto text = QString::fromUtf8(bytesOf(entry));
    const auto group = text.section(u"[Desktop Action %1]\n"_s.arg(action), 1);
    const auto command = group.section(u"\nExec="_s, 1).section(u'\n', 0, 0);
    return succeeds(desk, QProcess::splitCommand(command));
}

bool InstalledOnPanelTest::succeeds(const Desk& desk, const QStringList& command)
{
    const auto program = desk.start(command.value(0), command.mid(1));
    program->waitForFinished();
    return program->exitStatus() == QProcess::NormalExit && program->exitCode() == 0;
}

void InstalledOnPanelTest::desktopsEntry_startsOpensAndPins()
{
    Desk desk;
    desk.killBus();
    desk.setVariable(u"XDG_DATA_DIRS"_s, m_tree.path(u"share"_s));
    desk.startBus(); // Which gives its environment to what it starts.
    desk.moveTo(Desk::FarAway);

    QVERIFY(activate(desk));
    QVERIFY(desk.waitForExpanded(true));

    QVERIFY(choose(desk, u"Pin"_s));
    QVERIFY(desk.waitForExpanded(false)); // The pointer is far away, and the pin is off.
    QVERIFY(choose(desk, u"Pin"_s));
    QVERIFY(desk.waitForExpanded(true));
    desk.killBus(); // What it started does not end with it, but with the desk's screen.
}

void InstalledOnPanelTest::picker_isFound()
{
    Desk desk;
    const auto quib = desk.start(m_tree.program());
    desk.openWithPointer();
    desk.showTab(2);
    desk.click(places::FirstClient);

    desk.click(places::ChooseFolder);

    QVERIFY(desk.waitForFront(u"Choose Folder"_s));
}

QTEST_GUILESS_MAIN(InstalledOnPanelTest)
#include "tst_installedonpanel.moc"
