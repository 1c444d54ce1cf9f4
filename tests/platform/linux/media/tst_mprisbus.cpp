#include "platform/linux/base/connectedbus.h"
#include "platform/linux/base/privatebus.h"
#include "platform/linux/media/mprisplayerlink.h"
#include "support/playerreply.h"

#include <QDBusConnectionInterface>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

const auto SpotifyName = u"org.mpris.MediaPlayer2.spotify"_s;

} // namespace

/// The bus itself starts players, and dies.
class MprisBusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void playerJustGone_isNotStartedAgain();
    void asking_startsNoPlayer();
    void busDies_weLiveOn();

private:
    void startPlayer();

    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<QProcess> m_player;
};

void MprisBusTest::init()
{
    m_bus = std::make_unique<PrivateBus>(QString::fromLatin1(QTest::currentTestFunction()));
    QVERIFY(m_bus->canStart(SpotifyName, QStringLiteral(PLAYER_PROGRAM) + u" spotify"_s));
    QVERIFY(m_bus->start());
    m_player = std::make_unique<QProcess>();
}

void MprisBusTest::cleanup()
{
    m_player->kill();
    m_player->waitForFinished();
    m_bus.reset();
}

void MprisBusTest::startPlayer()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus->address());
    m_player->setProcessEnvironment(environment);
    m_player->start(QStringLiteral(PLAYER_PROGRAM), {u"spotify"_s});
    QVERIFY(m_player->waitForReadyRead());
}

void MprisBusTest::playerJustGone_isNotStartedAgain()
{
    startPlayer();
    MprisPlayerLink link(connectedBus(m_bus->address()));
    QTRY_VERIFY(link.isRunning(Player::Spotify));

    m_player->kill();
    m_player->waitForFinished();
    QVERIFY(link.isRunning(Player::Spotify)); // The news has not come yet.
    link.send(Player::Spotify, u"playpause"_s);

    QCOMPARE(replyOf(link, Player::Spotify), QString());
    QVERIFY(!m_bus->connection().interface()->isServiceRegistered(SpotifyName));
}

void MprisBusTest::asking_startsNoPlayer()
{
    MprisPlayerLink link(connectedBus(m_bus->address()));

    QCOMPARE(replyOf(link, Player::Spotify), QString());
    link.send(Player::Spotify, u"playpause"_s);
    QCOMPARE(replyOf(link, Player::Spotify), QString());

    QVERIFY(!m_bus->connection().interface()->isServiceRegistered(SpotifyName));
}

void MprisBusTest::busDies_weLiveOn()
{
    startPlayer();
    MprisPlayerLink link(connectedBus(m_bus->address()));
    QTRY_VERIFY(link.isRunning(Player::Spotify));

    m_bus->die();
    link.send(Player::Spotify, u"playpause"_s);

    QCOMPARE(replyOf(link, Player::Spotify), QString());
    QCOMPARE(replyOf(link, Player::Spotify), QString());
}

QTEST_GUILESS_MAIN(MprisBusTest)
#include "tst_mprisbus.moc"
