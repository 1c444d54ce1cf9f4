#include "app/appdelegate.h"

#include "shortcuts/shortcuts.h"
#include "support/fakeshell.h"
#include "support/handclock.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::AppDelegate;
using quib::NotchModel;
using quib::Tab;

namespace {

QPointF pointOf(QChar place)
{
    if (place == u'n') {
        return {960, 2};
    }
    return {960, place == u'c' ? 200.0 : 700.0};
}

} // namespace

/// The delegate among fakes. A path of the pointer is a text, one letter for each tick of 16 ms:
/// n on the notch, c in the card, o outside both; a capital when the left button is held; an x is
/// a left click where the pointer stands.
class AppDelegateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void checkHover_data();
    void checkHover();
    void keptOpen_neverCollapses_data();
    void keptOpen_neverCollapses();
    void pinTakenAway_collapsesAfterTheUsualDelay();
    void runningTimer_widensTheHitArea();
    void clickElsewhere_collapsesAtTheNextTurn();
    void clickInTheCard_leavesItOpen();
    void pointerBackBeforeTheCollapse_forgetsTheClick();
    void expand_toShelf_selectsTheShelf();
    void expand_cancelsAPendingCollapse();
    void collapse_keepsTheTab();
    void launch_goesInOrder();
    void expansion_takesClicksAndCollapseLetsThemThrough();
    void secondStart_opensPinsAndTakesTheKeyboard();
    void screensChanged_movesThePanelAndMeasuresTheNotch();
    void noScreen_keepsTheLastGeometry();
    void visibleShape_followsTheNotch();
    void reducedMotion_reachesTheModel();
    void termination_savesWhatIsUnsaved();

private:
    void move(const QString& path);
    AppDelegate& launched();

    HandClock m_hands;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakeShell> m_shell;
    std::unique_ptr<AppDelegate> m_delegate;
};

void AppDelegateTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("QUIB_DATA_DIR", m_folder->path().toLocal8Bit());
    m_shell = std::make_unique<FakeShell>();
    m_delegate = std::make_unique<AppDelegate>(std::move(m_shell->platform), m_hands.clock(),
                                               m_hands.scheduler());
    m_delegate->layout();
}

void AppDelegateTest::cleanup()
{
    m_delegate.reset();
    m_shell.reset();
}

void AppDelegateTest::move(const QString& path)
{
    for (const auto letter : path) {
        if (letter == u'x') {
            Q_EMIT m_shell->pointer.clicked(4711);
            continue;
        }
        m_hands.advance(16ms);
        m_shell->pointer.now
            = {.position = pointOf(letter.toLower()), .leftHeld = letter.isUpper()};
        m_delegate->checkHover();
    }
}

AppDelegate& AppDelegateTest::launched()
{
    m_delegate->applicationDidFinishLaunching();
    m_shell->asked.clear();
    return *m_delegate;
}

void AppDelegateTest::checkHover_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("expanded");
    QTest::addColumn<Tab>("tab");

    QTest::addRow("stays away") << u"ocoo"_s << false << Tab::Home;
    QTest::addRow("holds the button elsewhere") << u"OCOO"_s << false << Tab::Home;
    QTest::addRow("reaches the notch") << u"on"_s << true << Tab::Home;
    QTest::addRow("carries a file to the notch") << u"ON"_s << true << Tab::Shelf;
    QTest::addRow("stays in the card") << u"nccccccccc"_s << true << Tab::Home;
    QTest::addRow("48 ms outside are too few") << u"noooo"_s << true << Tab::Home;
    QTest::addRow("the 0.06 s runs from the first tick outside")
        << u"nooooo"_s << false << Tab::Home;
    QTest::addRow("returns in time") << u"nooocoooo"_s << true << Tab::Home;
    QTest::addRow("holds the button outside") << u"nOOOOOOOO"_s << true << Tab::Home;
    QTest::addRow("lets the button go outside") << u"nOOOOooooo"_s << false << Tab::Home;
    QTest::addRow("collapses after the button is let go, not before")
        << u"nOOOOoooo"_s << true << Tab::Home;
    QTest::addRow("comes back to the same tab") << u"NOooooon"_s << true << Tab::Shelf;
}

