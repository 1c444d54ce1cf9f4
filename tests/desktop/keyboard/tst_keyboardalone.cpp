#include "desktop/desk/deskconnection.h"
#include "desktop/desk/recorder.h"
#include "support/writefile.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;

/// The whole panel without a pointer, which lies far away. A second start opens it, as a key of the
/// desktop would.
class KeyboardAloneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersAndRounds_chooseTabs();
    void task_isAddedTickedOffAndDeleted();
    void client_isMadeAndItsTimerStartedAndStopped();
    void shortcut_isPressed();
    void menu_opensByItsKeyAndEscapeLeavesIt();
    void unpinned_givesTheKeyboardBack();
    void escape_leavesTheFieldThenTheCard();
};

namespace {

constexpr int Links = 1;
constexpr int Clients = 2;
constexpr int Tasks = 3;

/// A panel that the keyboard has opened, over a window that tells which keys reach it.
struct OpenDesk : Desk {
    Recorder recorder{*this, {u"inode/directory"_s}};
    Program listener = startListener();
    Output heard{*listener};
    Program quib = startQuib();

    OpenDesk() { open(); }

    void open()
    {
        runQuib();
        waitForExpanded(true);
        waitFor("the keyboard", [this] {
            heard.forget();
            key(u"Shift_L"_s);
            return heard.count("KeyPress event") == 0;
        });
    }

    void showTab(int number) const
    {
        key(u"ctrl+%1"_s.arg(number + 1));
        waitFor("the tab", [&] { return selectedTab() == number; });
    }

    void keys(const QStringList& names) const
    {
        for (const auto& name : names) {
            key(name);
        }
    }

    QJsonValue saved(const QString& list) const { return data().value(list); }
};

} // namespace

void KeyboardAloneTest::numbersAndRounds_chooseTabs()
{
    const OpenDesk desk;

    for (const int number : {1, 2, 3, 4, 5, 6, 7}) {
        desk.key(u"ctrl+%1"_s.arg(number));
        QTRY_COMPARE(desk.selectedTab(), number - 1);
    }
    desk.key(u"ctrl+Tab"_s);
    QTRY_COMPARE(desk.selectedTab(), 0);
    desk.key(u"ctrl+shift+Tab"_s);
    QTRY_COMPARE(desk.selectedTab(), 6);
    desk.showTab(Tasks);
    desk.keys({u"a"_s, u"ctrl+Tab"_s}); // Out of a field.
    QTRY_COMPARE(desk.selectedTab(), Tasks + 1);
}

void KeyboardAloneTest::task_isAddedTickedOffAndDeleted()
{
    const OpenDesk desk;
    desk.showTab(Tasks);
    desk.type(u"By hand"_s);
    desk.key(u"Return"_s);
    QTRY_COMPARE(desk.savedTasks().value(0), u"By hand"_s);
    const auto count = desk.savedTasks().size();

    desk.keys({u"Tab"_s, u"Tab"_s, u"Tab"_s, u"Home"_s}); // Past the client and the filters.
    desk.key(u"space"_s);
    QTRY_VERIFY(desk.saved(u"tasks"_s)[0]["done"_L1].toBool());
    desk.keys({u"End"_s, u"Delete"_s}); // The done one went to the end.

    QTRY_COMPARE(desk.savedTasks().size(), count - 1);
    QVERIFY(!desk.savedTasks().contains(u"By hand"_s));
}

void KeyboardAloneTest::client_isMadeAndItsTimerStartedAndStopped()
{
    const OpenDesk desk;
    desk.showTab(Clients);

    desk.keys({u"shift+Tab"_s, u"Return"_s}); // The button that adds.
    desk.type(u"Typed Ltd"_s);
    QTRY_COMPARE(desk.saved(u"clients"_s)[0]["name"_L1].toString(), u"Typed Ltd"_s);
    const auto entries = desk.saved(u"entries"_s).toArray().size();
    desk.keys({u"Tab"_s, u"Tab"_s, u"Tab"_s, u"Tab"_s, u"Tab"_s, u"space"_s}); // "Track time".
    QTRY_COMPARE(desk.saved(u"entries"_s).toArray().size(), entries + 1);
    desk.key(u"space"_s);

    QTRY_COMPARE(desk.saved(u"entries"_s).toArray().size(), entries); // Too short to be kept.
}

void KeyboardAloneTest::shortcut_isPressed()
{
    const OpenDesk desk;
    writeFile(desk.dataFolder() + u"/shortcuts.json"_s,
              R"({"groups": [{"title": "Mine", "buttons": [
        {"name": "Root", "url": "/"}, {"name": "Programs", "url": "/usr/bin"}]}]})");

    desk.showTab(Links);
    desk.keys({u"Right"_s, u"Return"_s});

    QTRY_COMPARE(desk.recorder.openedLast(), u"/usr/bin"_s);
}

void KeyboardAloneTest::menu_opensByItsKeyAndEscapeLeavesIt()
{
    const OpenDesk desk;
    const auto before = desk.picture();

    desk.key(u"Menu"_s);
    QTRY_VERIFY(desk.picture() != before);
    desk.key(u"ctrl+4"_s); // Nothing happens behind the menu.
    desk.key(u"Escape"_s);

    QTRY_COMPARE(desk.selectedTab(), 0);
    QVERIFY(desk.isExpanded());
    desk.keys({u"Menu"_s, u"End"_s, u"Return"_s});
    QVERIFY(desk.quib->waitForFinished(10'000)); // The last line quits.
}

void KeyboardAloneTest::unpinned_givesTheKeyboardBack()
{
    OpenDesk desk;
    desk.showTab(Tasks);
    desk.type(u"half a word"_s);

    desk.keys({u"Escape"_s, u"Escape"_s}); // To its tab; pinned it stays.
    QVERIFY(desk.isExpanded());
    desk.keys({u"Tab"_s, u"space"_s}); // The pin.
    QVERIFY(desk.waitForExpanded(false));
    desk.heard.forget();
    desk.key(u"x"_s);
    QTRY_COMPARE(desk.heard.count("KeyPress event"), 1);
    desk.open();
    desk.keys({u"End"_s, u"Return"_s});

    QTRY_COMPARE(desk.savedTasks().value(0), u"half a word"_s);
}

/// Where the pointer, and no pin, holds it open.
void KeyboardAloneTest::escape_leavesTheFieldThenTheCard()
{
    Desk desk;
    auto listener = desk.startListener();
    Output heard(*listener);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    static_cast<Desk&>(desk).showTab(Tasks);
    desk.click(Desk::TaskField);
    desk.type(u"abc"_s);

    desk.key(u"Escape"_s);
    QVERIFY(desk.isExpanded());
    desk.key(u"Escape"_s);
    QVERIFY(desk.waitForExpanded(false));
    heard.forget();
    desk.key(u"x"_s);

    QTRY_COMPARE(heard.count("KeyPress event"), 1);
    desk.moveTo(Desk::Notch); // Resting there opens it.
    QVERIFY(desk.waitForExpanded(true));
}

QTEST_GUILESS_MAIN(KeyboardAloneTest)
#include "tst_keyboardalone.moc"
