#include "model/texts/nativepath.h"
#include "platform/linux/base/connectedbus.h"
#include "platform/linux/base/privatebus.h"
#include "platform/linux/instance/instancename.h"
#include "platform/linux/instance/linuxinstance.h"
#include "platform/linux/media/mprisplayerlink.h"
#include "platform/linux/session/portaldesktop.h"
#include "platform/linux/statusitem/statusfixture.h"
#include "platform/linux/statusitem/statusnotifier.h"
#include "platform/linux/statusitem/statuswatcher.h"
#include "support/playerreply.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QProcessEnvironment>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

/// A portal that wants less motion.
class FakePortal final : public QDBusVirtualObject {
public:
    bool start(QDBusConnection bus)
    {
        return bus.registerVirtualObject(u"/org/freedesktop/portal/desktop"_s, this)
            && bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        using Settings = QMap<QString, QVariantMap>;
        qDBusRegisterMetaType<Settings>();
        const Settings settings{{u"org.freedesktop.appearance"_s, {{u"reduced-motion"_s, 1U}}}};
        return bus.send(message.createReply(QVariant::fromValue(settings)));
    }
};

} // namespace

/// Each partner on a bus that was killed and has come back, in which nobody is who was there.
class BusReturnsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void players_areFoundAndFollowed();
    void players_ofTheLostBus_areGone();
    void statusItem_isRegisteredAnew();
    void statusItem_installedWithoutABus_isRegisteredOnceItComes();
    void portal_isAskedAnew();
    void instance_takesItsNameAnew();
    void instance_claimedWithoutABus_takesItsNameOnceItComes();

private:
    void bringBack();
    std::unique_ptr<QProcess> startPlayer(const QString& name) const;
    bool hasOwner(const QString& name) const;

    QTemporaryDir m_folder;
    std::unique_ptr<PrivateBus> m_private;
    std::shared_ptr<SessionBus> m_bus;
};

void BusReturnsTest::init()
{
    m_private = std::make_unique<PrivateBus>(QString::fromLatin1(QTest::currentTestFunction()));
    QVERIFY(m_private->start());
    m_bus = connectedBus(m_private->address());
    QTRY_VERIFY(m_bus->isConnected());
}

void BusReturnsTest::bringBack()
{
    m_private->die();
    QTRY_VERIFY(!m_bus->isConnected());
    QVERIFY(m_private->start());
    QTRY_VERIFY(m_bus->isConnected());
}

std::unique_ptr<QProcess> BusReturnsTest::startPlayer(const QString& name) const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_private->address());
    auto player = std::make_unique<QProcess>();
    player->setProcessEnvironment(environment);
    player->start(QStringLiteral(PLAYER_PROGRAM), {name});
    player->waitForReadyRead();
    return player;
}

bool BusReturnsTest::hasOwner(const QString& name) const
{
    return m_private->connection().interface()->isServiceRegistered(name);
}

void BusReturnsTest::players_areFoundAndFollowed()
{
    MprisPlayerLink link(m_bus);
    const QSignalSpy named(&link, &PlayerLink::playersNamed);
    QTRY_COMPARE(named.size(), 1);

    bringBack();
    QTRY_COMPARE(named.size(), 2);
    const auto player = startPlayer(u"spotify"_s);

    QTRY_VERIFY(link.isRunning(Player::Spotify));
    QCOMPARE(replyOf(link, Player::Spotify), u"So What||Miles Davis, Bill Evans||playing"_s);
    player->kill();
    player->waitForFinished();
    QTRY_VERIFY(!link.isRunning(Player::Spotify));
}

void BusReturnsTest::players_ofTheLostBus_areGone()
{
    const auto player = startPlayer(u"spotify"_s);
    MprisPlayerLink link(m_bus);
    QTRY_VERIFY(link.isRunning(Player::Spotify));

    bringBack();

    QVERIFY(!link.isRunning(Player::Spotify));
    player->kill();
    player->waitForFinished();
}

void BusReturnsTest::statusItem_isRegisteredAnew()
{
    StatusNotifier item(m_bus);
    item.install(squareIcon());

    bringBack();
    WatcherProcess watcher(m_private->address());
    const Host host(m_private->connection());

    const auto name = m_bus->connection().baseService();
    QTRY_COMPARE(watcher.registrations(name), 1);
    QTRY_VERIFY(item.isShown());
}

void BusReturnsTest::statusItem_installedWithoutABus_isRegisteredOnceItComes()
{
    m_private->die();
    QTRY_VERIFY(!m_bus->isConnected());
    StatusNotifier item(m_bus);
    item.install(squareIcon());

    QVERIFY(m_private->start());
    WatcherProcess watcher(m_private->address());

    QTRY_VERIFY(m_bus->isConnected());
    QTRY_COMPARE(watcher.registrations(m_bus->connection().baseService()), 1);
}

void BusReturnsTest::portal_isAskedAnew()
{
    const PortalDesktop desktop(m_bus);
    bringBack();
    QVERIFY(!desktop.isMotionReduced());

    FakePortal portal;
    QVERIFY(portal.start(m_private->connection()));

    QTRY_VERIFY(desktop.isMotionReduced());
}

void BusReturnsTest::instance_takesItsNameAnew()
{
    LinuxInstance instance(m_bus);
    QVERIFY(instance.claim(nativePath(m_folder.path())));
    const auto name = instanceName(nativePath(m_folder.path()));
    QVERIFY(hasOwner(name));

    bringBack();

    QTRY_VERIFY(hasOwner(name));
    const QSignalSpy activated(&instance, &SingleInstance::activated);
    auto call = QDBusMessage::createMethodCall(name, objectPath(name),
                                               u"org.freedesktop.Application"_s, u"Activate"_s);
    m_private->connection().send(call << QVariantMap());
    QTRY_COMPARE(activated.size(), 1);
}

void BusReturnsTest::instance_claimedWithoutABus_takesItsNameOnceItComes()
{
    m_private->die();
    QTRY_VERIFY(!m_bus->isConnected());
    LinuxInstance instance(m_bus);
    QVERIFY(instance.claim(nativePath(m_folder.path())));

    QVERIFY(m_private->start());

    QTRY_VERIFY(hasOwner(instanceName(nativePath(m_folder.path()))));
}

QTEST_GUILESS_MAIN(BusReturnsTest)
#include "tst_busreturns.moc"
