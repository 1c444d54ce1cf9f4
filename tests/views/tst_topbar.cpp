#include "support/panel/shownpanel.h"

#include "app/notch/tab.h"
#include "brand/brand.h"

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::Tab;

/// The bar of tabs, date and pin, read from the live items.
class TopBarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tabButtons_standInOrder();
    void tabButton_showsItsSymbol();
    void tabButton_lightsUp_data();
    void tabButton_lightsUp();
    void clickingATab_selectsIt();
    void date_isWrittenInTheUsersWay();
    void pin_showsWhetherItKeepsOpen();
    void clickingThePin_invertsIt();
    void rightClick_opensTheMenu();
    void rightClick_whereAStatusBarHasTheMenu_opensNothing();
    void menu_choosesByKeyboard();
    void menuKey_opensTheMenu();
    void quitKey_quitsWhileTheMenuIsOpen();

private:
    static QList<QQuickItem*> buttons(const ShownPanel& panel);
    static void rightClick(const ShownPanel& panel);
    static bool isMenuOpen(const ShownPanel& panel);
};

void TopBarTest::rightClick(const ShownPanel& panel)
{
    const auto beside = panel.rect(u"topBar"_s).center().toPoint() - QPoint(30, 0);
    QTest::mouseClick(panel.window.get(), Qt::RightButton, {}, beside);
}

bool TopBarTest::isMenuOpen(const ShownPanel& panel)
{
    return panel.item(u"topBar"_s)
        ->findChild<QObject*>(u"statusMenu"_s)
        ->property("opened")
        .toBool();
}

QList<QQuickItem*> TopBarTest::buttons(const ShownPanel& panel)
{
    QList<QQuickItem*> found;
    for (auto* child : panel.item(u"tabs"_s)->childItems()) {
        if (child->property("tab").isValid()) {
            found << child;
        }
    }
    return found;
}

void TopBarTest::tabButtons_standInOrder()
{
    ShownPanel panel;
    panel.open(Tab::Home);

    const auto all = buttons(panel);

    QCOMPARE(all.size(), 7);
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(all.at(i)->property("tab").toInt(), i);
        QVERIFY(i == 0 || inScene(all.at(i)).left() > inScene(all.at(i - 1)).right());
    }
}

void TopBarTest::tabButton_showsItsSymbol()
{
    ShownPanel panel;
    panel.open(Tab::Home);

    for (auto* button : buttons(panel)) {
        const auto* symbol = ShownPanel::find(button, u"symbol"_s);
        QCOMPARE(textOf(symbol, "name"),
                 quib::symbol(static_cast<Tab>(button->property("tab").toInt())));
    }
}

void TopBarTest::tabButton_lightsUp_data()
{
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QColor>("symbol");
    QTest::addColumn<QColor>("capsule");
    QTest::addColumn<double>("opacity");

    QTest::addRow("at rest") << false << false << Brand::muted2() << QColor(Qt::white) << 0.0;
    QTest::addRow("hovered") << false << true << Brand::white(0.85) << QColor(Qt::white) << 0.08;
    QTest::addRow("selected") << true << false << QColor(Qt::white) << Brand::purple() << 0.55;
    QTest::addRow("selected and hovered")
        << true << true << QColor(Qt::white) << Brand::purple() << 0.55;
}

void TopBarTest::tabButton_lightsUp()
{
    QFETCH(bool, selected);
    QFETCH(bool, hovered);
    QFETCH(QColor, symbol);
    QFETCH(QColor, capsule);
    QFETCH(double, opacity);
    ShownPanel panel;
    panel.open(selected ? Tab::Tasks : Tab::Home);
    auto* button = buttons(panel).at(int(Tab::Tasks));

    panel.move(hovered ? button : panel.item(u"tabArea"_s));

    QTRY_COMPARE(button->property("hovered").toBool(), hovered);
    QCOMPARE(colorOf(ShownPanel::find(button, u"symbol"_s)), symbol);
    const auto* background = ShownPanel::find(button, u"capsule"_s);
    QCOMPARE(background->opacity(), opacity);
    QCOMPARE(colorOf(background), capsule);
}

void TopBarTest::clickingATab_selectsIt()
{
    ShownPanel panel;
    panel.open(Tab::Home);

    panel.click(buttons(panel).at(int(Tab::Notes)));

    QCOMPARE(panel.model.tab(), Tab::Notes);
}

