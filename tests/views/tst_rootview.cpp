#include "support/panel/shownpanel.h"

#include "brand/brand.h"
#include "views/motion/spring.h"
#include "views/shapes/notchshape.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::Tab;

namespace {

/// The card of a panel that is closed again, its springs free to move.
QQuickItem* openedOnce(ShownPanel& panel)
{
    panel.open(Tab::Home);
    panel.model.setExpanded(false);
    auto* card = panel.item(u"expandedView"_s);
    [[maybe_unused]] const bool isGone = QTest::qWaitFor([&] { return !card->isVisible(); });
    panel.model.setMotionReduced(false);
    return card;
}

} // namespace

/// The notch, the card and what lies on every card, read from the live items.
class RootViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quitKey_quits();
    void collapsed_overhangsTheNotchByFivePointsOnEachSide();
    void runningTimer_widensTheShapeByTheWings();
    void expanded_isTheCardAtTheTopCentre();
    void outline_data();
    void outline();
    void spring_isTheOneOfTheTransition();
    void springFromTheCollapsedNotch_growsAtOnce();
    void firstFrame_isOfTheNotchAlone();
    void firstFrame_ofAPanelThatHasTheKeyboard_hasTheCard();
    void cardIsBuiltWhenFirstOpened();
    void topBar_isAsHighAsTheNotchButThirtyAtLeast();
    void contentsLeave_byFadingOut();
    void firstOpening_growsBeforeTheCardIsBuilt();
    void firstOpening_byCommand_hasTheCardAtOnce();
    void switchingTabs_keepsTheTabBar();
};

void RootViewTest::collapsed_overhangsTheNotchByFivePointsOnEachSide()
{
    const ShownPanel panel;

    QCOMPARE(panel.rect(u"shape"_s), QRectF(380 - 99, 0, 198, 37));
    QCOMPARE(numberOf(panel.item(u"shape"_s), "radius"), 10.0);
    QVERIFY(!panel.item(u"wings"_s)); // Not built before a timer runs.
}

void RootViewTest::runningTimer_widensTheShapeByTheWings()
{
    const ShownPanel panel;

    panel.workspace.store->startTimer({}, QString());

    QCOMPARE(panel.rect(u"shape"_s), QRectF(380 - 191, 0, 382, 37));
    QVERIFY(panel.item(u"wings"_s)->isVisible());
}

void RootViewTest::expanded_isTheCardAtTheTopCentre()
{
    ShownPanel panel;
    panel.workspace.store->startTimer({}, QString());

    panel.open(Tab::Home);

    QCOMPARE(panel.rect(u"shape"_s), QRectF(30, 0, 700, 290));
    QCOMPARE(numberOf(panel.item(u"shape"_s), "radius"), 26.0);
    QVERIFY(panel.item(u"shapeGroup"_s)->clip());
    QVERIFY(!panel.item(u"wings"_s)->isVisible());
}

void RootViewTest::outline_data()
{
    QTest::addColumn<bool>("expanded");
    QTest::addColumn<bool>("targeted");
    QTest::addColumn<QColor>("color");

    QTest::addRow("collapsed") << false << false << Brand::white(0);
    QTest::addRow("expanded") << true << false << Brand::white(0.06);
    QTest::addRow("collapsed, a drag over it") << false << true << Brand::glow();
    QTest::addRow("expanded, a drag over it") << true << true << Brand::glow();
}

void RootViewTest::outline()
{
    QFETCH(bool, expanded);
    QFETCH(bool, targeted);
    ShownPanel panel;

    panel.model.setExpanded(expanded);
    panel.model.setDropTargeted(targeted);

    QTEST(colorOf(panel.item(u"shape"_s), "outline"), "color");
}

void RootViewTest::spring_isTheOneOfTheTransition()
{
    ShownPanel panel;
    const auto* spring = panel.root()->findChild<QObject*>(u"spring"_s);
    QVERIFY(spring);

    const auto shapeOf
        = [spring](const char* way) { return spring->property(way).value<quib::SpringShape>(); };
    QCOMPARE(shapeOf("rising"), (quib::SpringShape{.response = 0.28, .damping = 0.82}));
    QCOMPARE(shapeOf("falling"), (quib::SpringShape{.response = 0.2, .damping = 1}));
    panel.model.setExpanded(true);
    QCOMPARE(numberOf(spring, "target"), 1.0);
}

