#include "desktop/desk/desk.h"
#include "packaging/installed.h"

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
    static int callEntry(const Desk& desk, const QStringList& methodAndArguments);

    Installed m_tree;
};

void InstalledOnPanelTest::initTestCase()
{
    QVERIFY2(m_tree.isWhole(), m_tree.problem().constData());
}

/// As desktops call an application whose entry says that the bus starts it.
int InstalledOnPanelTest::callEntry(const Desk& desk, const QStringList& methodAndArguments)
{
    const auto call
        = desk.start(u"gdbus"_s,
                     QStringList{u"call"_s, u"--session"_s, u"--dest"_s, u"org.korvel.Quib"_s,
                                 u"--object-path"_s, u"/org/korvel/Quib"_s, u"--method"_s}
                         + methodAndArguments);
    call->waitForFinished();
    return call->exitCode();
}

void InstalledOnPanelTest::desktopsEntry_startsOpensAndPins()
{
    Desk desk;
    desk.killBus();
    desk.setVariable(u"XDG_DATA_DIRS"_s, m_tree.path(u"share"_s));
    desk.startBus(); // Which gives its environment to what it starts.
    desk.moveTo(Desk::FarAway);

    QCOMPARE(callEntry(desk, {u"org.freedesktop.Application.Activate"_s, u"{}"_s}), 0);
    QVERIFY(desk.waitForExpanded(true));

    const auto pin
        = QStringList{u"org.freedesktop.Application.ActivateAction"_s, u"Pin"_s, u"[]"_s, u"{}"_s};
    QCOMPARE(callEntry(desk, pin), 0);
    QVERIFY(desk.waitForExpanded(false)); // The pointer is far away, and the pin is off.
    QCOMPARE(callEntry(desk, pin), 0);
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
