#include "platform/linux/base/privatebus.h"
#include "platform/linux/base/sessionbus.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace quib;

/// A bus that comes, goes and hangs.
class SessionBusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bus_isThereAtOnce();
    void killed_isTold();
    void killedAndBack_isConnectedAgain_data();
    void killedAndBack_isConnectedAgain();
    void comesLate_isConnected_data();
    void comesLate_isConnected();
    void hungAtTheStart_isConnectedOnceItGoesOn();
    void comesBackHung_isConnectedOnceItGoesOn();
    void hung_theEndDoesNotWait();
    void hungAndKilled_theNextOneIsConnected();
    void noAddress_isNeverConnected_data();
    void noAddress_isNeverConnected();
    void environment_namesTheBus();
    void environment_tellsOthersOfNoBusThatDoesNotAnswer();
    void promptBus_isShownToOthersUntilItIsReached();
    void promptBus_isReachedByWhoeverWaits();
    void look_tellsAPromptBusFromAHungOne();
    void pauses_growAndAreBounded();

private:
    void startHungBus();

    std::unique_ptr<PrivateBus> m_bus;
};

void SessionBusTest::init()
{
    m_bus = std::make_unique<PrivateBus>(QString::fromLatin1(QTest::currentTestFunction()));
}

void SessionBusTest::startHungBus()
{
    QVERIFY(m_bus->start());
    m_bus->hang();
}

void SessionBusTest::bus_isThereAtOnce()
{
    QVERIFY(m_bus->start());

    const SessionBus bus(m_bus->address());

    QTRY_VERIFY(bus.isConnected());
    QVERIFY(!bus.connection().baseService().isEmpty());
}

void SessionBusTest::killed_isTold()
{
    QVERIFY(m_bus->start());
    const SessionBus bus(m_bus->address());
    QTRY_VERIFY(bus.isConnected());
    const QSignalSpy lost(&bus, &SessionBus::lost);

    m_bus->die();

    QTRY_COMPARE(lost.size(), 1);
    QVERIFY(!bus.isConnected());
}

void SessionBusTest::killedAndBack_isConnectedAgain_data()
{
    QTest::addColumn<bool>("socketStays");
    QTest::addColumn<bool>("hasId");

    QTest::addRow("its socket is left behind") << true << false;
    QTest::addRow("its socket is gone too") << false << false;
    QTest::addRow("the address has the id of the first") << true << true;
}

void SessionBusTest::killedAndBack_isConnectedAgain()
{
    QFETCH(const bool, socketStays);
    QFETCH(const bool, hasId);
    QVERIFY(m_bus->start());
    const SessionBus bus(hasId ? m_bus->addressWithId() : m_bus->address());
    QTRY_VERIFY(bus.isConnected());
    QSignalSpy connected(&bus, &SessionBus::connected);
    for (int round = 1; round <= 3; ++round) {
        m_bus->die();
        QTRY_VERIFY(!bus.isConnected());
        QVERIFY(socketStays || QFile::remove(m_bus->socket()));

        QVERIFY(m_bus->start());

        QTRY_COMPARE(connected.size(), round);
        QVERIFY(bus.isConnected());
    }
}

void SessionBusTest::comesLate_isConnected_data()
{
    QTest::addColumn<bool>("hasFolder");

    QTest::addRow("where its socket can be seen to come") << true;
    QTest::addRow("where not even a folder is") << false;
}

void SessionBusTest::comesLate_isConnected()
{
    QFETCH(const bool, hasFolder);
    const auto folder = QFileInfo(m_bus->socket()).path();
    QVERIFY(hasFolder || QDir().rmdir(folder));
    const SessionBus bus(m_bus->address());
    QVERIFY(!bus.isConnected());

    QVERIFY(hasFolder || QDir().mkpath(folder));
    QVERIFY(m_bus->start());

    QTRY_VERIFY(bus.isConnected());
}

void SessionBusTest::hungAtTheStart_isConnectedOnceItGoesOn()
{
    startHungBus();

    const SessionBus bus(m_bus->address()); // Waits for ever where it waits at all.

    QVERIFY(!bus.isConnected());
    m_bus->goOn();
    QTRY_VERIFY(bus.isConnected());
}