void RootViewTest::springFromTheCollapsedNotch_growsAtOnce()
{
    ShownPanel panel;
    panel.model.setMotionReduced(false);

    panel.model.setExpanded(true);
    QVERIFY(panel.rect(u"shape"_s).width() > 198);
    QVERIFY(panel.rect(u"shape"_s).width() < 400);

    QTRY_COMPARE(panel.rect(u"shape"_s), QRectF(30, 0, 700, 290));
}

void RootViewTest::firstFrame_isOfTheNotchAlone()
{
    ShownPanel panel;
    const auto* card = openedOnce(panel);
    QWindow other;
    other.show();
    other.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&other));

    panel.model.setExpanded(true);
    QVERIFY(panel.rect(u"shape"_s).width() > 198);
    QVERIFY(!card->isVisible());

    QTRY_VERIFY(card->isVisible());
}

void RootViewTest::firstFrame_ofAPanelThatHasTheKeyboard_hasTheCard()
{
    ShownPanel panel;
    const auto* card = openedOnce(panel);
    panel.takeKeyboard();

    panel.model.setExpanded(true);

    QVERIFY(card->isVisible());
}

void RootViewTest::cardIsBuiltWhenFirstOpened()
{
    ShownPanel panel;
    QVERIFY(!panel.item(u"tasksView"_s));

    panel.open(Tab::Home);
    QVERIFY(panel.item(u"topBar"_s));
    QVERIFY(!panel.item(u"tasksView"_s));
    panel.open(Tab::Tasks);
    auto* tasks = panel.item(u"tasksView"_s);
    QVERIFY(tasks);
    panel.model.setExpanded(false);
    QTRY_VERIFY(!tasks->isVisible());
    panel.open(Tab::Tasks);

    QCOMPARE(panel.item(u"tasksView"_s), tasks);
    QVERIFY(tasks->isVisible());
}

void RootViewTest::topBar_isAsHighAsTheNotchButThirtyAtLeast()
{
    ShownPanel panel;
    panel.open(Tab::Home);

    panel.model.setNotchSize({190, 24});

    QCOMPARE(panel.rect(u"topBar"_s).height(), 30);
}

void RootViewTest::contentsLeave_byFadingOut()
{
    ShownPanel panel;
    panel.open(Tab::Home);
    panel.model.setMotionReduced(false);
    const auto* contents = panel.item(u"expandedView"_s);
    QCOMPARE(contents->opacity(), 1.0);

    panel.model.setExpanded(false);

    QTRY_COMPARE(contents->opacity(), 0.0);
    QVERIFY(!contents->isVisible());
    QCOMPARE(contents->scale(), 1.0);
}

void RootViewTest::firstOpening_growsBeforeTheCardIsBuilt()
{
    ShownPanel panel;
    panel.model.setMotionReduced(false);

    panel.model.setExpanded(true);

    QVERIFY(!panel.item(u"expandedView"_s));
    QTRY_VERIFY(panel.item(u"expandedView"_s));
}

void RootViewTest::firstOpening_byCommand_hasTheCardAtOnce()
{
    ShownPanel panel;
    panel.model.setMotionReduced(false);

    panel.model.setExpanded(true);
    panel.model.setPinned(true);

    QVERIFY(panel.item(u"expandedView"_s)); // The next key is for it.
}

void RootViewTest::switchingTabs_keepsTheTabBar()
{
    ShownPanel panel;
    panel.open(Tab::Home);
    const auto* bar = panel.item(u"topBar"_s);

    panel.open(Tab::Tasks);

    QCOMPARE(panel.item(u"topBar"_s), bar);
    QVERIFY(panel.item(u"tasksView"_s)->isVisible());
}

void RootViewTest::quitKey_quits()
{
    ShownPanel panel;
    panel.open(Tab::Tasks);
    panel.window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(panel.window.get()));

    QTest::keyClick(panel.window.get(), Qt::Key_Q, Qt::ControlModifier);

    QCOMPARE(panel.commands.asked, QStringList{u"quit"_s});
}

QTEST_MAIN(RootViewTest)
#include "tst_rootview.moc"
