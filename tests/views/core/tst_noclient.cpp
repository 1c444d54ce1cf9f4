#include "views/core/noclient.h"

#include "support/workspace.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::NoClient;

namespace {

/// Starts a timer as a view does.
void begin(const Workspace& workspace, const QUuid& client)
{
    QQmlEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    QQmlComponent component(&engine);
    component.setData("import QtQml; import Quib.Core; QtObject {\n"
                      "required property Store store; required property var client\n"
                      "Component.onCompleted: store.startTimer(client, 'Call') }",
                      {});
    const std::unique_ptr<QObject> view(component.createWithInitialProperties(
        {{u"store"_s, QVariant::fromValue(workspace.store.get())}, {u"client"_s, client}}));
    QVERIFY2(view, qPrintable(component.errorString()));
}

} // namespace

/// Which client the store understands when views name one, or none.
class NoClientTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void timer_startsForAClientOrNobody();
    void timer_forADeletedClient_keepsItsId();
    void nullId_isAClientsLikeAnother();
};

void NoClientTest::timer_startsForAClientOrNobody()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Corner Café"_s);

    begin(workspace, cafe);
    QCOMPARE(workspace.store->runningEntry()->clientID, cafe);
    QCOMPARE(workspace.store->runningEntry()->note, u"Call"_s);
    begin(workspace, NoClient::id());

    QCOMPARE(workspace.store->runningEntry()->clientID, std::nullopt);
}

void NoClientTest::timer_forADeletedClient_keepsItsId()
{
    Workspace workspace;
    const auto cafe = workspace.client(u"Corner Café"_s);
    workspace.store->deleteClient(cafe);

    begin(workspace, cafe);

    QVERIFY(workspace.store->runningEntry());
    QCOMPARE(workspace.store->runningEntry()->clientID, cafe);
}

void NoClientTest::nullId_isAClientsLikeAnother()
{
    Workspace workspace;

    begin(workspace, QUuid());

    QVERIFY(workspace.store->runningEntry());
    QCOMPARE(workspace.store->runningEntry()->clientID, std::optional(QUuid()));
}

QTEST_MAIN(NoClientTest)
#include "tst_noclient.moc"
