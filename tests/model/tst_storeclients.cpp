#include "support/storefixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class StoreClientsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addClient_startsAsALeadAtTheStandardRate();
    void addClient_twice_putsTheSecondFirst();
    void deleteClient_removesEveryTwin();
    void deleteClient_unknownId_saysNothing();
    void deleteClient_keepsItsTasks();
    void client_withoutId_isAbsent();
    void client_idTwice_isTheFirst();
    void updateClient_replacesTheFirstOfThatId();
    void updateClient_equal_saysNothing();
    void updateClient_unknownId_changesNothing();
};

void StoreClientsTest::addClient_startsAsALeadAtTheStandardRate()
{
    StoreFixture f;

    const auto id = f.store.addClient();

    QCOMPARE(f.store.data().clients,
             (QList<quib::Client>{{.id = id, .name = u"New client"_s, .hourlyRate = 30}}));
    QCOMPARE(id.version(), QUuid::Random);
    QCOMPARE(f.announced(), u"clients"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreClientsTest::addClient_twice_putsTheSecondFirst()
{
    StoreFixture f;

    f.store.addClient();
    const auto second = f.store.addClient();

    QCOMPARE(f.store.data().clients.size(), 2);
    QCOMPARE(f.store.data().clients.front().id, second);
    QCOMPARE(f.store.data().clients.back().name, u"New client"_s);
}

void StoreClientsTest::deleteClient_removesEveryTwin()
{
    StoreFixture f;
    f.startWith({.clients = {{.id = idOf(1)}, {.id = idOf(2)}, {.id = idOf(1)}}});

    f.store.deleteClient(idOf(1));

    QCOMPARE(f.store.data().clients, (QList<quib::Client>{{.id = idOf(2)}}));
    QCOMPARE(f.announced(), u"clients"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreClientsTest::deleteClient_unknownId_saysNothing()
{
    StoreFixture f;
    f.startWith({.clients = {{.id = idOf(1)}}});

    f.store.deleteClient(idOf(2));

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreClientsTest::deleteClient_keepsItsTasks()
{
    StoreFixture f;
    f.startWith({.clients = {{.id = idOf(1)}},
                 .tasks = {{.id = idOf(2), .clientID = idOf(1)}},
                 .entries = {{.id = idOf(3), .clientID = idOf(1)}}});

    f.store.deleteClient(idOf(1));

    QCOMPARE(f.store.data().tasks.front().clientID, std::optional(idOf(1)));
    QCOMPARE(f.store.data().entries.front().clientID, std::optional(idOf(1)));
    QVERIFY(!f.store.client(idOf(1)));
}

void StoreClientsTest::client_withoutId_isAbsent()
{
    StoreFixture f;
    f.startWith({.clients = {{.id = QUuid()}}});

    QVERIFY(!f.store.client({}));
    QVERIFY(f.store.client(QUuid()));
}

void StoreClientsTest::client_idTwice_isTheFirst()
{
    StoreFixture f;
    f.startWith({.clients = {{.id = idOf(1), .name = u"first"_s}, {.id = idOf(1)}}});

    QCOMPARE(f.store.client(idOf(1))->name, u"first"_s);
}

void StoreClientsTest::updateClient_replacesTheFirstOfThatId()
{
    StoreFixture f;
    f.startWith({.clients = {{.id = idOf(2)}, {.id = idOf(1)}, {.id = idOf(1)}}});

    f.store.updateClient({.id = idOf(1), .name = u"Bloom"_s});

    QCOMPARE(f.store.data().clients,
             (QList<quib::Client>{
                 {.id = idOf(2)}, {.id = idOf(1), .name = u"Bloom"_s}, {.id = idOf(1)}}));
    QCOMPARE(f.announced(), u"clients"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreClientsTest::updateClient_equal_saysNothing()
{
    StoreFixture f;
    f.startWith({.clients = {{.id = idOf(1), .name = u"Bloom"_s}}});

    f.store.updateClient({.id = idOf(1), .name = u"Bloom"_s});

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreClientsTest::updateClient_unknownId_changesNothing()
{
    StoreFixture f;

    f.store.updateClient({.id = idOf(1), .name = u"Bloom"_s});

    QVERIFY(f.store.data().clients.isEmpty());
    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

QTEST_GUILESS_MAIN(StoreClientsTest)
#include "tst_storeclients.moc"
