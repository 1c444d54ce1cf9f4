#include "app/hoverpath.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Tab;

/// The panel opens and closes as the pointer goes, among fakes. All of it happens in each way that
/// a desktop tells of its pointer.
class PanelLifeHoverTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { HoverPath::addWays(); }
    void init() { m_hover = std::make_unique<HoverPath>(); }
    void cleanup() { m_hover.reset(); }

    void checkHover_data();
    void checkHover();
    void keptOpen_neverCollapses_data();
    void keptOpen_neverCollapses();
    void pinTakenAway_collapsesAfterTheUsualDelay();
    void runningTimer_widensTheHitArea();
    void restingPointer_isLookedAtWhenTheNotchComesToIt_data();
    void restingPointer_isLookedAtWhenTheNotchComesToIt();
    void expand_cancelsAPendingCollapse();
    void expansion_takesClicksAndCollapseLetsThemThrough();

private:
    std::unique_ptr<HoverPath> m_hover;
};

void PanelLifeHoverTest::checkHover_data()
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

void PanelLifeHoverTest::checkHover()
{
    QFETCH(QString, path);

    m_hover->move(path);

    QTEST(m_hover->quib.delegate.model().isExpanded(), "expanded");
    QTEST(m_hover->quib.delegate.model().tab(), "tab");
}

void PanelLifeHoverTest::keptOpen_neverCollapses_data()
{
    QTest::addColumn<bool>("pinned");
    QTest::addColumn<QString>("path");

    QTest::addRow("pinned, pointer away") << true << u"noooooooooo"_s;
    QTest::addRow("pinned, click elsewhere") << true << u"nooxoooooooo"_s;
    QTest::addRow("held by a dialog, pointer away") << false << u"noooooooooo"_s;
    QTest::addRow("held by a dialog, click elsewhere") << false << u"nooxoooooooo"_s;
}

void PanelLifeHoverTest::keptOpen_neverCollapses()
{
    QFETCH(bool, pinned);
    QFETCH(QString, path);
    auto& model = m_hover->quib.launched().model();
    model.setPinned(pinned);
    model.holdOpen = pinned ? 0 : 1;

    m_hover->move(path);

    QVERIFY(model.isExpanded());
}

void PanelLifeHoverTest::pinTakenAway_collapsesAfterTheUsualDelay()
{
    m_hover->quib.delegate.life().openQuib();
    m_hover->move(u"ooooo"_s);
    QVERIFY(m_hover->quib.delegate.model().isExpanded());

    m_hover->quib.delegate.model().setPinned(false);
    m_hover->move(u"oooo"_s);
    QVERIFY(m_hover->quib.delegate.model().isExpanded());
    m_hover->move(u"o"_s);

    QVERIFY(!m_hover->quib.delegate.model().isExpanded());
}

void PanelLifeHoverTest::runningTimer_widensTheHitArea()
{
    QCOMPARE(m_hover->quib.delegate.life().collapsedRect(), QRectF(960 - 110, -10, 220, 46));

    m_hover->quib.delegate.store().startTimer({}, QString());

    QCOMPARE(m_hover->quib.delegate.life().collapsedRect(), QRectF(960 - 202, -10, 404, 46));
}

void PanelLifeHoverTest::restingPointer_isLookedAtWhenTheNotchComesToIt_data()
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

void PanelLifeHoverTest::restingPointer_isLookedAtWhenTheNotchComesToIt()
{
    QFETCH(const QPointF, pointer);
    QFETCH(const bool, locked);
    QFETCH(const std::function<void(DelegateForTest&)>, change);
    auto& model = m_hover->quib.launched().model();
    m_hover->quib.shell.sessionLock.setLocked(locked);
    m_hover->quib.shell.pointer.move(pointer);
    m_hover->quib.hands.advance(3s);
    QVERIFY(!model.isExpanded());

    change(m_hover->quib);

    QTRY_VERIFY(model.isExpanded());
}

void PanelLifeHoverTest::expand_cancelsAPendingCollapse()
{
    m_hover->move(u"no"_s);

    m_hover->quib.delegate.life().expand(false);
    m_hover->quib.hands.advance(60ms);

    QVERIFY(m_hover->quib.delegate.model().isExpanded());
}

void PanelLifeHoverTest::expansion_takesClicksAndCollapseLetsThemThrough()
{
    m_hover->quib.launched();

    m_hover->move(u"nooooo"_s);

    QCOMPARE(m_hover->quib.shell.asked,
             (QStringList{u"order front"_s, u"take clicks"_s, u"let clicks through"_s,
                          u"give back keyboard 0"_s}));
}

QTEST_MAIN(PanelLifeHoverTest)
#include "tst_panellifehover.moc"
