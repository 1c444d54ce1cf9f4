#include "platform/linux/session/quitsignals.h"
#include "support/sendsignal.h"

#include <QProcess>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

/// An X server of this test's own, to be killed.
class Server {
public:
    Server()
    {
        m_process.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s});
        m_process.waitForReadyRead();
        m_display = u":"_s + QString::fromUtf8(m_process.readLine()).trimmed();
    }

    QString display() const { return m_display; }

    ~Server() { die(); }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    void die()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QString m_display;
};

} // namespace

class QuitSignalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void signal_endsTheProgramInOrder_data();
    void signal_endsTheProgramInOrder();
    void serverDies_theQuitIsStillAnnounced();
    void destroyed_theSignalsMeanWhatTheyMeantBefore();

private:
    void startProgram();
    QByteArray told();

    std::unique_ptr<Server> m_server;
    std::unique_ptr<QProcess> m_program;
};

void QuitSignalsTest::startProgram()
{
    m_server = std::make_unique<Server>();
    m_program = std::make_unique<QProcess>();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DISPLAY"_s, m_server->display());
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_program->setProcessEnvironment(environment);
    m_program->start(QStringLiteral(QUIT_PROGRAM), {});
    QVERIFY(m_program->waitForReadyRead());
    QCOMPARE(m_program->readLine(), "running\n");
}

QByteArray QuitSignalsTest::told()
{
    m_program->waitForFinished();
    return m_program->readAllStandardOutput();
}

void QuitSignalsTest::signal_endsTheProgramInOrder_data()
{
    QTest::addColumn<int>("signal");

    QTest::addRow("SIGTERM") << SIGTERM;
    QTest::addRow("SIGINT") << SIGINT;
    QTest::addRow("SIGHUP") << SIGHUP;
}

void QuitSignalsTest::signal_endsTheProgramInOrder()
{
    QFETCH(const int, signal);
    startProgram();

    sendSignal(m_program->processId(), signal);

    QCOMPARE(told(), "about to quit\nended\n");
    QCOMPARE(m_program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_program->exitCode(), 0);
}

void QuitSignalsTest::serverDies_theQuitIsStillAnnounced()
{
    startProgram();

    m_server->die();

    QVERIFY(told().startsWith("about to quit\n")); // Some versions of Qt end the loop in order.
    QCOMPARE(m_program->exitStatus(), QProcess::NormalExit);
}

void QuitSignalsTest::destroyed_theSignalsMeanWhatTheyMeantBefore()
{
    struct sigaction before { };
    sigaction(SIGTERM, nullptr, &before);

    {
        const QuitSignals quitSignals;
        struct sigaction during { };
        sigaction(SIGTERM, nullptr, &during);
        QVERIFY(during.sa_handler != before.sa_handler);
    }

    struct sigaction after { };
    sigaction(SIGTERM, nullptr, &after);
    QVERIFY(after.sa_handler == before.sa_handler);
}

QTEST_GUILESS_MAIN(QuitSignalsTest)
#include "tst_quitsignals.moc"
