#include "integrations/media/mediacontroller.h"
#include "platform/linux/base/connectedbus.h"
#include "platform/linux/media/fakeplayer.h"
#include "platform/linux/media/mprisplayerlink.h"
#include "support/fakes/handclock.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace quib;

namespace {

const auto PlayerPath = u"/org/mpris/MediaPlayer2"_s;

/// Hears every call that anyone makes to any player.
class BusMonitor {
public:
    /// Of the calls made through that connection it knows when all are heard.
    explicit BusMonitor(QDBusConnection connection)
        : m_connection(std::move(connection))
    {
    }

    ~BusMonitor()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    bool start()
    {
        m_process.start(
            u"dbus-monitor"_s,
            {u"--session"_s, u"--profile"_s, u"type='method_call',path='%1'"_s.arg(PlayerPath)});
        return QTest::qWaitFor([this] { return hearsProbe(); });
    }

    /// Methods called since the last question, in order. Whatever was sent before is in it.
    QStringList calls()
    {
        return QTest::qWaitFor([this] { return hearsProbe(); }) ? std::exchange(m_calls, {})
                                                                : QStringList(u"(deaf)"_s);
    }

private:
    /// What goes through one connection arrives in its order, so a call of our own ends what was
    /// sent before.
    bool hearsProbe()
    {
        const auto probe = u"Probe%1"_s.arg(++m_probes);
        m_connection.send(
            QDBusMessage::createMethodCall(m_connection.baseService(), PlayerPath, {}, probe));
        while (m_process.canReadLine() || m_process.waitForReadyRead(PatienceMs)) {
            const auto method = methodOf(m_process.readLine().trimmed().split('\t'));
            if (method == probe) {
                return true;
            }
            if (!method.isEmpty() && !method.startsWith(u"Probe"_s)) {
                m_calls << method;
            }
        }
        return false;
    }

    /// Of a line about a call to a player; the monitor tells of itself too.
    static QString methodOf(const QByteArrayList& fields)
    {
        const bool isCall = fields.value(0) == "mc" && fields.value(5) == PlayerPath.toUtf8();
        return isCall ? QString::fromUtf8(fields.last()) : QString();
    }

    static constexpr int PatienceMs = 500; ///< With a monitor that does not listen yet.

    QDBusConnection m_connection;
    int m_probes = 0;
    QProcess m_process;
    QStringList m_calls;
};

} // namespace

/// A controller with its link and a bus, in time turned by hand.
class MprisTrafficTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void collapsed_noPlayerIsCalled();
    void polling_oneQuestionAtOnceAndEveryTwoSeconds();
    void stopped_noPlayerIsCalled();
    void firstPoll_beforeThePlayersAreNamed_isRepeated();
    void command_thenOneQuestion();
    void noPlayer_nobodyIsCalled();

private:
    std::unique_ptr<BusMonitor> m_monitor;
    std::unique_ptr<FakePlayer> m_player;
    std::unique_ptr<HandClock> m_time;
    std::unique_ptr<MprisPlayerLink> m_link;
    std::unique_ptr<MediaController> m_media;
};

void MprisTrafficTest::init()
{
    m_player = std::make_unique<FakePlayer>(u"example"_s);
    QVERIFY(m_player->start());
    const auto bus = connectedBus();
    m_monitor = std::make_unique<BusMonitor>(bus->connection());
    QVERIFY(m_monitor->start());
    m_time = std::make_unique<HandClock>();
    m_link = std::make_unique<MprisPlayerLink>(bus);
    m_media = std::make_unique<MediaController>(*m_link, m_time->scheduler());
}

void MprisTrafficTest::cleanup()
{
    m_media.reset();
    m_link.reset();
    m_monitor.reset();
    m_player.reset();
}

void MprisTrafficTest::collapsed_noPlayerIsCalled()
{
    QTRY_VERIFY(m_link->isRunning(Player::Music));

    m_time->advance(1h);

    QCOMPARE(m_monitor->calls(), QStringList());
}

void MprisTrafficTest::polling_oneQuestionAtOnceAndEveryTwoSeconds()
{
    QTRY_VERIFY(m_link->isRunning(Player::Music));

    m_media->startPolling();
    QCOMPARE(m_monitor->calls(), QStringList(u"GetAll"_s));
    QTRY_COMPARE(m_media->title(), u"So What"_s);
    for (const auto& title : {u"Blue in Green"_s, u"All Blues"_s, u"Flamenco Sketches"_s}) {
        m_player->setTitle(title);
        m_time->advance(1999ms);
        QCOMPARE(m_monitor->calls(), QStringList());
        m_time->advance(1ms);
        QCOMPARE(m_monitor->calls(), QStringList(u"GetAll"_s));
        QTRY_COMPARE(m_media->title(), title);
    }
}

void MprisTrafficTest::stopped_noPlayerIsCalled()
{
    QTRY_VERIFY(m_link->isRunning(Player::Music));
    m_media->startPolling();
    QTRY_VERIFY(m_media->hasTrack());
    QCOMPARE(m_monitor->calls(), QStringList(u"GetAll"_s));

    m_media->stopPolling();
    m_time->advance(1h);

    QCOMPARE(m_monitor->calls(), QStringList());
    QVERIFY(m_media->hasTrack());
}

void MprisTrafficTest::firstPoll_beforeThePlayersAreNamed_isRepeated()
{
    m_media->startPolling();
    QVERIFY(!m_media->activePlayer());

    QTRY_VERIFY(m_media->hasTrack());

    QCOMPARE(m_monitor->calls(), QStringList(u"GetAll"_s));
}

void MprisTrafficTest::command_thenOneQuestion()
{
    QTRY_VERIFY(m_link->isRunning(Player::Music));

    m_media->command(u"next track"_s);
    QCOMPARE(m_monitor->calls(), QStringList(u"Next"_s));
    m_time->advance(249ms);
    QCOMPARE(m_monitor->calls(), QStringList());
    m_time->advance(1h);

    QCOMPARE(m_monitor->calls(), QStringList(u"GetAll"_s));
}

void MprisTrafficTest::noPlayer_nobodyIsCalled()
{
    QTRY_VERIFY(m_link->isRunning(Player::Music));
    m_player.reset();
    QTRY_VERIFY(!m_link->isRunning(Player::Music));

    m_media->startPolling();
    m_time->advance(10s);

    QCOMPARE(m_monitor->calls(), QStringList());
}

QTEST_GUILESS_MAIN(MprisTrafficTest)
#include "tst_mpristraffic.moc"
