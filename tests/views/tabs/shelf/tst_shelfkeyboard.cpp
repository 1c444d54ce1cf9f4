#include "support/panel/shelftab.h"

using namespace Qt::StringLiterals;

/// The shelf by keys alone.
class ShelfKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shelf = std::make_unique<ShelfTab>();
        m_shelf->put({u"/c"_s, u"/b"_s, u"/a"_s});
        m_shelf->item(u"shelfList"_s)->forceActiveFocus(Qt::TabFocusReason);
    }
    void cleanup() { m_shelf.reset(); }

    void arrows_walkTheTiles();
    void tiles_areOneStopOfTab();
    void tilesOutOfSight_areScrolledTo();
    void return_opens();
    void return_heldDown_opensOnce();
    void delete_takesAwayAndGoesOnToTheNext();
    void delete_heldDown_takesAwayOne();
    void delete_ofTheLast_leavesTheKeyboardInTheTab();
    void menuKey_opensTheMenuOfTheTile_data();
    void menuKey_opensTheMenuOfTheTile();
    void menu_givesTheFocusBack();
    void ring_isForTheKeyboardOnly();
    void clear_byKey();

private:
    bool showsRing(int number) const { return m_shelf->part(number, u"ring"_s)->isVisible(); }

    std::unique_ptr<ShelfTab> m_shelf;
};

void ShelfKeyboardTest::arrows_walkTheTiles()
{
    QCOMPARE(m_shelf->focusedFile(), u"a"_s);
    for (const auto& [key, file] : {std::pair(Qt::Key_Right, u"b"_s),
                                    {Qt::Key_Right, u"c"_s},
                                    {Qt::Key_Right, u"c"_s},
                                    {Qt::Key_Left, u"b"_s},
                                    {Qt::Key_Home, u"a"_s},
                                    {Qt::Key_Left, u"a"_s},
                                    {Qt::Key_End, u"c"_s}}) {
        m_shelf->press(key);
        QCOMPARE(m_shelf->focusedFile(), file);
    }
}

void ShelfKeyboardTest::tiles_areOneStopOfTab()
{
    m_shelf->press(Qt::Key_Right);
    QCOMPARE(m_shelf->focusedFile(), u"b"_s);

    m_shelf->press(Qt::Key_Tab);
    QCOMPARE(m_shelf->focusedFile(), QString());

    m_shelf->press(Qt::Key_Backtab);
    QCOMPARE(m_shelf->focusedFile(), u"b"_s);

    m_shelf->press(Qt::Key_Backtab);
    QCOMPARE(m_shelf->focused(), u"clear"_s);
}

void ShelfKeyboardTest::tilesOutOfSight_areScrolledTo()
{
    m_shelf->fill(100);
    const auto isInSight = [this](int number) {
        return inScene(m_shelf->list()).contains(inScene(m_shelf->tile(number)));
    };

    m_shelf->item(u"shelfList"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_shelf->press(Qt::Key_End);
    QCOMPARE(m_shelf->focusedFile(), u"c"_s);
    QVERIFY(isInSight(102));

    for (int step = 0; step < 10; ++step) {
        m_shelf->press(Qt::Key_Left);
    }
    QVERIFY(isInSight(92));
}

void ShelfKeyboardTest::return_opens()
{
    m_shelf->press(Qt::Key_Return);
    m_shelf->press(Qt::Key_Right);
    m_shelf->press(Qt::Key_Enter);

    QCOMPARE(m_shelf->opener.asked, (QStringList{u"open /a"_s, u"open /b"_s}));
}

void ShelfKeyboardTest::return_heldDown_opensOnce()
{
    m_shelf->hold(Qt::Key_Return);

    QCOMPARE(m_shelf->opener.asked, QStringList{u"open /a"_s});
}

void ShelfKeyboardTest::delete_takesAwayAndGoesOnToTheNext()
{
    m_shelf->press(Qt::Key_Right);

    m_shelf->press(Qt::Key_Delete);
    QCOMPARE(m_shelf->paths(), (QStringList{u"/a"_s, u"/c"_s}));
    QCOMPARE(m_shelf->focusedFile(), u"c"_s);
    QVERIFY(showsRing(1));

    m_shelf->press(Qt::Key_Backspace);
    QCOMPARE(m_shelf->focusedFile(), u"a"_s);
}

void ShelfKeyboardTest::delete_heldDown_takesAwayOne()
{
    m_shelf->hold(Qt::Key_Delete);

    QCOMPARE(m_shelf->paths().size(), 2);
}

void ShelfKeyboardTest::delete_ofTheLast_leavesTheKeyboardInTheTab()
{
    for (int file = 0; file < 3; ++file) {
        m_shelf->press(Qt::Key_Delete);
    }
    QCOMPARE(m_shelf->paths(), QStringList());
    m_shelf->put({u"/new"_s});
    m_shelf->press(Qt::Key_Tab);

    QVERIFY(m_shelf->window->activeFocusItem()->isVisible());
}

void ShelfKeyboardTest::menuKey_opensTheMenuOfTheTile_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");

    QTest::addRow("Menu") << int(Qt::Key_Menu) << Qt::KeyboardModifiers();
    QTest::addRow("Shift+F10") << int(Qt::Key_F10) << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void ShelfKeyboardTest::menuKey_opensTheMenuOfTheTile()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    m_shelf->commands.inStatusBar = false; // Then the top bar listens to these keys too.
    Q_EMIT m_shelf->commands.isMenuInStatusBarChanged();
    m_shelf->press(Qt::Key_Right);

    m_shelf->press(key, modifiers);
    QTRY_VERIFY(m_shelf->menuRow(u"Show in Finder"_s));
    m_shelf->press(Qt::Key_Down);
    m_shelf->press(Qt::Key_Down);
    m_shelf->press(Qt::Key_Return);

    QCOMPARE(m_shelf->opener.asked, QStringList{u"reveal /b"_s});
}

void ShelfKeyboardTest::menu_givesTheFocusBack()
{
    m_shelf->press(Qt::Key_Right);
    m_shelf->press(Qt::Key_Menu);
    QTRY_VERIFY(m_shelf->menuRow(u"Open"_s));

    m_shelf->press(Qt::Key_Escape);

    QTRY_COMPARE(m_shelf->focusedFile(), u"b"_s);
    QVERIFY(showsRing(1));
    QVERIFY(m_shelf->model.isExpanded());
}

void ShelfKeyboardTest::ring_isForTheKeyboardOnly()
{
    QVERIFY(!showsRing(0));
    m_shelf->press(Qt::Key_Right);
    QVERIFY(showsRing(1));
    QVERIFY(!showsRing(0));

    m_shelf->click(m_shelf->tile(1));
    QVERIFY(!showsRing(1));
}

void ShelfKeyboardTest::clear_byKey()
{
    m_shelf->press(Qt::Key_Backtab);
    QCOMPARE(m_shelf->focused(), u"clear"_s);

    m_shelf->press(Qt::Key_Space);

    QCOMPARE(m_shelf->paths(), QStringList());
    m_shelf->put({u"/new"_s});
    m_shelf->press(Qt::Key_Return);
    QCOMPARE(m_shelf->opener.asked, QStringList{u"open /new"_s}); // And not cleared away again.
}

QTEST_MAIN(ShelfKeyboardTest)
#include "tst_shelfkeyboard.moc"
