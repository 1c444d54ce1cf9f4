#include "views/models/clientlistmodel.h"

#include "support/valueof.h"
#include "support/workspace.h"
#include "views/core/noclient.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::ClientListModel;

namespace {

QStringList names(const ClientListModel& model)
{
    QStringList found;
    for (int row = 0; row < model.count(); ++row) {
        found << valueOf(model, row, "name").toString();
    }
    return found;
}

} // namespace

class ClientListModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rows_areTheClientsInOrder();
    void withTasks_leavesOutWhoHasNone();
    void lastTaskGone_takesItsClientAway();
    void renamingAClient_touchesOneRow();
    void openTasks_areCountedPerClient();
    void taskTicked_touchesOneRow();
    void runningMark_isOfTheTimedClient();
    void heading_countsTheClients();
    void rows_areFoundByTheirClient();
    void repeatedIds_areAllShown();
    void rowBeside_data();
    void rowBeside();
    void storeGone_leavesNoRows();
};

void ClientListModelTest::rows_areTheClientsInOrder()
{
    Workspace workspace;
    const auto id = workspace.client(u"Corner Café"_s, quib::ClientStatus::Build);
    workspace.client(u"Bloom Florist"_s);
    ClientListModel model;

    model.setStore(workspace.store.get());

    QCOMPARE(names(model), (QStringList{u"Corner Café"_s, u"Bloom Florist"_s}));
    QCOMPARE(valueOf(model, 0, "clientID").toUuid(), id);
    QCOMPARE(valueOf(model, 0, "status").toString(), u"build"_s);
}

void ClientListModelTest::withTasks_leavesOutWhoHasNone()
{
    Workspace workspace;
    workspace.client(u"Idle"_s);
    const auto busy = workspace.client(u"Busy"_s);
    const auto finished = workspace.client(u"Finished"_s);
    workspace.task(u"First"_s, finished, true);
    workspace.task(u"Second"_s, busy);
    workspace.task(u"General"_s);
    ClientListModel model;
    model.setSelection(ClientListModel::Selection::WithTasks);

    model.setStore(workspace.store.get());

    QCOMPARE(names(model), (QStringList{u"Busy"_s, u"Finished"_s}));
}

void ClientListModelTest::lastTaskGone_takesItsClientAway()
{
    Workspace workspace;
    const auto task = workspace.task(u"Only one"_s, workspace.client(u"Busy"_s));
    ClientListModel model;
    model.setSelection(ClientListModel::Selection::WithTasks);
    model.setStore(workspace.store.get());

    workspace.store->deleteTask(task);

    QCOMPARE(names(model), QStringList());
}

void ClientListModelTest::renamingAClient_touchesOneRow()
{
    Workspace workspace;
    workspace.client(u"Corner Café"_s);
    const auto id = workspace.client(u"Bloom"_s);
    ClientListModel model;
    model.setStore(workspace.store.get());
    const QAbstractItemModelTester invariants(
        &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    auto client = *workspace.store->client(id);
    client.name = u"Bloom Florist"_s;
    workspace.store->updateClient(client);

    QCOMPARE(reset.count() + removed.count(), 0);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.front().front().toModelIndex().row(), 1);
    QCOMPARE(names(model), (QStringList{u"Corner Café"_s, u"Bloom Florist"_s}));
}

void ClientListModelTest::openTasks_areCountedPerClient()
{
    Workspace workspace;
    const auto busy = workspace.client(u"Busy"_s);
    const auto finished = workspace.client(u"Finished"_s);
    workspace.task(u"One"_s, busy);
    workspace.task(u"Two"_s, busy);
    workspace.task(u"Three"_s, busy);
    workspace.task(u"Four"_s, busy, true);
    workspace.task(u"Five"_s, busy, true);
    workspace.task(u"Six"_s, finished, true);
    workspace.task(u"General"_s);
    ClientListModel model;

    model.setStore(workspace.store.get());

    QCOMPARE(valueOf(model, 0, "openTasks").toInt(), 3);
    QCOMPARE(valueOf(model, 1, "openTasks").toInt(), 0);
}

void ClientListModelTest::taskTicked_touchesOneRow()
{
    Workspace workspace;
    workspace.client(u"Corner Café"_s);
    const auto task = workspace.task(u"Call"_s, workspace.client(u"Bloom"_s));
    ClientListModel model;
    model.setStore(workspace.store.get());
    const QAbstractItemModelTester invariants(
        &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    workspace.store->toggleTask(task);

    QCOMPARE(reset.count() + removed.count(), 0);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.front().front().toModelIndex().row(), 1);
    QCOMPARE(valueOf(model, 1, "openTasks").toInt(), 0);
}

