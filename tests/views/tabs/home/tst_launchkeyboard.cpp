#include "support/panel/launchstrip.h"

using namespace Qt::StringLiterals;

/// Where the keyboard is in the quick-launch strip, and whether that shows.
class LaunchKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_strip = std::make_unique<LaunchStrip>(); }
    void cleanup() { m_strip.reset(); }

    void arrows_reachEveryItem();
    void tab_goesOnToTheTools();
    void ringsAndBadges_areNotCut();
    void keyThatRemoves_worksWhileEditing_data();
    void keyThatRemoves_worksWhileEditing();
    void removalsByKey_goOnWithTheNeighbour();
    void removalByPointer_goesOnWithoutARing();
    void endOfEditing_keepsTheFocusInSight_data();
    void endOfEditing_keepsTheFocusInSight();
    void returnAndEscape_showTheRing_data();
    void returnAndEscape_showTheRing();

private:
    std::unique_ptr<LaunchStrip> m_strip;
};

void LaunchKeyboardTest::arrows_reachEveryItem()
{
    m_strip->fill(40);
    m_strip->partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);

    for (int number = 1; number < 40; ++number) {
        m_strip->press(Qt::Key_Right);
        QCOMPARE(m_strip->focused(), u"Number %1"_s.arg(number));
        QVERIFY(m_strip->showsFocus());
        QVERIFY(m_strip->rect(u"items"_s).contains(inScene(m_strip->focusItem())));
    }
    m_strip->press(Qt::Key_Right);
    QCOMPARE(m_strip->focused(), u"Number 39"_s);
    for (int number = 38; number >= 0; --number) {
        m_strip->press(Qt::Key_Left);
        QCOMPARE(m_strip->focused(), u"Number %1"_s.arg(number));
        QVERIFY(m_strip->rect(u"items"_s).contains(inScene(m_strip->focusItem())));
    }
    m_strip->press(Qt::Key_End);
    QCOMPARE(m_strip->focused(), u"Number 39"_s);
    QVERIFY(m_strip->rect(u"items"_s).contains(inScene(m_strip->focusItem())));
    m_strip->press(Qt::Key_Home);
    QCOMPARE(m_strip->focused(), u"Number 0"_s);
    QVERIFY(m_strip->showsFocus());
}

void LaunchKeyboardTest::tab_goesOnToTheTools()
{
    m_strip->fill(40);
    m_strip->startEditing();
    m_strip->partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_strip->press(Qt::Key_End);

    for (const auto& name : {u"addApplication"_s, u"addLink"_s, u"edit"_s}) {
        m_strip->press(Qt::Key_Tab);
        QCOMPARE(m_strip->focused(), name);
    }
    for (const auto& name : {u"addLink"_s, u"addApplication"_s, u"Number 39"_s}) {
        m_strip->press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(m_strip->focused(), name);
        QVERIFY(m_strip->showsFocus());
    }
    m_strip->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(!m_strip->part(u"items"_s)->hasActiveFocus());
}

void LaunchKeyboardTest::ringsAndBadges_areNotCut()
{
    m_strip->fill(40);
    m_strip->startEditing();
    const auto strip = m_strip->rect(u"launchStrip"_s);
    QCOMPARE(inScene(m_strip->partOf(0, u"launch"_s)).left(), strip.left());

    m_strip->partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);
    for (const auto key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_End, Qt::Key_Left}) {
        m_strip->press(key);
        m_strip->settle();
        const auto ring = inScene(m_strip->focusItem()).adjusted(-2, -2, 2, 2);
        QVERIFY(m_strip->rect(u"items"_s).contains(ring));
        QVERIFY(m_strip->rect(u"items"_s)
                    .contains(
                        inScene(ShownPanel::find(m_strip->focusItem()->parentItem(), u"badge"_s))));
    }
}

