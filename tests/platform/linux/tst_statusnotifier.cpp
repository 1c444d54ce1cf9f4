#include "platform/linux/itemonbus.h"

#include <QDBusConnectionInterface>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <csignal>
#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

const auto WatcherName = u"org.kde.StatusNotifierWatcher"_s;

/// A watcher of status items, in a process that can hang and die.
class WatcherProcess {
public:
    WatcherProcess()
    {
        m_process.start(QStringLiteral(WATCHER_PROGRAM), QStringList());
        m_process.waitForReadyRead();
    }

    ~WatcherProcess() { die(); }
    WatcherProcess(const WatcherProcess&) = delete;
    WatcherProcess& operator=(const WatcherProcess&) = delete;

    void hang() const { kill(pid_t(m_process.processId()), SIGSTOP); }
    void goOn() const { kill(pid_t(m_process.processId()), SIGCONT); }

    void die()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    qsizetype questions() { return told("asked"); }

    qsizetype registrations(const QString& item) { return told("registered " + item.toLatin1()); }

private:
    qsizetype told(const QByteArray& line)
    {
        m_told += m_process.readAllStandardOutput();
        return m_told.split('\n').count(line);
    }

    QProcess m_process;
    QByteArray m_told;
};

/// A status bar, which shows what the watcher knows for as long as it lives.
class Host {
public:
    explicit Host(const QString& name)
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name))
    {
        auto message = QDBusMessage::createMethodCall(WatcherName, u"/StatusNotifierWatcher"_s,
                                                      WatcherName, u"RegisterStatusNotifierHost"_s);
        message << m_bus.baseService();
        m_bus.call(message);
    }

    ~Host() { QDBusConnection::disconnectFromBus(m_bus.name()); }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

private:
    QDBusConnection m_bus;
};

} // namespace

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

void StatusNotifierTest::noBus_nothingHappens()
{
    StatusNotifier item{QDBusConnection(u"none"_s)};

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