void ClientListModelTest::runningMark_isOfTheTimedClient()
{
    Workspace workspace;
    workspace.client(u"Corner Café"_s);
    const auto bloom = workspace.client(u"Bloom"_s);
    ClientListModel model;
    model.setStore(workspace.store.get());
    const auto marks = [&] {
        return QList<bool>{valueOf(model, 0, "isTimed").toBool(),
                           valueOf(model, 1, "isTimed").toBool()};
    };

    workspace.store->startTimer(bloom, {});
    QCOMPARE(marks(), (QList<bool>{false, true}));
    workspace.store->startTimer(std::nullopt, {});
    QCOMPARE(marks(), (QList<bool>{false, false}));
    workspace.store->startTimer(bloom, {});
    workspace.store->stopTimer();

    QCOMPARE(marks(), (QList<bool>{false, false}));
}

void ClientListModelTest::heading_countsTheClients()
{
    Workspace workspace;
    ClientListModel model;
    model.setStore(workspace.store.get());
    const QSignalSpy changed(&model, &ClientListModel::countChanged);
    QCOMPARE(model.heading(), u"0 clients"_s);

    workspace.store->addClient();
    QCOMPARE(model.heading(), u"1 clients"_s);
    workspace.store->addClient();

    QCOMPARE(model.heading(), u"2 clients"_s);
    QCOMPARE(changed.count(), 2);
}

void ClientListModelTest::rows_areFoundByTheirClient()
{
    Workspace workspace;
    workspace.client(u"Corner Café"_s);
    const auto bloom = workspace.client(u"Bloom"_s);
    ClientListModel model;
    model.setStore(workspace.store.get());

    QCOMPARE(model.rowOf(bloom), 1);
    QCOMPARE(model.clientAt(1), bloom);
    QCOMPARE(model.rowOf(QUuid()), -1);
    QCOMPARE(model.clientAt(-1), quib::NoClient::id());
    QCOMPARE(model.clientAt(2), quib::NoClient::id());
}

void ClientListModelTest::repeatedIds_areAllShown()
{
    Workspace workspace;
    const auto id = workspace.client(u"First"_s);
    auto data = workspace.store->data();
    data.clients.append({.id = id, .name = u"Twin"_s});
    workspace.store->setData(data);
    ClientListModel model;

    model.setStore(workspace.store.get());

    QCOMPARE(names(model), (QStringList{u"First"_s, u"Twin"_s}));
}

void ClientListModelTest::rowBeside_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("by");
    QTest::addColumn<int>("found");

    QTest::addRow("down") << 0 << 1 << 1;
    QTest::addRow("down over a repeated one") << 1 << 1 << 4;
    QTest::addRow("up over a repeated one") << 4 << -1 << 1;
    QTest::addRow("down from the last") << 4 << 1 << 4;
    QTest::addRow("up from the first") << 0 << -1 << 0;
    QTest::addRow("a page") << 0 << 2 << 4;
    QTest::addRow("more than there are") << 0 << 5 << 4;
    QTest::addRow("down from none") << -1 << 1 << 0;
    QTest::addRow("up from none") << -1 << -1 << 0;
    QTest::addRow("to the end from none") << -1 << 5 << 4;
}

void ClientListModelTest::rowBeside()
{
    QFETCH(int, row);
    QFETCH(int, by);
    Workspace workspace;
    const auto first = workspace.client(u"First"_s);
    workspace.client(u"Second"_s);
    auto data = workspace.store->data();
    data.clients.append({.id = first, .name = u"Twin"_s});
    data.clients.append({.id = first, .name = u"Triplet"_s});
    workspace.store->setData(data);
    workspace.client(u"Last"_s);
    ClientListModel model;
    model.setStore(workspace.store.get());

    QTEST(model.rowBeside(row, by), "found");
}

void ClientListModelTest::storeGone_leavesNoRows()
{
    Workspace workspace;
    workspace.client(u"Corner Café"_s);
    ClientListModel model;
    model.setStore(workspace.store.get());

    model.setStore(nullptr);

    QCOMPARE(model.count(), 0);
}

QTEST_GUILESS_MAIN(ClientListModelTest)
#include "tst_clientlistmodel.moc"