void SessionBusTest::comesBackHung_isConnectedOnceItGoesOn()
{
    QVERIFY(m_bus->start());
    const SessionBus bus(m_bus->address());
    QTRY_VERIFY(bus.isConnected());
    m_bus->die();
    startHungBus();
    QTRY_VERIFY(!bus.isConnected());

    m_bus->goOn();

    QTRY_VERIFY(bus.isConnected());
}

void SessionBusTest::hung_theEndDoesNotWait()
{
    startHungBus();

    std::make_unique<SessionBus>(m_bus->address()).reset(); // Waits for ever where it waits at all.

    m_bus->goOn();
}

void SessionBusTest::hungAndKilled_theNextOneIsConnected()
{
    startHungBus();
    const SessionBus bus(m_bus->address());
    m_bus->die();

    QVERIFY(m_bus->start());

    QTRY_VERIFY(bus.isConnected());
}

void SessionBusTest::noAddress_isNeverConnected_data()
{
    QTest::addColumn<QString>("address");

    QTest::addRow("none") << QString();
    QTest::addRow("one that says so") << u"disabled:"_s;
    QTest::addRow("one that would start a bus") << u"autolaunch:"_s;
    QTest::addRow("one that means nothing") << u"somewhere"_s;
    QTest::addRow("one that starts a program") << u"unixexec:path=/bin/false"_s;
}

void SessionBusTest::noAddress_isNeverConnected()
{
    QFETCH(const QString, address);

    const SessionBus bus(address);

    QVERIFY(!bus.isConnected());
}

void SessionBusTest::environment_namesTheBus()
{
    QVERIFY(m_bus->start());
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", QFileInfo(m_bus->socket()).path().toUtf8());

    const SessionBus bus;

    QTRY_VERIFY(bus.isConnected());
}

/// Qt would wait for it without end.
void SessionBusTest::environment_tellsOthersOfNoBusThatDoesNotAnswer()
{
    startHungBus();
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->address().toUtf8());

    const SessionBus bus;

    QCOMPARE(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:"_ba);
    m_bus->goOn();
    QTRY_VERIFY(bus.isConnected());
    QCOMPARE(QString::fromUtf8(qgetenv("DBUS_SESSION_BUS_ADDRESS")), m_bus->address());
}

void SessionBusTest::promptBus_isShownToOthersUntilItIsReached()
{
    QVERIFY(m_bus->start());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->address().toUtf8());

    SessionBus bus(SessionBus::State::Prompt);

    QCOMPARE(QString::fromUtf8(qgetenv("DBUS_SESSION_BUS_ADDRESS")), m_bus->address());
    QVERIFY(!bus.isConnected());
    bus.reach();
    bus.reach(); // Under way.
    QCOMPARE(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:"_ba);
    QTRY_VERIFY(bus.isConnected());
    QCOMPARE(QString::fromUtf8(qgetenv("DBUS_SESSION_BUS_ADDRESS")), m_bus->address());
}

void SessionBusTest::promptBus_isReachedByWhoeverWaits()
{
    QVERIFY(m_bus->start());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->address().toUtf8());

    SessionBus bus(SessionBus::State::Prompt);

    QVERIFY(bus.wait(10s));
}

void SessionBusTest::look_tellsAPromptBusFromAHungOne()
{
    QVERIFY(m_bus->start());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->address().toUtf8());

    QTRY_VERIFY(lookAtSessionBus().isPrompt); // Unless this machine is busy.
    QVERIFY(lookAtSessionBus().isThere);
    m_bus->hang();

    QVERIFY(!lookAtSessionBus().isPrompt);
    QVERIFY(!lookAtSessionBus().isThere);
    m_bus->goOn();
}

void SessionBusTest::pauses_growAndAreBounded()
{
    QCOMPARE(pauseBeforeAttempt(0), 100ms);
    QCOMPARE(pauseBeforeAttempt(1), 200ms);
    QCOMPARE(pauseBeforeAttempt(5), 3200ms);
    QCOMPARE(pauseBeforeAttempt(8), 25'600ms);
    QCOMPARE(pauseBeforeAttempt(100'000), 25'600ms);
}

QTEST_GUILESS_MAIN(SessionBusTest)
#include "tst_sessionbus.moc"