void AppDelegateTest::checkHover()
{
    QFETCH(QString, path);

    move(path);

    QTEST(m_delegate->model().isExpanded(), "expanded");
    QTEST(m_delegate->model().tab(), "tab");
}

void AppDelegateTest::keptOpen_neverCollapses_data()
{
    QTest::addColumn<bool>("pinned");
    QTest::addColumn<QString>("path");

    QTest::addRow("pinned, pointer away") << true << u"noooooooooo"_s;
    QTest::addRow("pinned, click elsewhere") << true << u"nooxoooooooo"_s;
    QTest::addRow("held by a dialog, pointer away") << false << u"noooooooooo"_s;
    QTest::addRow("held by a dialog, click elsewhere") << false << u"nooxoooooooo"_s;
}

void AppDelegateTest::keptOpen_neverCollapses()
{
    QFETCH(bool, pinned);
    QFETCH(QString, path);
    auto& model = launched().model();
    model.setPinned(pinned);
    model.holdOpen = pinned ? 0 : 1;

    move(path);

    QVERIFY(model.isExpanded());
}

void AppDelegateTest::pinTakenAway_collapsesAfterTheUsualDelay()
{
    m_delegate->openQuib();
    move(u"ooooo"_s);
    QVERIFY(m_delegate->model().isExpanded());

    m_delegate->model().setPinned(false);
    move(u"oooo"_s);
    QVERIFY(m_delegate->model().isExpanded());
    move(u"o"_s);

    QVERIFY(!m_delegate->model().isExpanded());
}

void AppDelegateTest::runningTimer_widensTheHitArea()
{
    QCOMPARE(m_delegate->collapsedRect(), QRectF(960 - 110, -10, 220, 46));

    m_delegate->store().startTimer({}, QString());

    QCOMPARE(m_delegate->collapsedRect(), QRectF(960 - 202, -10, 404, 46));
}

void AppDelegateTest::clickElsewhere_collapsesAtTheNextTurn()
{
    auto& model = launched().model();
    move(u"no"_s);
    m_shell->asked.clear();

    move(u"x"_s);
    QVERIFY(model.isExpanded());
    m_hands.advance(0ms);

    QVERIFY(!model.isExpanded());
    QCOMPARE(m_shell->asked, (QStringList{u"let clicks through"_s, u"give back keyboard 4711"_s}));
}

void AppDelegateTest::clickInTheCard_leavesItOpen()
{
    auto& model = launched().model();

    move(u"ncx"_s);
    m_hands.advance(0ms);

    QVERIFY(model.isExpanded());
}

void AppDelegateTest::pointerBackBeforeTheCollapse_forgetsTheClick()
{
    launched();
    m_shell->asked.clear();

    move(u"nox"_s);
    m_shell->pointer.now.position = pointOf(u'c');
    m_delegate->checkHover();
    move(u"ooooo"_s);

    QCOMPARE(m_shell->asked.last(), u"give back keyboard 0"_s);
}

void AppDelegateTest::expand_toShelf_selectsTheShelf()
{
    m_delegate->expand(true);

    QVERIFY(m_delegate->model().isExpanded());
    QCOMPARE(m_delegate->model().tab(), Tab::Shelf);
}

void AppDelegateTest::expand_cancelsAPendingCollapse()
{
    move(u"no"_s);

    m_delegate->expand(false);
    m_hands.advance(1s);

    QVERIFY(m_delegate->model().isExpanded());
}

