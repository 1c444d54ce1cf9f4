#include "support/shownpanel.h"

#include <QInputMethodEvent>
#include <QPointingDevice>

using namespace Qt::StringLiterals;
using quib::Tab;

enum class Use { Press, Wheel, Tap };

/// The keys of the open card: its tabs, and the way out.
class CardKeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_panel.reset(); }

    void number_choosesItsTab_data();
    void number_choosesItsTab();
    void round_goesOnToTheNextTab_data();
    void round_goesOnToTheNextTab();
    void chosenTab_hasTheKeysAndShowsIt_data();
    void chosenTab_hasTheKeysAndShowsIt();
    void keys_whileCollapsedOrInAMenu_chooseNothing();
    void arrowsInTheTabBar_choose();
    void tabBar_isOneStop();
    void escape_leavesAFieldForItsTab();
    void escape_elsewhere_closesTheCard();
    void escape_ofAComposition_isTheInputMethods();
    void escape_inAMenu_leavesTheMenu();
    void nextOpening_beginsInTheTab();
    void pointer_takesTheRingAwayAndAKeyBringsItBack_data();
    void pointer_takesTheRingAwayAndAKeyBringsItBack();
    void tabKey_comesRoundThroughEachTabInSight_data();
    void tabKey_comesRoundThroughEachTabInSight();

private:
    void open(Tab tab);
    void usePointer(Use use, const QQuickItem* on);
    void ctrl(int key) const { m_panel->press(key, Qt::ControlModifier); }

    std::unique_ptr<ShownPanel> m_panel;
    std::unique_ptr<QPointingDevice> m_finger{QTest::createTouchDevice()};
};

void CardKeysTest::init()
{
    m_panel = std::make_unique<ShownPanel>();
    m_panel->takeKeyboard();
}

void CardKeysTest::open(Tab tab)
{
    m_panel->open(tab);
}

void CardKeysTest::usePointer(Use use, const QQuickItem* on)
{
    const auto place = inScene(on).center().toPoint();
    auto* window = m_panel->window.get();
    QWheelEvent wheel(place, window->mapToGlobal(place), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    switch (use) {
    case Use::Press: m_panel->click(on); break;
    case Use::Wheel: QCoreApplication::sendEvent(window, &wheel); break;
    case Use::Tap:
        QTest::touchEvent(window, m_finger.get()).press(0, place);
        QTest::touchEvent(window, m_finger.get()).release(0, place);
        break;
    }
}

void CardKeysTest::number_choosesItsTab_data()
{
    QTest::addColumn<int>("number");

    for (int number = 1; number <= 7; ++number) {
        QTest::addRow("%d", number) << number;
    }
}

void CardKeysTest::number_choosesItsTab()
{
    QFETCH(const int, number);
    open(number == 4 ? Tab::Time : Tab::Tasks); // A field has the keys in both.

    ctrl(Qt::Key_0 + number);

    QCOMPARE(m_panel->model.tab(), quib::AllTabs.at(std::size_t(number) - 1));
}

void CardKeysTest::round_goesOnToTheNextTab_data()
{
    QTest::addColumn<Tab>("from");
    QTest::addColumn<bool>("back");
    QTest::addColumn<Tab>("to");

    QTest::addRow("on, out of a field") << Tab::Tasks << false << Tab::Time;
    QTest::addRow("on from the last") << Tab::Notes << false << Tab::Home;
    QTest::addRow("back, out of a field") << Tab::Time << true << Tab::Tasks;
    QTest::addRow("back from the first") << Tab::Home << true << Tab::Notes;
}

void CardKeysTest::round_goesOnToTheNextTab()
{
    QFETCH(const Tab, from);
    QFETCH(const bool, back);
    open(from);

    if (back) { // As keyboards say it.
        m_panel->press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    } else {
        ctrl(Qt::Key_Tab);
    }

    QTEST(m_panel->model.tab(), "to");
}

void CardKeysTest::chosenTab_hasTheKeysAndShowsIt_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("focused");

    QTest::addRow("home") << int(Qt::Key_1) << u"playPause"_s;
    QTest::addRow("shortcuts") << int(Qt::Key_2) << u"shortcut"_s;
    QTest::addRow("tasks") << int(Qt::Key_4) << u"newTitle"_s;
    QTest::addRow("time") << int(Qt::Key_5) << u"note"_s;
}

void CardKeysTest::chosenTab_hasTheKeysAndShowsIt()
{
    QFETCH(const int, key);
    open(key == Qt::Key_1 ? Tab::Tasks : Tab::Home);

    ctrl(key);

    QTEST(m_panel->focused(), "focused");
    const auto* field = ShownPanel::find(
        m_panel->window->activeFocusItem()->parentItem()->parentItem(), u"ring"_s);
    QVERIFY(m_panel->showsFocus() || (field && field->isVisible()));
}

