#include "app/hoverpath.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::Tab;

/// Clicks beside the card and the key that dismisses it, among fakes, in each way that a desktop
/// tells of its pointer.
class PanelLifeDismissalTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { HoverPath::addWays(); }
    void init() { m_hover = std::make_unique<HoverPath>(); }
    void cleanup() { m_hover.reset(); }

    void clickElsewhere_collapsesAtTheNextTurn();
    void clickElsewhere_whilePinned_isToldToTheViews();
    void clickInTheCard_leavesItOpen();
    void pointerBackBeforeTheCollapse_forgetsTheClick();
    void dismiss_collapsesAndGivesTheKeyboardBack();
    void dismiss_whatIsKeptOpen_doesNothing_data();
    void dismiss_whatIsKeptOpen_doesNothing();
    void dismiss_underTheRestingPointer_opensAgain();

private:
    std::unique_ptr<HoverPath> m_hover;
};

void PanelLifeDismissalTest::clickElsewhere_collapsesAtTheNextTurn()
{
    auto& model = m_hover->quib.launched().model();
    m_hover->move(u"no"_s);
    m_hover->quib.shell.asked.clear();

    m_hover->move(u"x"_s);
    QVERIFY(model.isExpanded());
    m_hover->quib.hands.advance(0ms);

    QVERIFY(!model.isExpanded());
    QCOMPARE(m_hover->quib.shell.asked,
             (QStringList{u"let clicks through"_s, u"give back keyboard 4711"_s}));
}

void PanelLifeDismissalTest::clickElsewhere_whilePinned_isToldToTheViews()
{
    auto& delegate = m_hover->quib.launched();
    delegate.life().openQuib();
    m_hover->quib.shell.asked.clear();
    connect(&delegate.commands(), &quib::Commands::clickedElsewhere, this,
            [&delegate] { delegate.commands().giveBackKeyboard(); });

    m_hover->move(u"oxcxox"_s); // The second click is in the card.

    QCOMPARE(m_hover->quib.shell.asked,
             QStringList(2, u"give back keyboard 4711"_s)); // With the stamp of the click.
}

void PanelLifeDismissalTest::clickInTheCard_leavesItOpen()
{
    auto& model = m_hover->quib.launched().model();

    m_hover->move(u"ncx"_s);
    m_hover->quib.hands.advance(0ms);

    QVERIFY(model.isExpanded());
}

void PanelLifeDismissalTest::pointerBackBeforeTheCollapse_forgetsTheClick()
{
    m_hover->quib.launched();
    m_hover->quib.shell.asked.clear();

    m_hover->move(u"nox"_s);
    m_hover->quib.shell.pointer.now.position = HoverPath::pointOf(u'c');
    m_hover->quib.delegate.life().checkHover();
    m_hover->move(u"ooooo"_s);

    QCOMPARE(m_hover->quib.shell.asked.last(), u"give back keyboard 0"_s);
}

void PanelLifeDismissalTest::dismiss_collapsesAndGivesTheKeyboardBack()
{
    auto& delegate = m_hover->quib.launched();
    m_hover->move(u"nc"_s);
    m_hover->quib.shell.asked.clear();

    delegate.commands().dismiss();
    m_hover->move(u"cccccc"_s);

    QVERIFY(!delegate.model().isExpanded());
    QCOMPARE(m_hover->quib.shell.asked,
             (QStringList{u"let clicks through"_s, u"give back keyboard 0"_s}));
}

void PanelLifeDismissalTest::dismiss_whatIsKeptOpen_doesNothing_data()
{
    QTest::addColumn<bool>("pinned");

    QTest::addRow("pinned") << true;
    QTest::addRow("held by a dialog") << false;
}

void PanelLifeDismissalTest::dismiss_whatIsKeptOpen_doesNothing()
{
    QFETCH(bool, pinned);
    auto& model = m_hover->quib.launched().model();
    m_hover->move(u"nc"_s);
    model.setPinned(pinned);
    model.holdOpen = pinned ? 0 : 1;

    m_hover->quib.delegate.commands().dismiss();

    QVERIFY(model.isExpanded());
}

void PanelLifeDismissalTest::dismiss_underTheRestingPointer_opensAgain()
{
    m_hover->quib.launched();
    m_hover->move(u"n"_s);

    m_hover->quib.delegate.commands().dismiss();
    QVERIFY(!m_hover->quib.delegate.model().isExpanded());
    m_hover->move(u"n"_s);

    QVERIFY(m_hover->quib.delegate.model().isExpanded());
}

QTEST_MAIN(PanelLifeDismissalTest)
#include "tst_panellifedismissal.moc"
