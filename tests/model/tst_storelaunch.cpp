#include "support/storefixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class StoreLaunchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addLaunchItem_goesToTheEnd();
    void removeLaunchItem_removesAllOfThatId();
    void removeLaunchItem_unknownId_saysNothing();
};

void StoreLaunchTest::addLaunchItem_goesToTheEnd()
{
    StoreFixture f;
    f.startWith({.launch = {{.id = idOf(1), .name = u"Mail"_s}}});

    f.store.addLaunchItem({.id = idOf(2), .name = u"Shop"_s, .target = u"shop.example"_s});

    QCOMPARE(f.store.data().launch.size(), 2);
    QCOMPARE(f.store.data().launch.back().target, u"shop.example"_s);
    QCOMPARE(f.announced(), u"launch"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreLaunchTest::removeLaunchItem_removesAllOfThatId()
{
    StoreFixture f;
    f.startWith({.launch = {{.id = idOf(1)}, {.id = idOf(2)}, {.id = idOf(1)}}});

    f.store.removeLaunchItem(idOf(1));

    QCOMPARE(f.store.data().launch.size(), 1);
    QCOMPARE(f.store.data().launch.front().id, idOf(2));
    QCOMPARE(f.announced(), u"launch"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreLaunchTest::removeLaunchItem_unknownId_saysNothing()
{
    StoreFixture f;
    f.startWith({.launch = {{.id = idOf(1)}}});

    f.store.removeLaunchItem(idOf(2));

    QCOMPARE(f.store.data().launch.size(), 1);
    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

QTEST_GUILESS_MAIN(StoreLaunchTest)
#include "tst_storelaunch.moc"
