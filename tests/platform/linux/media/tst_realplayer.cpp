#include "platform/linux/base/connectedbus.h"
#include "platform/linux/media/mprisplayerlink.h"
#include "support/playerreply.h"
#include "support/sendsignal.h"
#include "support/soundfile.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <vector>

using namespace Qt::StringLiterals;
using namespace quib;

/// A player as people have it, mpv, on a bus of its own.
class RealPlayerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void track_isReadFromTheFile();
    void playpause_pausesAndPlays();
    void next_playsTheNextFile();
    void previous_playsTheOneBefore();
    void nothingToPlay_isNoTrack();
    void quits_runsNoMore();
    void hung_givesNothingUntilItGoesOn();
    void two_theFirstIsKeptWhileItRuns();

private:
    QString makeFile(const QString& name, const QByteArray& title, const QByteArray& artist) const;
    /// Another player, with its files in order.
    qint64 play(const QStringList& files);
    QString reply() { return replyOf(*m_link, Player::Music); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::vector<std::unique_ptr<QProcess>> m_players;
    std::unique_ptr<MprisPlayerLink> m_link;
};

namespace {

const auto SoWhat = u"So What||Miles Davis||playing"_s;
const auto BlueInGreen = u"Blue in Green||Bill Evans||playing"_s;

/// Behind the name of a second player stands its process or something random.
bool isSecondOnTheBus()
{
    const QStringList names = QDBusConnection::sessionBus().interface()->registeredServiceNames();
    return !names.filter(u"org.mpris.MediaPlayer2.mpv.instance"_s).isEmpty();
}

} // namespace

void RealPlayerTest::init()
{
    QVERIFY2(QFile::exists(u"/usr/lib/mpv-mpris/mpris.so"_s), "mpv-mpris is not installed");
    m_folder = std::make_unique<QTemporaryDir>();
    m_link = std::make_unique<MprisPlayerLink>(connectedBus());
}

void RealPlayerTest::cleanup()
{
    for (const auto& player : m_players) {
        player->kill();
        player->waitForFinished();
    }
    m_players.clear();
    if (m_link) {
        QTRY_VERIFY(!m_link->isRunning(Player::Music));
    }
}

QString RealPlayerTest::makeFile(const QString& name, const QByteArray& title,
                                 const QByteArray& artist) const
{
    auto path = m_folder->filePath(name);
    writeSound(path, title, artist);
    return path;
}

qint64 RealPlayerTest::play(const QStringList& files)
{
    m_players.push_back(std::make_unique<QProcess>());
    auto& player = *m_players.back();
    player.start(u"mpv"_s,
                 QStringList{u"--no-config"_s, u"--ao=null"_s, u"--no-video"_s, u"--idle"_s,
                             u"--really-quiet"_s, u"--script=/usr/lib/mpv-mpris/mpris.so"_s}
                     + files);
    player.waitForStarted();
    return player.processId();
}

void RealPlayerTest::track_isReadFromTheFile()
{
    play({makeFile(u"1.wav"_s, "So What", "Miles Davis")});

    QTRY_COMPARE(reply(), SoWhat);
}

void RealPlayerTest::playpause_pausesAndPlays()
{
    play({makeFile(u"1.wav"_s, "So What", "Miles Davis")});
    QTRY_COMPARE(reply(), SoWhat);

    m_link->send(Player::Music, u"playpause"_s);
    QTRY_COMPARE(reply(), u"So What||Miles Davis||paused"_s);
    m_link->send(Player::Music, u"playpause"_s);

    QTRY_COMPARE(reply(), SoWhat);
}

void RealPlayerTest::next_playsTheNextFile()
{
    play({makeFile(u"1.wav"_s, "So What", "Miles Davis"),
          makeFile(u"2.wav"_s, "Blue in Green", "Bill Evans")});
    QTRY_COMPARE(reply(), SoWhat);

    m_link->send(Player::Music, u"next track"_s);

    QTRY_COMPARE(reply(), BlueInGreen);
}

void RealPlayerTest::previous_playsTheOneBefore()
{
    play({u"--playlist-start=1"_s, makeFile(u"1.wav"_s, "So What", "Miles Davis"),
          makeFile(u"2.wav"_s, "Blue in Green", "Bill Evans")});
    QTRY_COMPARE(reply(), BlueInGreen);

    m_link->send(Player::Music, u"previous track"_s);

    QTRY_COMPARE(reply(), SoWhat);
}

void RealPlayerTest::nothingToPlay_isNoTrack()
{
    play({makeFile(u"1.wav"_s, "So What", "Miles Davis")});
    QTRY_COMPARE(reply(), SoWhat);

    // Started without a file its plugin may miss that nothing plays, and never say so.
    QDBusConnection::sessionBus().send(QDBusMessage::createMethodCall(
        u"org.mpris.MediaPlayer2.mpv"_s, u"/org/mpris/MediaPlayer2"_s,
        u"org.mpris.MediaPlayer2.Player"_s, u"Stop"_s));

    QTRY_COMPARE(reply(), QString());
}

void RealPlayerTest::quits_runsNoMore()
{
    const auto pid = play({makeFile(u"1.wav"_s, "So What", "Miles Davis")});
    QTRY_COMPARE(reply(), SoWhat);

    sendSignal(pid, SIGTERM);

    QTRY_VERIFY(!m_link->isRunning(Player::Music));
    QCOMPARE(reply(), QString());
}

void RealPlayerTest::hung_givesNothingUntilItGoesOn()
{
    const auto pid = play({makeFile(u"1.wav"_s, "So What", "Miles Davis")});
    QTRY_COMPARE(reply(), SoWhat);

    sendSignal(pid, SIGSTOP);
    QCOMPARE(reply(), QString());
    QVERIFY(m_link->isRunning(Player::Music));
    sendSignal(pid, SIGCONT);

    QTRY_COMPARE(reply(), SoWhat);
}

void RealPlayerTest::two_theFirstIsKeptWhileItRuns()
{
    const auto first = play({makeFile(u"1.wav"_s, "So What", "Miles Davis")});
    QTRY_COMPARE(reply(), SoWhat);
    play({makeFile(u"2.wav"_s, "Blue in Green", "Bill Evans")});
    QTRY_VERIFY(isSecondOnTheBus());

    QCOMPARE(reply(), SoWhat);
    sendSignal(first, SIGKILL);

    QTRY_COMPARE(reply(), BlueInGreen);
}

QTEST_GUILESS_MAIN(RealPlayerTest)
#include "tst_realplayer.moc"