void CardKeysTest::keys_whileCollapsedOrInAMenu_chooseNothing()
{
    m_panel->model.setExpanded(false);
    ctrl(Qt::Key_3);
    QCOMPARE(m_panel->model.tab(), Tab::Home);

    open(Tab::Tasks);
    m_panel->item(u"newClient"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_panel->press(Qt::Key_Space);
    ctrl(Qt::Key_3);
    ctrl(Qt::Key_Tab);

    QCOMPARE(m_panel->model.tab(), Tab::Tasks);
}

void CardKeysTest::arrowsInTheTabBar_choose()
{
    open(Tab::Tasks);
    m_panel->press(Qt::Key_Escape);

    m_panel->press(Qt::Key_Left);
    QCOMPARE(m_panel->model.tab(), Tab::Clients);
    m_panel->press(Qt::Key_End);
    QCOMPARE(m_panel->model.tab(), Tab::Notes);
    m_panel->press(Qt::Key_Right);
    QCOMPARE(m_panel->model.tab(), Tab::Home);

    QCOMPARE(m_panel->window->activeFocusItem()->property("tab").toInt(), int(Tab::Home));
    QVERIFY(m_panel->showsFocus());
}

void CardKeysTest::tabBar_isOneStop()
{
    open(Tab::Tasks);
    m_panel->press(Qt::Key_Escape);

    m_panel->press(Qt::Key_Tab);
    QCOMPARE(m_panel->focused(), u"pin"_s);
    m_panel->press(Qt::Key_Backtab);
    QCOMPARE(m_panel->window->activeFocusItem()->property("tab").toInt(), int(Tab::Tasks));
}

void CardKeysTest::escape_leavesAFieldForItsTab()
{
    open(Tab::Tasks);
    m_panel->type(u"half"_s);

    m_panel->press(Qt::Key_Escape);

    QCOMPARE(m_panel->commands.asked, QStringList());
    QCOMPARE(m_panel->window->activeFocusItem()->property("tab").toInt(), int(Tab::Tasks));
    QVERIFY(m_panel->showsFocus());
    QCOMPARE(m_panel->text(u"newTitle"_s), u"half"_s);
    m_panel->press(Qt::Key_Escape);
    QCOMPARE(m_panel->commands.asked, QStringList{u"dismiss"_s});
}

void CardKeysTest::escape_elsewhere_closesTheCard()
{
    open(Tab::Home);

    m_panel->press(Qt::Key_Escape);

    QCOMPARE(m_panel->commands.asked, QStringList{u"dismiss"_s});
}

void CardKeysTest::escape_ofAComposition_isTheInputMethods()
{
    open(Tab::Tasks);
    QInputMethodEvent composing(u"ni"_s, {});
    QCoreApplication::sendEvent(m_panel->window->activeFocusItem(), &composing);

    m_panel->press(Qt::Key_Escape);

    QCOMPARE(m_panel->focused(), u"newTitle"_s);
    QCOMPARE(m_panel->commands.asked, QStringList());
}

void CardKeysTest::escape_inAMenu_leavesTheMenu()
{
    open(Tab::Tasks);
    m_panel->item(u"newClient"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_panel->press(Qt::Key_Space);

    m_panel->press(Qt::Key_Escape);

    QTRY_COMPARE(m_panel->focused(), u"newClient"_s);
    QVERIFY(m_panel->showsFocus());
    QVERIFY(!m_panel->commands.asked.contains(u"dismiss"_s));
}

void CardKeysTest::nextOpening_beginsInTheTab()
{
    open(Tab::Tasks);
    m_panel->press(Qt::Key_Escape);

    m_panel->model.setExpanded(false);
    open(Tab::Tasks);

    QCOMPARE(m_panel->focused(), u"newTitle"_s);
}

void CardKeysTest::pointer_takesTheRingAwayAndAKeyBringsItBack_data()
{
    QTest::addColumn<Use>("use");

    QTest::addRow("a press") << Use::Press;
    QTest::addRow("the wheel") << Use::Wheel;
    QTest::addRow("a finger") << Use::Tap;
}

void CardKeysTest::pointer_takesTheRingAwayAndAKeyBringsItBack()
{
    QFETCH(const Use, use);
    open(Tab::Home);
    m_panel->press(Qt::Key_Tab);
    const auto* ring = ShownPanel::find(m_panel->window->activeFocusItem(), u"focusRing"_s);
    QVERIFY(ring->isVisible());
    QCOMPARE(ring->opacity(), 1.0);

    usePointer(use, m_panel->item(u"date"_s));
    QCOMPARE(ring->opacity(), 0.0);
    m_panel->press(Qt::Key_Tab);

    ring = ShownPanel::find(m_panel->window->activeFocusItem(), u"focusRing"_s);
    QCOMPARE(ring->opacity(), 1.0);
}

void CardKeysTest::tabKey_comesRoundThroughEachTabInSight_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<bool>("back");

    for (const auto tab : quib::AllTabs) {
        QTest::addRow("%s", qPrintable(quib::rawText(tab))) << tab << false;
        QTest::addRow("%s, back", qPrintable(quib::rawText(tab))) << tab << true;
    }
}

void CardKeysTest::tabKey_comesRoundThroughEachTabInSight()
{
    QFETCH(const Tab, tab);
    QFETCH(const bool, back);
    const auto client = m_panel->workspace.client(u"Cafe"_s);
    for (int number = 0; number < 30; ++number) {
        m_panel->workspace.task(QString::number(number), client, number % 3 == 0);
        m_panel->workspace.client(QString::number(number));
    }
    open(tab);
    m_panel->press(Qt::Key_Escape); // Out of a field.
    m_panel->item(u"pin"_s)->forceActiveFocus(Qt::TabFocusReason);

    int steps = 0;
    do {
        m_panel->press(back ? Qt::Key_Backtab : Qt::Key_Tab);
        const auto* item = m_panel->window->activeFocusItem();
        QVERIFY2(item->isVisible(), qPrintable(m_panel->focused()));
        QVERIFY2(m_panel->rect(u"shape"_s).contains(inScene(item).center()),
                 qPrintable(m_panel->focused()));
    } while (m_panel->focused() != "pin"_L1 && ++steps < 40);

    QCOMPARE(m_panel->focused(), u"pin"_s);
}

QTEST_MAIN(CardKeysTest)
#include "tst_cardkeys.moc"
