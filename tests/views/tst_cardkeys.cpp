#include "support/panel/shownpanel.h"

#include <QInputMethodEvent>

using namespace Qt::StringLiterals;
using quib::Tab;

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

private:
    void open(Tab tab);
    void ctrl(int key) const { m_panel->press(key, Qt::ControlModifier); }

    std::unique_ptr<ShownPanel> m_panel;
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

QTEST_MAIN(CardKeysTest)
#include "tst_cardkeys.moc"
