#include "support/panel/timetab.h"
#include "support/toldtext.h"

using namespace Qt::StringLiterals;

/// The time tab for those who use no pointer.
class TimeKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TimeTab>(); }
    void cleanup() { m_tab.reset(); }

    void tab_goesThroughEverything();
    void tab_whileATimerRuns_comesToStop();
    void keys_afterAStart_doNothing();
    void menu_keyThatOpensItHeldDown_choosesNothing_data();
    void menu_keyThatOpensItHeldDown_choosesNothing();
    void names_tellWhatIsThere();

private:
    QQuickItem* item(const QString& name) { return m_tab->item(name); }

    std::unique_ptr<TimeTab> m_tab;
};

void TimeKeyboardTest::tab_goesThroughEverything()
{
    QCOMPARE(m_tab->focused(), u"note"_s);
    QStringList visited;
    for (int i = 0; i < 3; ++i) {
        m_tab->press(Qt::Key_Tab);
        visited << m_tab->focused();
    }
    QCOMPARE(visited, (QStringList{u"start"_s, u"period"_s, u"export"_s}));

    for (int i = 0; i < 4; ++i) {
        m_tab->press(Qt::Key_Backtab);
    }
    QCOMPARE(m_tab->focused(), u"timerClient"_s);
}

void TimeKeyboardTest::tab_whileATimerRuns_comesToStop()
{
    m_tab->press(Qt::Key_Return);
    QVERIFY(m_tab->store().hasRunningEntry());

    m_tab->press(Qt::Key_Tab);
    QCOMPARE(m_tab->focused(), u"stop"_s);
    QVERIFY(item(u"stop"_s)->property("visualFocus").toBool());
    m_tab->press(Qt::Key_Tab);
    QCOMPARE(m_tab->focused(), u"period"_s);
    m_tab->press(Qt::Key_Backtab);
    m_tab->press(Qt::Key_Return);

    QVERIFY(!m_tab->store().hasRunningEntry());
    QCOMPARE(m_tab->focused(), u"note"_s);
}

void TimeKeyboardTest::keys_afterAStart_doNothing()
{
    m_tab->press(Qt::Key_Return);
    const auto started = m_tab->store().runningEntry();
    QVERIFY(started);

    m_tab->press(Qt::Key_Return); // A stray one would leave no trace of the timer.
    m_tab->press(Qt::Key_Space);
    m_tab->press(Qt::Key_X);

    QCOMPARE(m_tab->store().runningEntry(), started);
    QCOMPARE(m_tab->text(u"note"_s), QString());
}

void TimeKeyboardTest::menu_keyThatOpensItHeldDown_choosesNothing_data()
{
    QTest::addColumn<Qt::Key>("key");

    QTest::addRow("blank") << Qt::Key_Space;
    QTest::addRow("return") << Qt::Key_Return;
}

void TimeKeyboardTest::menu_keyThatOpensItHeldDown_choosesNothing()
{
    QFETCH(const Qt::Key, key);
    m_tab->client(u"Café"_s);
    m_tab->press(Qt::Key_Backtab);
    QCOMPARE(m_tab->focused(), u"timerClient"_s);

    m_tab->hold(key);
    m_tab->press(Qt::Key_Down);
    m_tab->press(Qt::Key_Return);

    QCOMPARE(toldOf(item(u"timerClient"_s)), u"Client: Café"_s);
}

void TimeKeyboardTest::names_tellWhatIsThere()
{
    m_tab->entry(3600, m_tab->client(u"Café"_s));

    QCOMPARE(QAccessible::queryAccessibleInterface(m_tab->row(0))->role(), QAccessible::ListItem);
    QCOMPARE(toldOf(m_tab->row(0)), u"Café"_s);
    QCOMPARE(toldOf(m_tab->part(0, u"duration"_s)), u"1h 0m"_s);
    QCOMPARE(toldOf(m_tab->part(0, u"digits"_s)), u"£35"_s);
    QCOMPARE(toldOf(item(u"list"_s)), u"Time per client"_s);
    QCOMPARE(toldOf(item(u"timerClient"_s)), u"Client: Choose client"_s);
    QCOMPARE(toldOf(item(u"start"_s)), u"Start"_s);
    QCOMPARE(toldOf(item(u"period"_s)), u"Period: This week"_s);
    QCOMPARE(toldOf(item(u"export"_s)), u"Export timesheet CSV to Downloads"_s);

    m_tab->running(3725);
    m_tab->clockBeat()->setClock(m_tab->hands.clock());
    QCOMPARE(toldOf(item(u"clock"_s)), u"1:02:05"_s);
    QCOMPARE(toldOf(item(u"stop"_s)), u"Stop"_s);
}

QTEST_MAIN(TimeKeyboardTest)
#include "tst_timekeyboard.moc"
