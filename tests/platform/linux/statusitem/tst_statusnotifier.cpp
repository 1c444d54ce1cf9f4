#include "platform/linux/base/connectedbus.h"
#include "platform/linux/base/privatebus.h"
#include "platform/linux/statusitem/itemonbus.h"
#include "platform/linux/statusitem/statuswatcher.h"

#include <QDBusConnectionInterface>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace quib;

class StatusNotifierTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void watcherIsThere_isTold();
    void watcherStartsLater_isTold();
    void watcherRestarts_isToldAgain();
    void watcherIsReplaced_theNewOneIsTold();
    void watcherHangs_nothingWaits();
    void watcherHangsForAWhile_isToldOnce();
    void isShown_untilTheAnswer_isFalse();
    void isShown_noWatcher_isFalse();
    void isShown_noHost_isFalse();
    void isShown_hostRegistersLater_isTrue();
    void isShown_oneOfTwoHostsLeaves_isTrue();
    void isShown_lastHostLeaves_isFalse();
    void isShown_watcherDies_isFalse();
    void isShown_busDies_isFalse();
    void noBus_nothingHappens();
    void destroyed_leavesTheBus();
};

void StatusNotifierTest::watcherIsThere_isTold()
{
    WatcherProcess watcher;

    const ItemOnBus item;

    QTRY_COMPARE(watcher.registrations(item.name()), 1);
}

void StatusNotifierTest::watcherStartsLater_isTold()
{
    const ItemOnBus item;
    item.finishReading();

    WatcherProcess watcher;

    QTRY_COMPARE(watcher.registrations(item.name()), 1);
}

void StatusNotifierTest::watcherRestarts_isToldAgain()
{
    const ItemOnBus item;
    {
        WatcherProcess watcher;
        QTRY_COMPARE(watcher.registrations(item.name()), 1);
    }

    WatcherProcess watcher;

    QTRY_COMPARE(watcher.registrations(item.name()), 1);
}

void StatusNotifierTest::watcherIsReplaced_theNewOneIsTold()
{
    const ItemOnBus item;
    WatcherProcess replaced;
    QTRY_COMPARE(replaced.registrations(item.name()), 1);

    WatcherProcess watcher;

    QTRY_COMPARE(watcher.registrations(item.name()), 1);
}

void StatusNotifierTest::watcherHangs_nothingWaits()
{
    const WatcherProcess watcher;
    watcher.hang();

    const ItemOnBus item;
    const auto reply = item.callMenu(u"GetLayout"_s, {0, -1, QStringList()});

    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
}

void StatusNotifierTest::watcherHangsForAWhile_isToldOnce()
{
    WatcherProcess watcher;
    const Host host(u"first"_s);
    watcher.hang();
    ItemOnBus item;
    item.finishReading();
    QVERIFY(!item->isShown());

    watcher.goOn();

    QTRY_VERIFY(item->isShown());
    QCOMPARE(watcher.registrations(item.name()), 1);
}

void StatusNotifierTest::isShown_untilTheAnswer_isFalse()
{
    const WatcherProcess watcher;
    const Host host(u"first"_s);

    ItemOnBus item;
    const QSignalSpy changes(item.get(), &StatusItem::isShownChanged);

    QVERIFY(!item->isShown());
    QTRY_VERIFY(item->isShown());
    QCOMPARE(changes.size(), 1);
}

void StatusNotifierTest::isShown_noWatcher_isFalse()
{
    ItemOnBus item;

    item.finishReading();

    QVERIFY(!item->isShown());
}

void StatusNotifierTest::isShown_noHost_isFalse()
{
    WatcherProcess watcher;

    ItemOnBus item;
    QTRY_COMPARE(watcher.questions(), 1);
    item.finishReading();

    QVERIFY(!item->isShown());
}

void StatusNotifierTest::isShown_hostRegistersLater_isTrue()
{
    WatcherProcess watcher;
    ItemOnBus item;
    QTRY_COMPARE(watcher.registrations(item.name()), 1);

    const Host host(u"first"_s);

    QTRY_VERIFY(item->isShown());
}

void StatusNotifierTest::isShown_oneOfTwoHostsLeaves_isTrue()
{
    WatcherProcess watcher;
    const Host host(u"first"_s);
    auto another = std::make_unique<Host>(u"second"_s);
    ItemOnBus item;
    QTRY_VERIFY(item->isShown());
    const QSignalSpy changes(item.get(), &StatusItem::isShownChanged);

    another.reset();
    QTRY_COMPARE(watcher.questions(), 2);
    item.finishReading();

    QCOMPARE(changes.size(), 0);
}

void StatusNotifierTest::isShown_lastHostLeaves_isFalse()
{
    const WatcherProcess watcher;
    auto host = std::make_unique<Host>(u"first"_s);
    ItemOnBus item;
    QTRY_VERIFY(item->isShown());

    host.reset();

    QTRY_VERIFY(!item->isShown());
}

void StatusNotifierTest::isShown_watcherDies_isFalse()
{
    WatcherProcess watcher;
    const Host host(u"first"_s);
    ItemOnBus item;
    QTRY_VERIFY(item->isShown());

    watcher.die();

    QTRY_VERIFY(!item->isShown());
}

void StatusNotifierTest::isShown_busDies_isFalse()
{
    PrivateBus bus(u"host of a bus that dies"_s);
    QVERIFY(bus.start());
    const WatcherProcess watcher(bus.address());
    const Host host(bus.connection());
    StatusNotifier item(connectedBus(bus.address()));
    item.install(squareIcon());
    QTRY_VERIFY(item.isShown());
    const QSignalSpy changes(&item, &StatusItem::isShownChanged);

    bus.die();

    QTRY_VERIFY(!item.isShown());
    QCOMPARE(changes.size(), 1);
}

void StatusNotifierTest::noBus_nothingHappens()
{
    StatusNotifier item{std::make_shared<SessionBus>(QString())};

    item.install(squareIcon());
    item.setMenu(quibMenu());
    item.setMenu(pinnedMenu());

    QVERIFY(!item.isShown());
}

void StatusNotifierTest::destroyed_leavesTheBus()
{
    auto item = std::make_unique<ItemOnBus>();
    const auto name = item->name();
    auto* bus = QDBusConnection::sessionBus().interface();
    QVERIFY(bus->isServiceRegistered(name));

    item.reset();

    QTRY_VERIFY(!bus->isServiceRegistered(name));
}

QTEST_MAIN(StatusNotifierTest)
#include "tst_statusnotifier.moc"
