#include "support/panel/taskstab.h"

using namespace Qt::StringLiterals;

/// The to-do list for those who use no pointer.
class TasksKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TasksTab>(); }
    void cleanup() { m_tab.reset(); }

    void tabKey_goesThroughEverything();
    void arrows_walkTheRows();
    void rowsOutOfSight_areScrolledTo();
    void space_ticksOffAndStaysInItsPlace();
    void delete_goesOnToTheNextRow();
    void delete_heldDown_deletesOne();
    void lastRowDeleted_leavesTheKeysToTheField();
    void right_leadsToTheButtonOfTheRow();
    void arrows_chooseAFilter();
    void clearDone_leavesTheKeysToTheFilters();

private:
    void focusRow(int number) const
    {
        m_tab->part(number, u"tick"_s)->forceActiveFocus(Qt::TabFocusReason);
    }
    /// The title of the row with the focus.
    QString row() const;

    std::unique_ptr<TasksTab> m_tab;
};

QString TasksKeyboardTest::row() const
{
    const auto* item = m_tab->window->activeFocusItem();
    return item && m_tab->showsFocus() ? textOf(item->parentItem(), "title") : u"nothing"_s;
}

void TasksKeyboardTest::tabKey_goesThroughEverything()
{
    m_tab->workspace.task(u"a"_s, m_tab->workspace.client(u"Café"_s));
    m_tab->workspace.task(u"b"_s, {}, true);
    m_tab->settle();

    QStringList passed;
    for (int i = 0; i < 4; ++i) {
        m_tab->press(Qt::Key_Tab);
        passed << m_tab->focused();
    }

    QCOMPARE(passed, (QStringList{u"newClient"_s, u"allChip"_s, u"clearDone"_s, u"tick"_s}));
    m_tab->press(Qt::Key_Backtab);
    QCOMPARE(m_tab->focused(), u"clearDone"_s);
}

void TasksKeyboardTest::arrows_walkTheRows()
{
    for (const auto& title : {u"a"_s, u"b"_s, u"c"_s}) {
        m_tab->workspace.task(title);
    }
    focusRow(0);

    QStringList passed;
    for (const auto key :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Home, Qt::Key_End}) {
        m_tab->press(key);
        passed << row();
    }

    QCOMPARE(passed, (QStringList{u"a"_s, u"b"_s, u"c"_s, u"c"_s, u"a"_s, u"c"_s}));
}

void TasksKeyboardTest::rowsOutOfSight_areScrolledTo()
{
    for (int number = 0; number < 100; ++number) {
        m_tab->workspace.task(QString::number(number));
    }
    m_tab->settle();
    focusRow(0);

    for (const auto key : {Qt::Key_End, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_PageDown}) {
        m_tab->press(key);
        const auto place = inScene(m_tab->window->activeFocusItem()->parentItem());
        QVERIFY(m_tab->rect(u"list"_s).contains(place));
    }
    QVERIFY(row().toInt() > 2);
    QVERIFY(row().toInt() < 10);
}

void TasksKeyboardTest::space_ticksOffAndStaysInItsPlace()
{
    for (const auto& title : {u"a"_s, u"b"_s, u"c"_s}) {
        m_tab->workspace.task(title);
    }
    focusRow(0);

    m_tab->press(Qt::Key_Space);

    QVERIFY(m_tab->store().data().tasks[0].done);
    QCOMPARE(row(), u"b"_s);
}

void TasksKeyboardTest::delete_goesOnToTheNextRow()
{
    for (const auto& title : {u"a"_s, u"b"_s, u"c"_s}) {
        m_tab->workspace.task(title);
    }
    focusRow(1);

    m_tab->press(Qt::Key_Delete);
    QCOMPARE(row(), u"c"_s);
    m_tab->press(Qt::Key_Delete);
    QCOMPARE(row(), u"a"_s);

    QCOMPARE(m_tab->shownTitles(), QStringList{u"a"_s});
}

void TasksKeyboardTest::delete_heldDown_deletesOne()
{
    for (const auto& title : {u"a"_s, u"b"_s, u"c"_s}) {
        m_tab->workspace.task(title);
    }
    focusRow(0);

    m_tab->hold(Qt::Key_Delete);

    QCOMPARE(m_tab->shownTitles(), (QStringList{u"b"_s, u"c"_s}));
}

void TasksKeyboardTest::lastRowDeleted_leavesTheKeysToTheField()
{
    m_tab->workspace.task(u"a"_s);
    focusRow(0);

    m_tab->press(Qt::Key_Delete);

    QCOMPARE(m_tab->focused(), u"newTitle"_s);
}

void TasksKeyboardTest::right_leadsToTheButtonOfTheRow()
{
    m_tab->workspace.task(u"a"_s);
    m_tab->workspace.task(u"b"_s);
    focusRow(0);

    m_tab->press(Qt::Key_Right);
    QCOMPARE(m_tab->focused(), u"remove"_s);
    QVERIFY(m_tab->showsFocus());
    m_tab->press(Qt::Key_Left);
    QCOMPARE(m_tab->focused(), u"tick"_s);
    m_tab->press(Qt::Key_Right);
    m_tab->press(Qt::Key_Return);

    QCOMPARE(m_tab->shownTitles(), QStringList{u"b"_s});
    QCOMPARE(row(), u"b"_s);
    QCOMPARE(m_tab->focused(), u"tick"_s);
}

void TasksKeyboardTest::arrows_chooseAFilter()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    m_tab->workspace.task(u"a"_s, cafe);
    m_tab->workspace.task(u"b"_s, m_tab->workspace.client(u"Bloom"_s));
    m_tab->workspace.task(u"c"_s);
    m_tab->item(u"allChip"_s)->forceActiveFocus(Qt::TabFocusReason);

    QStringList shown;
    for (const auto key :
         {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Home}) {
        m_tab->press(key);
        shown << m_tab->shownTitles().join(QString())
                + (m_tab->showsFocus() ? u""_s : u" unseen"_s);
    }

    QCOMPARE(shown, (QStringList{u"abc"_s, u"a"_s, u"b"_s, u"b"_s, u"a"_s, u"abc"_s}));
    QCOMPARE(m_tab->focused(), u"allChip"_s);
}

void TasksKeyboardTest::clearDone_leavesTheKeysToTheFilters()
{
    m_tab->workspace.task(u"a"_s, {}, true);
    m_tab->item(u"clearDone"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_tab->press(Qt::Key_Return);

    QCOMPARE(m_tab->focused(), u"allChip"_s);
    QVERIFY(m_tab->showsFocus());
}

QTEST_MAIN(TasksKeyboardTest)
#include "tst_taskskeyboard.moc"