void AppDelegateTest::collapse_keepsTheTab()
{
    m_delegate->expand(false);
    m_delegate->model().setTab(Tab::Notes);

    m_delegate->collapse(true);
    m_hands.advance(0ms);

    QVERIFY(!m_delegate->model().isExpanded());
    QCOMPARE(m_delegate->model().tab(), Tab::Notes);
}

void AppDelegateTest::launch_goesInOrder()
{
    m_shell->asked.clear();
    QFile shortcuts(m_folder->filePath(u"shortcuts.json"_s));
    QVERIFY(shortcuts.open(QIODevice::WriteOnly));
    shortcuts.write(R"({"groups": [{"title": "Only here", "buttons": []}]})");
    shortcuts.close();
    connect(&quib::Shortcuts::shared(), &quib::Shortcuts::groupsChanged, m_delegate.get(),
            [this] { m_shell->asked << u"reload shortcuts"_s; });

    m_delegate->applicationDidFinishLaunching();

    QCOMPARE(m_shell->asked,
             (QStringList{u"reload shortcuts"_s, u"adopt"_s, u"place at 580,0"_s,
                          u"let clicks through"_s, u"order front"_s, u"install status item"_s}));
}

void AppDelegateTest::expansion_takesClicksAndCollapseLetsThemThrough()
{
    launched();

    move(u"nooooo"_s);

    QCOMPARE(m_shell->asked,
             (QStringList{u"order front"_s, u"take clicks"_s, u"let clicks through"_s,
                          u"give back keyboard 0"_s}));
}

void AppDelegateTest::secondStart_opensPinsAndTakesTheKeyboard()
{
    auto& model = launched().model();

    Q_EMIT m_shell->instance.activated();

    QVERIFY(model.isExpanded());
    QVERIFY(model.isPinned());
    QCOMPARE(m_shell->asked, (QStringList{u"order front"_s, u"take clicks"_s, u"take keyboard"_s}));
}

void AppDelegateTest::screensChanged_movesThePanelAndMeasuresTheNotch()
{
    auto& model = launched().model();
    QCOMPARE(model.notchSize(), QSizeF(190, 30));
    QVERIFY(!model.hasNotch());

    m_shell->screens.list = {{.frame = {0, 0, 1512, 982},
                              .visibleFrame = {0, 37, 1512, 945},
                              .topInset = 37,
                              .leftStrip = 662,
                              .rightStrip = 662}};
    Q_EMIT m_shell->screens.changed();

    QCOMPARE(model.notchSize(), QSizeF(188, 37));
    QVERIFY(model.hasNotch());
    QCOMPARE(m_shell->asked, QStringList{u"place at 376,0"_s});
}

void AppDelegateTest::noScreen_keepsTheLastGeometry()
{
    const auto before = m_delegate->collapsedRect();

    m_shell->screens.list.clear();
    m_delegate->layout();

    QCOMPARE(m_delegate->collapsedRect(), before);
}

void AppDelegateTest::visibleShape_followsTheNotch()
{
    auto& model = launched().model();
    QCOMPARE(m_shell->host.shape.boundingRect(), QRectF(280, 0, 200, 30));

    model.setMotionReduced(true);
    model.setExpanded(true);

    QCOMPARE(m_shell->host.shape.boundingRect(), QRectF(30, 0, 700, 290));
}

void AppDelegateTest::reducedMotion_reachesTheModel()
{
    auto& model = launched().model();
    QVERIFY(!model.isMotionReduced());

    m_shell->desktop.reduced = true;
    Q_EMIT m_shell->desktop.isMotionReducedChanged();

    QVERIFY(model.isMotionReduced());
}

void AppDelegateTest::termination_savesWhatIsUnsaved()
{
    m_delegate->store().setNotes(u"typed just now"_s);

    m_delegate->applicationWillTerminate();

    QFile file(m_folder->filePath(u"data.json"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("typed just now"));
}

QTEST_MAIN(AppDelegateTest)
#include "tst_appdelegate.moc"
