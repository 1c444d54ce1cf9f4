#include "support/panel/hometab.h"

#include "views/motion/beat.h"

using namespace Qt::StringLiterals;
using quib::Tab;

/// The running timer and the first open tasks as their user meets them.
class FocusCardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<HomeTab>(); }
    void cleanup() { m_tab.reset(); }

    void timer_isShownAndStopped();
    void timerWithoutClient_saysSo();
    void timer_tellsHowLongItHasRun();
    void noTimer_leadsToTheTimeTab();
    void tasks_areTickedOff();
    void circle_doubleClicked_ticksOffOneTask();
    void circle_keyHeldDown_ticksOffOneTask_data();
    void circle_keyHeldDown_ticksOffOneTask();
    void noTasks_saysSo();

private:
    QQuickItem* part(const QString& name) { return m_tab->part(u"focusCard"_s, name); }
    QString text(const QString& name) { return m_tab->text(u"focusCard"_s, name); }
    void click(const QString& name) { m_tab->click(part(name)); }
    qsizetype tasksDone()
    {
        return std::ranges::count_if(m_tab->store().data().tasks, &quib::TaskItem::done);
    }
    QList<QQuickItem*> tasks() { return m_tab->rows(u"focusCard"_s, u"task"_s); }

    std::unique_ptr<HomeTab> m_tab;
};

void FocusCardTest::timer_isShownAndStopped()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    m_tab->store().startTimer(cafe, {});
    m_tab->settle();
    QCOMPARE(text(u"client"_s), u"Café"_s);
    QVERIFY(part(u"running"_s)->isVisible());
    QCOMPARE(textOf(part(u"stop"_s), "help"), u"Stop timer"_s);

    click(u"stop"_s);

    QVERIFY(!m_tab->store().hasRunningEntry());
    QVERIFY(part(u"start"_s)->isVisible());
}

void FocusCardTest::timerWithoutClient_saysSo()
{
    m_tab->store().startTimer({}, {});

    QCOMPARE(text(u"client"_s), u"No client"_s);
}

void FocusCardTest::timer_tellsHowLongItHasRun()
{
    m_tab->store().startTimer({}, {});
    m_tab->settle();
    auto now = m_tab->hands.now.addMSecs(3'725'995);
    part(u"elapsed"_s)->findChild<quib::Beat*>()->setClock([&now] { return now; });
    QCOMPARE(text(u"elapsed"_s), u"1:02:05"_s);

    now = now.addMSecs(5);

    QTRY_COMPARE(text(u"elapsed"_s), u"1:02:06"_s);
}

void FocusCardTest::noTimer_leadsToTheTimeTab()
{
    click(u"start"_s);

    QCOMPARE(m_tab->model.tab(), Tab::Time);
    QVERIFY(!m_tab->store().hasRunningEntry());
}

void FocusCardTest::tasks_areTickedOff()
{
    m_tab->addTasks({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    QCOMPARE(tasks().size(), 3);

    m_tab->click(ShownPanel::find(tasks().front(), u"tick"_s));

    QVERIFY(m_tab->store().data().tasks.front().done);
    QCOMPARE(tasks().size(), 3);
    QVERIFY(!part(u"nothing"_s)->isVisible());
}

void FocusCardTest::circle_doubleClicked_ticksOffOneTask()
{
    m_tab->addTasks({u"a"_s, u"b"_s, u"c"_s, u"d"_s});

    m_tab->doubleClick(ShownPanel::find(tasks().front(), u"tick"_s));

    QCOMPARE(tasksDone(), 1);
}

void FocusCardTest::circle_keyHeldDown_ticksOffOneTask_data()
{
    QTest::addColumn<Qt::Key>("key");

    QTest::addRow("blank") << Qt::Key_Space;
    QTest::addRow("return") << Qt::Key_Return;
    QTest::addRow("enter") << Qt::Key_Enter;
}

void FocusCardTest::circle_keyHeldDown_ticksOffOneTask()
{
    QFETCH(const Qt::Key, key);
    m_tab->addTasks({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    m_tab->takeKeyboard();
    ShownPanel::find(tasks().front(), u"tick"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_tab->hold(key);

    QCOMPARE(tasksDone(), 1);
}

void FocusCardTest::noTasks_saysSo()
{
    QVERIFY(part(u"nothing"_s)->isVisible());
    QCOMPARE(text(u"nothing"_s), u"No open tasks"_s);
}

QTEST_MAIN(FocusCardTest)
#include "tst_focuscard.moc"
