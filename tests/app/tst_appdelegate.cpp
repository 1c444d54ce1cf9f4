#include "support/panel/delegatefortest.h"

#include "model/file/datafile.h"
#include "shortcuts/shortcuts.h"
#include "support/hungfile.h"
#include "support/writefile.h"

#include <QGuiApplication>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The launch and what follows it, among fakes.
class AppDelegateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_quib = std::make_unique<DelegateForTest>(); }
    void cleanup() { m_quib.reset(); }

    void launch_goesInOrder();
    void services_areReachedOnceAfterTheFirstFrame();
    void panelThatDrawsNothing_reachesThemAllTheSame();
    void fileThatDoesNotAnswer_holdsUpNoLaunch();
    void secondStart_opensPinsAndTakesTheKeyboard();
    void screensChanged_movesThePanelAndMeasuresTheNotch();
    void noScreen_keepsTheLastGeometry();
    void visibleShape_followsTheNotch();
    void reducedMotion_reachesTheModel();
    void termination_savesWhatIsUnsaved();

private:
    std::unique_ptr<DelegateForTest> m_quib;
};

void AppDelegateTest::launch_goesInOrder()
{
    m_quib->shell.asked.clear();
    writeFile(m_quib->folder.path() + u"/shortcuts.json"_s,
              R"({"groups": [{"title": "Only here", "buttons": []}]})");
    connect(&quib::Shortcuts::shared(), &quib::Shortcuts::groupsChanged, &m_quib->delegate,
            [this] { m_quib->shell.asked << u"reload shortcuts"_s; });

    m_quib->delegate.applicationDidFinishLaunching(std::make_unique<quib::PanelEngine>());
    m_quib->shell.asked << u"first frame"_s;
    m_quib->delegate.applicationDidShow();

    QCOMPARE(m_quib->shell.asked,
             (QStringList{u"reload shortcuts"_s, u"adopt"_s, u"place at 580,0"_s,
                          u"let clicks through"_s, u"order front"_s, u"first frame"_s,
                          u"install status item"_s}));
}

void AppDelegateTest::services_areReachedOnceAfterTheFirstFrame()
{
    m_quib->delegate.applicationDidFinishLaunching(std::make_unique<quib::PanelEngine>());
    QCOMPARE(m_quib->shell.reached, 0);

    QGuiApplication::allWindows().constFirst()->show();
    QTRY_COMPARE(m_quib->shell.reached, 1);
    m_quib->hands.advance(1min);

    QCOMPARE(m_quib->shell.reached, 1);
    QCOMPARE(m_quib->shell.asked.count(u"install status item"_s), 1);
}

/// As one does that a locker covers, or that no screen shows.
void AppDelegateTest::panelThatDrawsNothing_reachesThemAllTheSame()
{
    m_quib->delegate.applicationDidFinishLaunching(std::make_unique<quib::PanelEngine>());

    m_quib->hands.advance(1s);
    m_quib->delegate.applicationDidShow();

    QCOMPARE(m_quib->shell.reached, 1);
    QCOMPARE(m_quib->shell.asked.count(u"install status item"_s), 1);
}

void AppDelegateTest::fileThatDoesNotAnswer_holdsUpNoLaunch()
{
    m_quib.reset();
    const DataFolderForTest folder;
    folder.put(quib::encodeQuibData({.entries = {{.start = HandClock().now}}}).value());
    HungFile file(folder.file());
    QVERIFY(file.isHung());
    FakeShell shell;
    quib::AppDelegate delegate(std::move(shell.platform));

    delegate.applicationDidFinishLaunching(std::make_unique<quib::PanelEngine>());

    const auto& hoverRect = shell.host.hoverRect;
    const auto width = hoverRect.width();
    QTRY_VERIFY(file.isWaitedFor());
    QCOMPARE(hoverRect.width(), width);
    file.answerAtLast();
    QTRY_VERIFY(hoverRect.width() > width); // The wings of the running timer.
}

void AppDelegateTest::secondStart_opensPinsAndTakesTheKeyboard()
{
    auto& model = m_quib->launched().model();

    Q_EMIT m_quib->shell.instance.activated();

    QVERIFY(model.isExpanded());
    QVERIFY(model.isPinned());
    QCOMPARE(m_quib->shell.asked,
             (QStringList{u"order front"_s, u"take clicks"_s, u"take keyboard"_s}));
}

void AppDelegateTest::screensChanged_movesThePanelAndMeasuresTheNotch()
{
    auto& model = m_quib->launched().model();
    QCOMPARE(model.notchSize(), QSizeF(190, 30));
    QVERIFY(!model.hasNotch());

    m_quib->shell.screens.list = {{.frame = {0, 0, 1512, 982},
                                   .visibleFrame = {0, 37, 1512, 945},
                                   .topInset = 37,
                                   .leftStrip = 662,
                                   .rightStrip = 662}};
    Q_EMIT m_quib->shell.screens.changed();

    QCOMPARE(model.notchSize(), QSizeF(188, 37));
    QVERIFY(model.hasNotch());
    QCOMPARE(m_quib->shell.asked, QStringList{u"place at 376,0"_s});
}

void AppDelegateTest::noScreen_keepsTheLastGeometry()
{
    const auto before = m_quib->delegate.life().collapsedRect();

    m_quib->shell.screens.list.clear();
    m_quib->delegate.life().layout();

    QCOMPARE(m_quib->delegate.life().collapsedRect(), before);
}

void AppDelegateTest::visibleShape_followsTheNotch()
{
    auto& model = m_quib->launched().model();
    QGuiApplication::allWindows().constFirst()->show(); // Frames are drawn from now on.
    QCOMPARE(m_quib->shell.host.shape.boundingRect(), QRectF(280, 0, 200, 30));

    model.setMotionReduced(true);
    model.setExpanded(true);

    QTRY_COMPARE(m_quib->shell.host.shape.boundingRect(), QRectF(30, 0, 700, 290));
}

void AppDelegateTest::reducedMotion_reachesTheModel()
{
    auto& model = m_quib->launched().model();
    QVERIFY(!model.isMotionReduced());

    m_quib->shell.desktop.reduced = true;
    Q_EMIT m_quib->shell.desktop.isMotionReducedChanged();

    QVERIFY(model.isMotionReduced());
}

void AppDelegateTest::termination_savesWhatIsUnsaved()
{
    m_quib->delegate.store().setNotes(u"typed just now"_s);

    m_quib->delegate.applicationWillTerminate();

    QVERIFY(m_quib->folder.bytes().contains("typed just now"));
}

QTEST_MAIN(AppDelegateTest)
#include "tst_appdelegate.moc"
