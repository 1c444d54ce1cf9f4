#include "desktop/wayland/waylanddesk.h"

#include <QTest>

using namespace Qt::StringLiterals;

using Kind = WaylandDesk::Kind;

namespace {

/// Typed again and again: it has the keyboard a moment before the panel has given it back.
bool keysReach(const WaylandDesk& desk, Output& heard)
{
    const auto before = heard.count("key z");
    return waitFor("keys in the native window", [&] {
        desk.type(u"z"_s);
        return WaylandDesk::hasKeyboard(heard) && heard.count("key z") > before;
    });
}

} // namespace

/// The panel has the keyboard exactly while a text is written in it.
class WaylandKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tasksInARow_areSavedAndNoKeyGoesElsewhere_data() { addCompositors(); }
    void tasksInARow_areSavedAndNoKeyGoesElsewhere();
    void keyboard_isTakenAgainAndAgain_data() { addCompositors(); }
    void keyboard_isTakenAgainAndAgain();
    void plainButtons_leaveTheKeyboardWhereItWas_data() { addCompositors(); }
    void plainButtons_leaveTheKeyboardWhereItWas();
};

void WaylandKeyboardTest::tasksInARow_areSavedAndNoKeyGoesElsewhere()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(3);
    QVERIFY(desk.pressField(WaylandDesk::TaskField, heard));

    QStringList tasks;
    for (int number = 0; number < 10; ++number) {
        tasks.prepend(u"task "_s + QString::number(number));
        desk.type(tasks.constFirst());
        desk.key(u"Return"_s);
    }

    QTRY_COMPARE(desk.savedTasks().mid(0, 10), tasks);
    QCOMPARE(heard.count("key"), 0);
}

void WaylandKeyboardTest::keyboard_isTakenAgainAndAgain()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(3);

    for (const auto& task : {u"first"_s, u"second"_s, u"third"_s}) {
        desk.openWithPointer();
        QVERIFY(desk.pressField(WaylandDesk::TaskField, heard));
        const auto before = heard.count("key");
        desk.type(task);
        desk.key(u"Return"_s);
        QTRY_COMPARE(desk.savedTasks().value(0), task);
        QCOMPARE(heard.count("key"), before);

        desk.moveTo(WaylandDesk::FarAway);
        QVERIFY(desk.waitForExpanded(false));
        QVERIFY(keysReach(desk, heard));
    }
}

void WaylandKeyboardTest::plainButtons_leaveTheKeyboardWhereItWas()
{
    QFETCH(const Kind, kind);
    WaylandDesk desk({.kind = kind});
    SKIP_UNLESS_UP(desk);
    const auto window = desk.startWindow();
    Output heard(*window);
    const auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(1);
    desk.showTab(0);

    desk.moveTo(WaylandDesk::FarAway);
    QVERIFY(desk.waitForExpanded(false));

    QVERIFY(keysReach(desk, heard));
}

QTEST_GUILESS_MAIN(WaylandKeyboardTest)
#include "tst_waylandkeyboard.moc"
