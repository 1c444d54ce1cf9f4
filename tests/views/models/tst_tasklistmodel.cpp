#include "views/models/tasklistmodel.h"

#include "support/valueof.h"
#include "support/workspace.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::TaskItem;
using quib::TaskListModel;

namespace {

QStringList titles(const TaskListModel& model)
{
    QStringList found;
    for (int row = 0; row < model.count(); ++row) {
        found << valueOf(model, row, "title").toString();
    }
    return found;
}

/// Tasks from words; a capital letter at the front means done.
QList<TaskItem> tasksOf(const QString& words)
{
    QList<TaskItem> tasks;
    for (const auto& word : words.split(u' ')) {
        tasks.append({.id = QUuid::createUuid(), .title = word, .done = word.front().isUpper()});
    }
    return tasks;
}

QString wordsOf(const QList<TaskItem>& tasks)
{
    QStringList words;
    for (const auto& task : tasks) {
        words << task.title;
    }
    return words.join(u' ');
}

} // namespace

class TaskListModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void visibleTasks_showsOpenOnesFirst_data();
    void visibleTasks_showsOpenOnesFirst();
    void filter_hidesTheTasksOfOthersAndOfNobody();
    void ticking_movesTheRowAndKeepsTheOthers();
    void row_namesItsClient();
    void row_ofADeletedClient_namesNobody();
    void renamedClient_touchesItsRowsOnly();
    void clearDoneTitle_countsTheWholeStore();
    void repeatedIds_deletedTogether_leaveNoGhostRow();
};

void TaskListModelTest::visibleTasks_showsOpenOnesFirst_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("visible");

    QTest::addRow("all open") << u"a b c"_s << u"a b c"_s;
    QTest::addRow("all done") << u"A B C"_s << u"A B C"_s;
    QTest::addRow("one done at the front") << u"A b c"_s << u"b c A"_s;
    QTest::addRow("one done in the middle") << u"a B c"_s << u"a c B"_s;
    QTest::addRow("in turns") << u"A b C d E"_s << u"b d A C E"_s;
}

void TaskListModelTest::visibleTasks_showsOpenOnesFirst()
{
    QFETCH(QString, stored);

    QTEST(wordsOf(quib::visibleTasks(tasksOf(stored), {})), "visible");
}

void TaskListModelTest::filter_hidesTheTasksOfOthersAndOfNobody()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Corner Café"_s);
    workspace.task(u"for the café"_s, cafe);
    workspace.task(u"for another"_s, workspace.client(u"Bloom Florist"_s));
    workspace.task(u"for nobody"_s);
    TaskListModel model;
    model.setStore(workspace.store.get());
    QCOMPARE(model.count(), 3);

    model.setFilter(cafe);

    QCOMPARE(titles(model), QStringList{u"for the café"_s});
}

void TaskListModelTest::ticking_movesTheRowAndKeepsTheOthers()
{
    Workspace workspace;
    const auto first = workspace.task(u"first"_s);
    workspace.task(u"second"_s);
    workspace.task(u"third"_s, {}, true);
    TaskListModel model;
    model.setStore(workspace.store.get());
    const QAbstractItemModelTester invariants(
        &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);

    workspace.store->toggleTask(first);

    QCOMPARE(titles(model), (QStringList{u"second"_s, u"first"_s, u"third"_s}));
    QCOMPARE(moved.count(), 1);
    QCOMPARE(removed.count() + reset.count(), 0);
}

void TaskListModelTest::row_namesItsClient()
{
    Workspace workspace;
    workspace.task(u"Call"_s, workspace.client(u"Corner Café"_s, quib::ClientStatus::Build));
    TaskListModel model;

    model.setStore(workspace.store.get());

    QCOMPARE(valueOf(model, 0, "clientName").toString(), u"Corner Café"_s);
    QCOMPARE(valueOf(model, 0, "clientStatus").toString(), u"build"_s);
}

void TaskListModelTest::row_ofADeletedClient_namesNobody()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Corner Café"_s);
    workspace.task(u"Call"_s, cafe);
    TaskListModel model;
    model.setStore(workspace.store.get());

    workspace.store->deleteClient(cafe);

    QCOMPARE(model.count(), 1);
    QCOMPARE(valueOf(model, 0, "clientStatus").toString(), QString());
}

void TaskListModelTest::renamedClient_touchesItsRowsOnly()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Café"_s);
    workspace.task(u"General"_s);
    workspace.task(u"Call"_s, cafe);
    TaskListModel model;
    model.setStore(workspace.store.get());
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    auto client = *workspace.store->client(cafe);
    client.name = u"Corner Café"_s;
    workspace.store->updateClient(client);

    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.front().front().toModelIndex().row(), 1);
}

void TaskListModelTest::clearDoneTitle_countsTheWholeStore()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Café"_s);
    const auto task = workspace.task(u"Call"_s);
    TaskListModel model;
    model.setStore(workspace.store.get());
    model.setFilter(cafe);
    QCOMPARE(model.clearDoneTitle(), QString());

    workspace.store->toggleTask(task);
    QCOMPARE(model.clearDoneTitle(), u"Clear 1 done"_s);

    workspace.task(u"Write"_s, cafe, true);
    QCOMPARE(model.clearDoneTitle(), u"Clear 2 done"_s);
}

void TaskListModelTest::repeatedIds_deletedTogether_leaveNoGhostRow()
{
    Workspace workspace;
    const auto id = workspace.task(u"twin"_s);
    workspace.task(u"other"_s);
    auto data = workspace.store->data();
    data.tasks.append(data.tasks.front());
    workspace.store->setData(data);
    TaskListModel model;
    model.setStore(workspace.store.get());
    QCOMPARE(model.count(), 3);

    workspace.store->toggleTask(id);
    QCOMPARE(titles(model), (QStringList{u"other"_s, u"twin"_s, u"twin"_s}));
    workspace.store->deleteTask(id);

    QCOMPARE(titles(model), QStringList{u"other"_s});
}

QTEST_GUILESS_MAIN(TaskListModelTest)
#include "tst_tasklistmodel.moc"
