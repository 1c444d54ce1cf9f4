#include "support/delegatefortest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
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

/// The panel opens and closes as the pointer goes, among fakes. A path of the pointer is a text,
/// one letter for each tick of 16 ms: n on the notch, c in the card, o outside both; a capital when
/// the left button is held; an x is a left click where the pointer stands. All of it happens three
/// times: looked at by hand, polled alone, and polled by a desktop that tells when the rest ends.
class AppDelegateHoverTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup() { m_quib.reset(); }

    void checkHover_data();
    void checkHover();
    void keptOpen_neverCollapses_data();
    void keptOpen_neverCollapses();
    void pinTakenAway_collapsesAfterTheUsualDelay();
    void runningTimer_widensTheHitArea();
    void restingPointer_isLookedAtWhenTheNotchComesToIt_data();
    void restingPointer_isLookedAtWhenTheNotchComesToIt();
    void clickElsewhere_collapsesAtTheNextTurn();
    void clickElsewhere_whilePinned_isToldToTheViews();
    void clickInTheCard_leavesItOpen();
    void pointerBackBeforeTheCollapse_forgetsTheClick();
    void dismiss_collapsesAndGivesTheKeyboardBack();
    void dismiss_whatIsKeptOpen_doesNothing_data();
    void dismiss_whatIsKeptOpen_doesNothing();
    void dismiss_underTheRestingPointer_opensAgain();
    void expand_cancelsAPendingCollapse();
    void expansion_takesClicksAndCollapseLetsThemThrough();

private:
    void move(const QString& path);

    std::unique_ptr<DelegateForTest> m_quib;
};

void AppDelegateHoverTest::initTestCase_data()
{
    QTest::addColumn<bool>("polled");
    QTest::addColumn<bool>("announces");

    QTest::addRow("by hand") << false << false;
    QTest::addRow("polled") << true << false;
    QTest::addRow("polled and woken") << true << true;
}

void AppDelegateHoverTest::init()
{
    QFETCH_GLOBAL(const bool, polled);
    QFETCH_GLOBAL(const bool, announces);
    m_quib = std::make_unique<DelegateForTest>();
    m_quib->shell.pointer.polled = polled;
    m_quib->shell.pointer.announces = announces;
    m_quib->shell.pointer.now.position = pointOf(u'o');
    if (polled) {
        m_quib->launched();
        m_quib->hands.advance(3s);
        QCOMPARE(m_quib->shell.pointer.announced, announces);
    }
}

void AppDelegateHoverTest::move(const QString& path)
{
    QFETCH_GLOBAL(const bool, polled);
    auto& pointer = m_quib->shell.pointer;
    for (const auto letter : path) {
        if (letter == u'x') {
            Q_EMIT pointer.clicked(4711);
            continue;
        }
        const quib::PointerState next{.position = pointOf(letter.toLower()),
                                      .leftHeld = letter.isUpper()};
        if (polled) {
            pointer.become(next);
            m_quib->hands.advance(16ms);
            continue;
        }
        m_quib->hands.advance(16ms);
        pointer.now = next;
        m_quib->delegate.checkHover();
    }
}

void AppDelegateHoverTest::checkHover_data()
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

void AppDelegateHoverTest::checkHover()
{
    QFETCH(QString, path);

    move(path);

    QTEST(m_quib->delegate.model().isExpanded(), "expanded");
    QTEST(m_quib->delegate.model().tab(), "tab");
}

void AppDelegateHoverTest::keptOpen_neverCollapses_data()
{
    QTest::addColumn<bool>("pinned");
    QTest::addColumn<QString>("path");

    QTest::addRow("pinned, pointer away") << true << u"noooooooooo"_s;
    QTest::addRow("pinned, click elsewhere") << true << u"nooxoooooooo"_s;
    QTest::addRow("held by a dialog, pointer away") << false << u"noooooooooo"_s;
    QTest::addRow("held by a dialog, click elsewhere") << false << u"nooxoooooooo"_s;
}

void AppDelegateHoverTest::keptOpen_neverCollapses()
{
    QFETCH(bool, pinned);
    QFETCH(QString, path);
    auto& model = m_quib->launched().model();
    model.setPinned(pinned);
    model.holdOpen = pinned ? 0 : 1;

    move(path);

    QVERIFY(model.isExpanded());
}

void AppDelegateHoverTest::pinTakenAway_collapsesAfterTheUsualDelay()
{
    m_quib->delegate.openQuib();
    move(u"ooooo"_s);
    QVERIFY(m_quib->delegate.model().isExpanded());

    m_quib->delegate.model().setPinned(false);
    move(u"oooo"_s);
    QVERIFY(m_quib->delegate.model().isExpanded());
    move(u"o"_s);

    QVERIFY(!m_quib->delegate.model().isExpanded());
}

void AppDelegateHoverTest::runningTimer_widensTheHitArea()
{
    QCOMPARE(m_quib->delegate.collapsedRect(), QRectF(960 - 110, -10, 220, 46));

    m_quib->delegate.store().startTimer({}, QString());

    QCOMPARE(m_quib->delegate.collapsedRect(), QRectF(960 - 202, -10, 404, 46));
}

