#include "support/panel/taskstab.h"

using namespace Qt::StringLiterals;

/// The menus of the card beside the rest of the desktop.
class CardMenusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void openMenu_hasTheKeyboard();
    void openMenu_whereThePanelHasTheKeyboard_leavesItThere();
    void clickElsewhere_closesTheMenu();
    void chosenEntry_findsTheKeyboardWhereItWas();

private:
    void openMenu();
    bool isMenuOpen() { return ShownPanel::find(m_tab.window->contentItem(), u"menuList"_s); }

    TasksTab m_tab;
};

void CardMenusTest::openMenu()
{
    m_tab.commands.asked.clear();
    m_tab.click(m_tab.item(u"newClient"_s));
    QTRY_VERIFY(isMenuOpen());
}

void CardMenusTest::openMenu_hasTheKeyboard()
{
    openMenu();
    QCOMPARE(m_tab.commands.asked, QStringList{u"take keyboard"_s});

    m_tab.press(Qt::Key_Escape);

    QTRY_VERIFY(!isMenuOpen());
    QCOMPARE(m_tab.commands.asked, (QStringList{u"take keyboard"_s, u"give back keyboard"_s}));
}

void CardMenusTest::openMenu_whereThePanelHasTheKeyboard_leavesItThere()
{
    m_tab.commands.hasKeyboard = true;

    openMenu();
    m_tab.press(Qt::Key_Escape);

    QTRY_VERIFY(!isMenuOpen());
    QCOMPARE(m_tab.commands.asked, QStringList{u"take keyboard"_s});
    m_tab.commands.hasKeyboard = false;
}

void CardMenusTest::clickElsewhere_closesTheMenu()
{
    openMenu();

    Q_EMIT m_tab.commands.clickedElsewhere();

    QTRY_VERIFY(!isMenuOpen());
    QCOMPARE(m_tab.commands.asked.last(), u"give back keyboard"_s);
}

/// It may take it for something of its own.
void CardMenusTest::chosenEntry_findsTheKeyboardWhereItWas()
{
    m_tab.commands.inStatusBar = false;
    Q_EMIT m_tab.commands.isMenuInStatusBarChanged();
    auto& menu = m_tab.commands.statusMenu;
    menu.setItems({{.title = u"Open Quib"_s}});
    connect(&menu, &quib::StatusMenu::chosen, this,
            [this] { m_tab.commands.asked << u"chosen"_s; });
    m_tab.commands.asked.clear();
    QTest::mouseClick(m_tab.window.get(), Qt::RightButton, {}, {380, 20});
    QTRY_VERIFY(isMenuOpen());

    m_tab.press(Qt::Key_Down);
    m_tab.press(Qt::Key_Return);

    QCOMPARE(m_tab.commands.asked,
             (QStringList{u"take keyboard"_s, u"give back keyboard"_s, u"chosen"_s}));
}

QTEST_MAIN(CardMenusTest)
#include "tst_cardmenus.moc"
