#include "views/models/clientchoicemodel.h"

#include "support/valueof.h"
#include "support/workspace.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::ClientChoiceModel;

namespace {

/// The titles from the top, a dash for a separator and a star before what is checked.
QStringList entries(const ClientChoiceModel& model)
{
    QStringList found;
    for (int row = 0; row < model.count(); ++row) {
        if (valueOf(model, row, "separator").toBool()) {
            found << u"-"_s;
            continue;
        }
        const auto star = valueOf(model, row, "checked").toBool() ? u"*"_s : QString();
        found << star + valueOf(model, row, "title").toString();
    }
    return found;
}

} // namespace

class ClientChoiceModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entries_areThePlaceholderAndTheClients();
    void selection_isChecked();
    void goneClient_leavesThePlaceholderChecked();
    void clientAt_isNobodyForThePlaceholder();
    void newClient_addsOneRow();
    void hidden_followsNothingUntilItIsShown();
};

void ClientChoiceModelTest::entries_areThePlaceholderAndTheClients()
{
    Workspace workspace;
    workspace.client(u"Corner Café"_s);
    workspace.client(u"Bloom"_s);
    ClientChoiceModel model;
    model.setPlaceholder(u"No client"_s);

    model.setStore(workspace.store.get());

    QCOMPARE(entries(model), (QStringList{u"*No client"_s, u"-"_s, u"Corner Café"_s, u"Bloom"_s}));
}

void ClientChoiceModelTest::selection_isChecked()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Corner Café"_s);
    ClientChoiceModel model;
    model.setStore(workspace.store.get());

    model.setSelection(cafe);

    QCOMPARE(entries(model), (QStringList{QString(), u"-"_s, u"*Corner Café"_s}));
    QCOMPARE(model.selectedRow(), 2);
}

void ClientChoiceModelTest::goneClient_leavesThePlaceholderChecked()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Corner Café"_s);
    ClientChoiceModel model;
    model.setPlaceholder(u"No client"_s);
    model.setStore(workspace.store.get());
    model.setSelection(cafe);

    workspace.store->deleteClient(cafe);

    QCOMPARE(entries(model), (QStringList{u"*No client"_s, u"-"_s}));
    QCOMPARE(model.selectedRow(), 0);
}

void ClientChoiceModelTest::clientAt_isNobodyForThePlaceholder()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Corner Café"_s);
    ClientChoiceModel model;

    model.setStore(workspace.store.get());

    QCOMPARE(model.clientAt(0), quib::NoClient::id());
    QCOMPARE(model.clientAt(2), cafe);
    QCOMPARE(model.clientAt(7), quib::NoClient::id());
}

void ClientChoiceModelTest::newClient_addsOneRow()
{
    Workspace workspace;
    workspace.client(u"Corner Café"_s);
    ClientChoiceModel model;
    model.setStore(workspace.store.get());
    const QAbstractItemModelTester invariants(
        &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);

    workspace.store->addClient();

    QCOMPARE(inserted.count(), 1);
    QCOMPARE(reset.count(), 0);
}

void ClientChoiceModelTest::hidden_followsNothingUntilItIsShown()
{
    Workspace workspace;
    ClientChoiceModel model;
    model.setPlaceholder(u"No client"_s);
    model.setStore(workspace.store.get());
    model.setShown(false);

    const auto cafe = workspace.client(u"Café"_s);
    model.setSelection(cafe);
    QCOMPARE(entries(model), (QStringList{u"*No client"_s, u"-"_s}));
    model.setShown(true);

    QCOMPARE(entries(model), (QStringList{u"No client"_s, u"-"_s, u"*Café"_s}));
}

QTEST_GUILESS_MAIN(ClientChoiceModelTest)
#include "tst_clientchoicemodel.moc"