void AppDelegateHoverTest::restingPointer_isLookedAtWhenTheNotchComesToIt_data()
{
    using Change = std::function<void(DelegateForTest&)>;
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<Change>("change");

    QTest::addRow("a timer widens it")
        << QPointF(800, 2) << false
        << Change([](auto& quib) { quib.delegate.store().startTimer({}, {}); });
    QTest::addRow("the screen is another") << QPointF(640, 2) << false << Change([](auto& quib) {
        quib.shell.screens.list.front().frame.setWidth(1280);
        Q_EMIT quib.shell.screens.changed();
    });
    QTest::addRow("the session is unlocked")
        << QPointF(960, 2) << true
        << Change([](auto& quib) { quib.shell.sessionLock.setLocked(false); });
}

void AppDelegateHoverTest::restingPointer_isLookedAtWhenTheNotchComesToIt()
{
    QFETCH(const QPointF, pointer);
    QFETCH(const bool, locked);
    QFETCH(const std::function<void(DelegateForTest&)>, change);
    auto& model = m_quib->launched().model();
    m_quib->shell.sessionLock.setLocked(locked);
    m_quib->shell.pointer.move(pointer);
    m_quib->hands.advance(3s);
    QVERIFY(!model.isExpanded());

    change(*m_quib);

    QTRY_VERIFY(model.isExpanded());
}

void AppDelegateHoverTest::clickElsewhere_collapsesAtTheNextTurn()
{
    auto& model = m_quib->launched().model();
    move(u"no"_s);
    m_quib->shell.asked.clear();

    move(u"x"_s);
    QVERIFY(model.isExpanded());
    m_quib->hands.advance(0ms);

    QVERIFY(!model.isExpanded());
    QCOMPARE(m_quib->shell.asked,
             (QStringList{u"let clicks through"_s, u"give back keyboard 4711"_s}));
}

void AppDelegateHoverTest::clickElsewhere_whilePinned_isToldToTheViews()
{
    auto& delegate = m_quib->launched();
    delegate.openQuib();
    m_quib->shell.asked.clear();
    connect(&delegate, &quib::Commands::clickedElsewhere, this,
            [&delegate] { delegate.giveBackKeyboard(); });

    move(u"oxcxox"_s); // The second click is in the card.

    QCOMPARE(m_quib->shell.asked,
             QStringList(2, u"give back keyboard 4711"_s)); // With the stamp of the click.
}

void AppDelegateHoverTest::clickInTheCard_leavesItOpen()
{
    auto& model = m_quib->launched().model();

    move(u"ncx"_s);
    m_quib->hands.advance(0ms);

    QVERIFY(model.isExpanded());
}

void AppDelegateHoverTest::pointerBackBeforeTheCollapse_forgetsTheClick()
{
    m_quib->launched();
    m_quib->shell.asked.clear();

    move(u"nox"_s);
    m_quib->shell.pointer.now.position = pointOf(u'c');
    m_quib->delegate.checkHover();
    move(u"ooooo"_s);

    QCOMPARE(m_quib->shell.asked.last(), u"give back keyboard 0"_s);
}

void AppDelegateHoverTest::dismiss_collapsesAndGivesTheKeyboardBack()
{
    auto& delegate = m_quib->launched();
    move(u"nc"_s);
    m_quib->shell.asked.clear();

    delegate.dismiss();
    move(u"cccccc"_s);

    QVERIFY(!delegate.model().isExpanded());
    QCOMPARE(m_quib->shell.asked,
             (QStringList{u"let clicks through"_s, u"give back keyboard 0"_s}));
}

void AppDelegateHoverTest::dismiss_whatIsKeptOpen_doesNothing_data()
{
    QTest::addColumn<bool>("pinned");

    QTest::addRow("pinned") << true;
    QTest::addRow("held by a dialog") << false;
}

void AppDelegateHoverTest::dismiss_whatIsKeptOpen_doesNothing()
{
    QFETCH(bool, pinned);
    auto& model = m_quib->launched().model();
    move(u"nc"_s);
    model.setPinned(pinned);
    model.holdOpen = pinned ? 0 : 1;

    m_quib->delegate.dismiss();

    QVERIFY(model.isExpanded());
}

void AppDelegateHoverTest::dismiss_underTheRestingPointer_opensAgain()
{
    m_quib->launched();
    move(u"n"_s);

    m_quib->delegate.dismiss();
    QVERIFY(!m_quib->delegate.model().isExpanded());
    move(u"n"_s);

    QVERIFY(m_quib->delegate.model().isExpanded());
}

void AppDelegateHoverTest::expand_cancelsAPendingCollapse()
{
    move(u"no"_s);

    m_quib->delegate.expand(false);
    m_quib->hands.advance(60ms);

    QVERIFY(m_quib->delegate.model().isExpanded());
}

void AppDelegateHoverTest::expansion_takesClicksAndCollapseLetsThemThrough()
{
    m_quib->launched();

    move(u"nooooo"_s);

    QCOMPARE(m_quib->shell.asked,
             (QStringList{u"order front"_s, u"take clicks"_s, u"let clicks through"_s,
                          u"give back keyboard 0"_s}));
}

QTEST_MAIN(AppDelegateHoverTest)
#include "tst_appdelegatehover.moc"