void TopBarTest::date_isWrittenInTheUsersWay()
{
    ShownPanel panel;
    panel.open(Tab::Home);
    const auto* date = panel.item(u"date"_s);

    const auto today = QDate::currentDate();

    QCOMPARE(textOf(date), QLocale(QLocale::English).toString(today, u"ddd, MMM d"_s));
    QCOMPARE(numberOf(date, "size"), 11.0);
    QCOMPARE(date->property("weight").toInt(), int(QFont::Medium));
    QCOMPARE(colorOf(date), Brand::muted());
}

void TopBarTest::pin_showsWhetherItKeepsOpen()
{
    ShownPanel panel;
    panel.open(Tab::Home);
    const auto* symbol = ShownPanel::find(panel.item(u"pin"_s), u"symbol"_s);
    QCOMPARE(textOf(symbol, "name"), u"pin"_s);
    QCOMPARE(colorOf(symbol), Brand::muted());

    panel.model.setPinned(true);

    QCOMPARE(textOf(symbol, "name"), u"pin.fill"_s);
    QCOMPARE(colorOf(symbol), Brand::glow());
}

void TopBarTest::clickingThePin_invertsIt()
{
    ShownPanel panel;
    panel.open(Tab::Home);

    panel.click(panel.item(u"pin"_s));
    QVERIFY(panel.model.isPinned());
    panel.click(panel.item(u"pin"_s));

    QVERIFY(!panel.model.isPinned());
}

void TopBarTest::rightClick_opensTheMenu()
{
    ShownPanel panel;
    panel.commands.inStatusBar = false;
    panel.commands.statusMenu.setItems({{.title = u"Open"_s}});
    const QSignalSpy aboutToOpen(&panel.commands.statusMenu, &quib::StatusMenu::aboutToOpen);
    panel.open(Tab::Home);

    rightClick(panel);

    QTRY_VERIFY(isMenuOpen(panel));
    QCOMPARE(aboutToOpen.size(), 1); // So that its check marks are fresh.
}

void TopBarTest::rightClick_whereAStatusBarHasTheMenu_opensNothing()
{
    ShownPanel panel;
    panel.open(Tab::Home);

    rightClick(panel);
    panel.settle();

    QVERIFY(!isMenuOpen(panel));
}

void TopBarTest::menu_choosesByKeyboard()
{
    ShownPanel panel;
    panel.commands.inStatusBar = false;
    panel.commands.statusMenu.setItems({{.title = u"Open"_s}, {}, {.title = u"Quit"_s}});
    const QSignalSpy chosen(&panel.commands.statusMenu, &quib::StatusMenu::chosen);
    panel.open(Tab::Home);
    panel.window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(panel.window.get()));
    rightClick(panel);
    QTRY_VERIFY(isMenuOpen(panel));

    QTest::keyClick(panel.window.get(), Qt::Key_Up);
    QTest::keyClick(panel.window.get(), Qt::Key_Return);

    QTRY_COMPARE(chosen.size(), 1);
    QCOMPARE(chosen[0][0].toString(), u"Quit"_s);
}

void TopBarTest::menuKey_opensTheMenu()
{
    ShownPanel panel;
    panel.commands.inStatusBar = false;
    panel.commands.statusMenu.setItems({{.title = u"Open"_s}});
    panel.open(Tab::Home);
    panel.window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(panel.window.get()));

    QTest::keyClick(panel.window.get(), Qt::Key_F10, Qt::ShiftModifier);

    QTRY_VERIFY(isMenuOpen(panel));
}

void TopBarTest::quitKey_quitsWhileTheMenuIsOpen()
{
    ShownPanel panel;
    panel.commands.inStatusBar = false;
    panel.commands.statusMenu.setItems({{.title = u"Quit"_s, .keyEquivalent = u"q"_s}});
    panel.open(Tab::Home);
    panel.window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(panel.window.get()));
    rightClick(panel);
    QTRY_VERIFY(isMenuOpen(panel));

    QTest::keyClick(panel.window.get(), Qt::Key_Q, Qt::ControlModifier);

    QCOMPARE(panel.commands.asked, (QStringList{u"take keyboard"_s, u"quit"_s}));
}

QTEST_MAIN(TopBarTest)
#include "tst_topbar.moc"