void LaunchKeyboardTest::keyThatRemoves_worksWhileEditing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("editing");
    QTest::addColumn<int>("left");

    QTest::addRow("Delete") << int(Qt::Key_Delete) << true << 1;
    QTest::addRow("Backspace") << int(Qt::Key_Backspace) << true << 1;
    QTest::addRow("Delete, not editing") << int(Qt::Key_Delete) << false << 2;
    QTest::addRow("Backspace, not editing") << int(Qt::Key_Backspace) << false << 2;
}

void LaunchKeyboardTest::keyThatRemoves_worksWhileEditing()
{
    QFETCH(int, key);
    QFETCH(bool, editing);
    m_strip->fill(2);
    if (editing) {
        m_strip->startEditing();
    }
    m_strip->partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_strip->press(key);

    QTEST(int(m_strip->store().data().launch.size()), "left");
}

void LaunchKeyboardTest::removalsByKey_goOnWithTheNeighbour()
{
    m_strip->fill(4);
    m_strip->startEditing();
    m_strip->partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_strip->press(Qt::Key_Right);
    m_strip->press(Qt::Key_Right);

    for (const auto& next : {u"Number 3"_s, u"Number 1"_s, u"Number 0"_s, u"edit"_s}) {
        m_strip->press(Qt::Key_Delete);
        QCOMPARE(m_strip->focused(), next);
        QVERIFY(m_strip->showsFocus());
    }
    m_strip->press(Qt::Key_Delete);

    QVERIFY(m_strip->store().data().launch.isEmpty());
}

void LaunchKeyboardTest::removalByPointer_goesOnWithoutARing()
{
    m_strip->fill(2);
    m_strip->startEditing();
    m_strip->partOf(0, u"launch"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_strip->click(m_strip->partOf(0, u"remove"_s));

    QCOMPARE(m_strip->store().data().launch.size(), 1);
    QCOMPARE(m_strip->focused(), u"Number 1"_s);
    QVERIFY(!m_strip->showsFocus());
}

void LaunchKeyboardTest::endOfEditing_keepsTheFocusInSight_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::addRow("the name") << u"newName"_s << u"edit"_s;
    QTest::addRow("the address") << u"newURL"_s << u"edit"_s;
    QTest::addRow("adding an application") << u"addApplication"_s << u"edit"_s;
    QTest::addRow("adding a website") << u"addLink"_s << u"edit"_s;
    QTest::addRow("a badge") << u"remove"_s << u"Number 0"_s;
    QTest::addRow("an item") << u"launch"_s << u"Number 0"_s;
}

void LaunchKeyboardTest::endOfEditing_keepsTheFocusInSight()
{
    QFETCH(QString, before);
    m_strip->fill(1);
    m_strip->startAdding();
    m_strip->part(before)->forceActiveFocus(Qt::TabFocusReason);
    QVERIFY(m_strip->part(before)->hasActiveFocus());

    m_strip->endEditing();

    QVERIFY(!m_strip->part(u"linkFields"_s)->isVisible());
    QVERIFY(m_strip->focusItem()->isVisible());
    QTEST(m_strip->focused(), "after");
}

void LaunchKeyboardTest::returnAndEscape_showTheRing_data()
{
    QTest::addColumn<int>("key");

    QTest::addRow("Return") << int(Qt::Key_Return);
    QTest::addRow("Escape") << int(Qt::Key_Escape);
}

void LaunchKeyboardTest::returnAndEscape_showTheRing()
{
    QFETCH(int, key);
    m_strip->startAdding();
    m_strip->press(Qt::Key_Tab);
    m_strip->type(u"a.example"_s);

    m_strip->press(key);

    QVERIFY(!m_strip->part(u"linkFields"_s)->isVisible());
    QCOMPARE(m_strip->focused(), u"addLink"_s);
    QVERIFY(m_strip->showsFocus());
}

QTEST_MAIN(LaunchKeyboardTest)
#include "tst_launchkeyboard.moc"
