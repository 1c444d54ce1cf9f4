#include "model/texts/nativepath.h"
#include "platform/linux/instance/instancename.h"
#include "platform/linux/instance/start.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <thread>

#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quib;

class LinuxInstanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void claim_first_isAlone_data();
    void claim_first_isAlone();
    void claim_second_activatesTheFirst_data();
    void claim_second_activatesTheFirst();
    void claim_otherFolder_isAloneToo_data();
    void claim_otherFolder_isAloneToo();
    void claim_afterACrash_isAlone_data();
    void claim_afterACrash_isAlone();
    void claim_firstHangs_isRefused_data();
    void claim_firstHangs_isRefused();
    void claim_secondHasNoBus_activatesTheFirst();
    void claim_busDiedMeanwhile_activatesTheFirst();
    void claim_noRuntimeFolder_activatesTheFirst();
    void claim_folderOfOthersInTheWay_isAlone();
    void claim_otherFolderForLocks_isSuperseded();
    void claim_firstHasOnlyJustBegun_isHeardByIt();

private:
    static void withAndWithoutBus();
    QString folder(const QString& name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_withBus;
    QProcessEnvironment m_withoutBus;
    QProcessEnvironment m_environment; ///< Of the row.
};

void LinuxInstanceTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_withBus = QProcessEnvironment::systemEnvironment();
    m_withBus.insert(u"XDG_RUNTIME_DIR"_s, m_folder->path());
    m_withBus.insert(u"XDG_DATA_HOME"_s, folder(u"data"_s));
    m_withoutBus = m_withBus;
    m_withoutBus.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    if (QTest::currentDataTag() != nullptr) {
        QFETCH(const bool, hasBus);
        m_environment = hasBus ? m_withBus : m_withoutBus;
    }
}

void LinuxInstanceTest::withAndWithoutBus()
{
    QTest::addColumn<bool>("hasBus");

    QTest::addRow("bus") << true;
    QTest::addRow("no bus") << false;
}

void LinuxInstanceTest::claim_first_isAlone_data()
{
    withAndWithoutBus();
}

void LinuxInstanceTest::claim_first_isAlone()
{
    const Start first(folder(u"work"_s), m_environment);

    QCOMPARE(first.answer(), u"alone"_s);
}

void LinuxInstanceTest::claim_second_activatesTheFirst_data()
{
    withAndWithoutBus();
}

void LinuxInstanceTest::claim_second_activatesTheFirst()
{
    Start first(folder(u"work"_s), m_environment);

    const Start second(folder(u"work"_s), m_environment);

    QCOMPARE(second.answer(), u"refused"_s);
    QTRY_COMPARE(first.activations(), 1);
}

void LinuxInstanceTest::claim_otherFolder_isAloneToo_data()
{
    withAndWithoutBus();
}

void LinuxInstanceTest::claim_otherFolder_isAloneToo()
{
    const Start own(folder(u"data/KorvelQuib"_s), m_environment);
    const Start first(folder(u"work"_s), m_environment);

    const Start other(folder(u"play"_s), m_environment);

    QCOMPARE(own.answer(), u"alone"_s);
    QCOMPARE(first.answer(), u"alone"_s);
    QCOMPARE(other.answer(), u"alone"_s);
}

void LinuxInstanceTest::claim_afterACrash_isAlone_data()
{
    withAndWithoutBus();
}

void LinuxInstanceTest::claim_afterACrash_isAlone()
{
    Start first(folder(u"work"_s), m_environment);
    first.crash();

    Start next(folder(u"work"_s), m_environment);
    const Start second(folder(u"work"_s), m_environment);

    QCOMPARE(next.answer(), u"alone"_s);
    QCOMPARE(second.answer(), u"refused"_s);
    QTRY_COMPARE(next.activations(), 1);
}

void LinuxInstanceTest::claim_firstHangs_isRefused_data()
{
    withAndWithoutBus();
}

void LinuxInstanceTest::claim_firstHangs_isRefused()
{
    const Start first(folder(u"work"_s), m_environment);
    first.hang();

    const Start second(folder(u"work"_s), m_environment);

    QCOMPARE(second.answer(), u"refused"_s);
}

