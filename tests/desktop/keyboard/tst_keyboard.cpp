#include "desktop/desk/desk.h"
#include "desktop/desk/places.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;

/// What is typed lands where the user looks.
class KeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typedTask_isOnDiskAtTheFrontAndTrimmed_data();
    void typedTask_isOnDiskAtTheFrontAndTrimmed();
    void hovering_neverTakesTheKeyboard();
    void plainButtons_neverTakeTheKeyboard();
    void collapse_givesTheKeyboardBack();
    void clickElsewhere_givesTheKeyboardToTheClickedWindow();
    void halfTypedText_survivesACollapse();
    void menu_isUsableByKeyboard();
    void menuOpenedByPointer_isLeftByEscape();
    void menu_isLeftByAClickElsewhereWhilePinned();
    void keyHeldDown_pressesOnce();
};

namespace {

/// A desk with Quib on it, and a window beneath that tells which keys reach it.
struct ListeningDesk : Desk {
    Program listener = startListener();
    Output heard{*listener};
    Program quib = startQuib();

    qsizetype keysBeneath() { return heard.count("KeyPress event"); }
};

constexpr QPoint ClientPicker{1058, 60};
constexpr QPoint AtTheMenusEdge{936, 100};

bool isMenuOpen(const Desk& desk)
{
    return desk.pixel(AtTheMenusEdge) == QColor(30, 27, 38);
}

/// By the pointer alone.
void openTheMenuOfClients(const Desk& desk)
{
    desk.openWithPointer();
    desk.showTab(3);
    desk.click(ClientPicker);
    QTRY_VERIFY(isMenuOpen(desk));
}

void goToTheTaskField(const Desk& desk)
{
    desk.openWithPointer();
    desk.showTab(3);
    desk.click(Desk::TaskField);
}

} // namespace

void KeyboardTest::typedTask_isOnDiskAtTheFrontAndTrimmed_data()
{
    QTest::addColumn<bool>("compositor");

    QTest::addRow("bare") << false;
    QTest::addRow("composited") << true;
}

void KeyboardTest::typedTask_isOnDiskAtTheFrontAndTrimmed()
{
    QFETCH(bool, compositor);
    Desk desk({.compositor = compositor});
    const auto quib = desk.startQuib();
    goToTheTaskField(desk);

    desk.type(u"  Call Ann  "_s);
    desk.key(u"Return"_s);

    QTRY_COMPARE(desk.savedTasks(),
                 (QStringList{u"Call Ann"_s, u"Send Corner Café the homepage preview"_s,
                              u"Tick this off to try it"_s}));
}

void KeyboardTest::hovering_neverTakesTheKeyboard()
{
    ListeningDesk desk;
    desk.heard.forget();

    desk.openWithPointer();
    desk.key(u"a"_s);

    QTRY_COMPARE(desk.keysBeneath(), 1);
}

void KeyboardTest::plainButtons_neverTakeTheKeyboard()
{
    ListeningDesk desk;
    desk.openWithPointer();
    desk.showTab(3);
    desk.click(Desk::Pin);
    desk.heard.forget();

    desk.key(u"a"_s);

    QTRY_COMPARE(desk.keysBeneath(), 1);
}

void KeyboardTest::collapse_givesTheKeyboardBack()
{
    ListeningDesk desk;
    goToTheTaskField(desk);
    desk.heard.forget();
    desk.type(u"abc"_s);
    QCOMPARE(desk.keysBeneath(), 0);

    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    desk.key(u"x"_s);

    QTRY_COMPARE(desk.keysBeneath(), 1);
}

void KeyboardTest::clickElsewhere_givesTheKeyboardToTheClickedWindow()
{
    ListeningDesk desk;
    goToTheTaskField(desk);
    desk.heard.forget();

    desk.click(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));
    desk.key(u"x"_s);

    QTRY_COMPARE(desk.keysBeneath(), 1);
}

void KeyboardTest::halfTypedText_survivesACollapse()
{
    Desk desk;
    const auto quib = desk.startQuib();
    goToTheTaskField(desk);
    desk.type(u"half a "_s);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));

    desk.openWithPointer();
    desk.click(Desk::TaskField);
    desk.key(u"End"_s);
    desk.type(u"word"_s);
    desk.key(u"Return"_s);

    QTRY_COMPARE(desk.savedTasks().value(0), u"half a word"_s);
}

/// From the field by Tab to the client's menu, its first client chosen, and back to the field.
void KeyboardTest::menu_isUsableByKeyboard()
{
    Desk desk;
    const auto quib = desk.startQuib();
    goToTheTaskField(desk);
    desk.type(u"Menu"_s);

    desk.key(u"Tab"_s);
    desk.key(u"Return"_s);
    desk.key(u"Down"_s);
    desk.key(u"Return"_s);
    desk.key(u"shift+Tab"_s);
    desk.key(u"Return"_s);

    QTRY_COMPARE(desk.savedTasks().value(0), u"Menu"_s);
    const auto data = desk.data();
    const auto task = data.value("tasks"_L1)[0];
    QCOMPARE(task["clientID"_L1], data.value("clients"_L1)[0]["id"_L1]);
}

/// What is typed before and after goes on to the window beneath.
void KeyboardTest::menuOpenedByPointer_isLeftByEscape()
{
    ListeningDesk desk;
    openTheMenuOfClients(desk);
    desk.heard.forget();

    desk.key(u"Escape"_s);
    QTRY_VERIFY(!isMenuOpen(desk));
    QVERIFY(desk.isExpanded());
    QCOMPARE(desk.keysBeneath(), 0);
    desk.key(u"a"_s);

    QTRY_COMPARE(desk.keysBeneath(), 1);
}

void KeyboardTest::menu_isLeftByAClickElsewhereWhilePinned()
{
    ListeningDesk desk;
    desk.openWithPointer();
    desk.click(Desk::Pin);
    openTheMenuOfClients(desk);

    desk.click(Desk::FarAway);
    QTRY_VERIFY(!isMenuOpen(desk));
    QVERIFY(desk.isExpanded());
    desk.heard.forget();
    desk.key(u"a"_s);

    QTRY_COMPARE(desk.keysBeneath(), 1);
}

/// Where each press would take away another item of the quick-launch strip.
void KeyboardTest::keyHeldDown_pressesOnce()
{
    constexpr QPoint EditLaunch = places::EditLaunch;
    constexpr QPoint AddWebsite = places::AddWebsite;
    Desk desk;
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.click(EditLaunch);
    desk.click(AddWebsite); // Its fields take the keyboard.
    desk.key(u"Escape"_s);
    desk.key(u"shift+Tab"_s);
    desk.key(u"shift+Tab"_s);

    desk.hold(u"Delete"_s);
    desk.key(u"ctrl+q"_s);

    QVERIFY(quib->waitForFinished());
    QCOMPARE(desk.data()["launch"_L1].toArray().size(), 1);
}

QTEST_GUILESS_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
