#include "support/storefixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class StoreTasksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addTask_putsTheNewTaskFirst();
    void addTask_trimsTheTitle_data();
    void addTask_trimsTheTitle();
    void addTask_blankTitle_addsNothing();
    void toggleTask_twice_isAsBefore();
    void toggleTask_idTwice_flipsTheFirst();
    void toggleTask_unknownId_saysNothing();
    void deleteTask_idTwice_removesBoth();
    void clearDoneTasks_keepsTheOrderOfTheRest();
    void clearDoneTasks_nothingDone_saysNothing();
};

void StoreTasksTest::addTask_putsTheNewTaskFirst()
{
    StoreFixture f;
    f.startWith({.tasks = {{.id = idOf(1)}}});

    QVERIFY(f.store.addTask(u"Call Ann"_s, idOf(7)));

    const auto& task = f.store.data().tasks.front();
    QCOMPARE(task.title, u"Call Ann"_s);
    QCOMPARE(task.clientID, std::optional(idOf(7)));
    QCOMPARE(task.created, f.hands.now);
    QVERIFY(!task.done);
    QVERIFY(!task.id.isNull());
    QCOMPARE(f.announced(), u"tasks"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTasksTest::addTask_trimsTheTitle_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("title");

    QTest::addRow("blanks") << u"  Call Ann  "_s << u"Call Ann"_s;
    QTest::addRow("line breaks") << u"\r\nCall\nAnn\n"_s << u"Call\nAnn"_s;
    QTest::addRow("tabs and form feeds") << u"\t\v\fCall Ann\t"_s << u"Call Ann"_s;
    QTest::addRow("no-break spaces") << u"\u00A0Call\u00A0Ann\u202F"_s << u"Call\u00A0Ann"_s;
    QTest::addRow("ideographic spaces") << u"\u3000Call Ann\u3000"_s << u"Call Ann"_s;
    QTest::addRow("line and paragraph separators")
        << u"\u2028Call Ann\u2029\u0085"_s << u"Call Ann"_s;
    QTest::addRow("a zero width space is no space") << u"\u200BCall Ann"_s << u"\u200BCall Ann"_s;
}

void StoreTasksTest::addTask_trimsTheTitle()
{
    QFETCH(QString, typed);
    QFETCH(QString, title);
    StoreFixture f;

    f.store.addTask(typed, {});

    QCOMPARE(f.store.data().tasks.front().title, title);
}

void StoreTasksTest::addTask_blankTitle_addsNothing()
{
    StoreFixture f;

    QVERIFY(!f.store.addTask(u"  \n"_s, {}));

    QVERIFY(f.store.data().tasks.isEmpty());
    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTasksTest::toggleTask_twice_isAsBefore()
{
    StoreFixture f;
    f.startWith({.tasks = {{.id = idOf(1)}}});

    f.store.toggleTask(idOf(1));
    f.store.toggleTask(idOf(1));

    QVERIFY(!f.store.data().tasks.front().done);
    QCOMPARE(f.hands.scheduled, 2);
}

void StoreTasksTest::toggleTask_idTwice_flipsTheFirst()
{
    StoreFixture f;
    f.startWith({.tasks = {{.id = idOf(2)}, {.id = idOf(1)}, {.id = idOf(1)}}});

    f.store.toggleTask(idOf(1));

    QCOMPARE(
        f.store.data().tasks,
        (QList<quib::TaskItem>{{.id = idOf(2)}, {.id = idOf(1), .done = true}, {.id = idOf(1)}}));
    QCOMPARE(f.announced(), u"tasks"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTasksTest::toggleTask_unknownId_saysNothing()
{
    StoreFixture f;
    f.startWith({.tasks = {{.id = idOf(1)}}});

    f.store.toggleTask(idOf(2));

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTasksTest::deleteTask_idTwice_removesBoth()
{
    StoreFixture f;
    f.startWith({.tasks = {{.id = idOf(1)}, {.id = idOf(2)}, {.id = idOf(1)}}});

    f.store.deleteTask(idOf(1));

    QCOMPARE(f.store.data().tasks, (QList<quib::TaskItem>{{.id = idOf(2)}}));
    QCOMPARE(f.announced(), u"tasks"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTasksTest::clearDoneTasks_keepsTheOrderOfTheRest()
{
    StoreFixture f;
    f.startWith({.tasks = {{.id = idOf(1)},
                           {.id = idOf(2), .done = true},
                           {.id = idOf(3)},
                           {.id = idOf(4), .done = true}}});

    f.store.clearDoneTasks();

    QCOMPARE(f.store.data().tasks, (QList<quib::TaskItem>{{.id = idOf(1)}, {.id = idOf(3)}}));
    QCOMPARE(f.announced(), u"tasks"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTasksTest::clearDoneTasks_nothingDone_saysNothing()
{
    StoreFixture f;
    f.startWith({.tasks = {{.id = idOf(1)}}});

    f.store.clearDoneTasks();

    QCOMPARE(f.store.data().tasks.size(), 1);
    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

QTEST_GUILESS_MAIN(StoreTasksTest)
#include "tst_storetasks.moc"