void LinuxInstanceTest::claim_secondHasNoBus_activatesTheFirst()
{
    Start first(folder(u"work"_s), m_withBus);

    const Start second(folder(u"work"_s), m_withoutBus);

    QCOMPARE(second.answer(), u"refused"_s);
    QTRY_COMPARE(first.activations(), 1);
}

void LinuxInstanceTest::claim_busDiedMeanwhile_activatesTheFirst()
{
    QProcess bus;
    bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    QVERIFY(bus.waitForReadyRead());
    auto environment = m_withBus;
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromUtf8(bus.readLine()).trimmed());
    Start first(folder(u"work"_s), environment);
    bus.kill();
    bus.waitForFinished();

    const Start second(folder(u"work"_s), environment);

    QCOMPARE(first.answer(), u"alone"_s);
    QCOMPARE(second.answer(), u"refused"_s);
    QTRY_COMPARE(first.activations(), 1);
}

void LinuxInstanceTest::claim_noRuntimeFolder_activatesTheFirst()
{
    auto environment = m_withoutBus;
    environment.remove(u"XDG_RUNTIME_DIR"_s);
    environment.insert(u"TMPDIR"_s, m_folder->path());
    Start first(folder(u"work"_s), environment);

    const Start second(folder(u"work"_s), environment);

    QCOMPARE(second.answer(), u"refused"_s);
    QTRY_COMPARE(first.activations(), 1);
}

void LinuxInstanceTest::claim_folderOfOthersInTheWay_isAlone()
{
    auto environment = m_withoutBus;
    environment.remove(u"XDG_RUNTIME_DIR"_s);
    environment.insert(u"TMPDIR"_s, m_folder->path());
    const auto trap = folder(u"quib-%1"_s.arg(geteuid()));
    QVERIFY(QDir().mkpath(trap));
    QVERIFY(QFile::setPermissions(trap, QFile::Permissions(0x7777))); // Anyone can write there.

    const Start first(folder(u"work"_s), environment);

    QCOMPARE(first.answer(), u"alone"_s);
    QVERIFY(QDir(trap).isEmpty());
}

void LinuxInstanceTest::claim_otherFolderForLocks_isSuperseded()
{
    Start first(folder(u"work"_s), m_withBus);
    auto environment = m_withBus;
    environment.insert(u"XDG_RUNTIME_DIR"_s, folder(u"elsewhere"_s));
    QVERIFY(QDir().mkpath(folder(u"elsewhere"_s)));
    QVERIFY(QFile::setPermissions(folder(u"elsewhere"_s), QFile::Permissions(0x7000)));
    QTRY_VERIFY(isOnBus(lockName(nativePath(folder(u"work"_s)))));

    Start second(folder(u"work"_s), environment);

    QTRY_COMPARE(second.count("superseded"), 1);
    QTRY_COMPARE(first.activations(), 1);
    QCOMPARE(first.count("superseded"), 0);
}

/// The lock is taken before anybody listens.
void LinuxInstanceTest::claim_firstHasOnlyJustBegun_isHeardByIt()
{
    const auto name = folder(lockName(nativePath(folder(u"work"_s))));
    QFile lock(name + u".lock"_s);
    QVERIFY(lock.open(QIODevice::ReadWrite));
    QCOMPARE(::flock(lock.handle(), LOCK_EX | LOCK_NB), 0);
    int heard = -1;
    std::thread listener([&] {
        QThread::msleep(50); // Whoever comes later than this is heard at once.
        const int socket = ::socket(AF_UNIX, SOCK_DGRAM, 0);
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        qstrncpy(address.sun_path, QFile::encodeName(name + u".socket"_s).constData(),
                 sizeof address.sun_path);
        const timeval patience{.tv_sec = 5, .tv_usec = 0};
        ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        char knock = 0;
        if (::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
            heard = int(::recv(socket, &knock, 1, 0));
        }
        ::close(socket);
    });

    const Start second(folder(u"work"_s), m_withoutBus);
    listener.join();

    QCOMPARE(second.answer(), u"refused"_s);
    QCOMPARE(heard, 1);
}

QTEST_GUILESS_MAIN(LinuxInstanceTest)
#include "tst_linuxinstance.moc"
