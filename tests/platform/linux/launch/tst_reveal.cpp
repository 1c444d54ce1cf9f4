#include "platform/linux/launch/openerdesk.h"
#include "support/sendsignal.h"

#include <QTest>
#include <QUrl>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

const auto FileManager = u"org.freedesktop.FileManager1"_s;

QByteArray shown(const QString& path)
{
    return "org.freedesktop.FileManager1.ShowItems /org/freedesktop/FileManager1 "
        + QUrl::fromLocalFile(path).toEncoded() + '\n';
}

} // namespace

class RevealTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void reveal_anyName_isShownByTheFileManager_data();
    void reveal_anyName_isShownByTheFileManager();
    void reveal_noFileManager_opensTheFolder_data();
    void reveal_noFileManager_opensTheFolder();
    void reveal_fileManagerRefuses_opensTheFolder();
    void reveal_fileManagerCrashes_opensTheFolder();
    void reveal_hungFileManager_blocksNothing();
    void reveal_fileManagerFailsLate_opensNothing();
    void reveal_missingFolder_opensNothing();

private:
    /// That the file manager was told nothing else, and no folder was opened.
    void endAfter(const Started& started);

    std::unique_ptr<OpenerDesk> m_desk;
    std::unique_ptr<QProcess> m_fileManager;
    QString m_file;
};

void RevealTest::init()
{
    m_desk = std::make_unique<OpenerDesk>();
    m_desk->install(u"files"_s, u"%f"_s, u"MimeType=inode/directory;"_s);
    m_desk->install(u"editor"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    m_file = m_desk->makeFile(u"a folder/time sheet.txt"_s);
}

void RevealTest::cleanup()
{
    if (m_fileManager) {
        m_fileManager->kill();
        m_fileManager->waitForFinished();
    }
    m_fileManager.reset();
    m_desk.reset();
}

void RevealTest::endAfter(const Started& started)
{
    QVERIFY(m_desk->ask({u"openPath"_s, m_file}));
    QTRY_COMPARE(m_desk->started(), started + Started({{u"editor"_s, m_file}}));
}

void RevealTest::reveal_anyName_isShownByTheFileManager_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("plain") << u"timesheet.csv"_s;
    QTest::addRow("odd") << u"100% \"a\" #1?\n;-x\\"_s;
    QTest::addRow("beyond ASCII") << u"été 漢字 🦊"_s;
    QTest::addRow("an application") << u"player.desktop"_s;
}

void RevealTest::reveal_anyName_isShownByTheFileManager()
{
    QFETCH(const QString, name);
    m_desk->startBus();
    m_fileManager = m_desk->startService(FileManager);
    m_desk->start();
    const auto path = m_desk->makeFile(name);

    QVERIFY(m_desk->ask({u"reveal"_s, path}));

    QTRY_VERIFY(m_fileManager->canReadLine());
    QCOMPARE(m_fileManager->readLine(), shown(path));
    endAfter({});
}

void RevealTest::reveal_noFileManager_opensTheFolder_data()
{
    QTest::addColumn<bool>("hasBus");

    QTest::addRow("bus") << true;
    QTest::addRow("no bus") << false;
}

void RevealTest::reveal_noFileManager_opensTheFolder()
{
    QFETCH(const bool, hasBus);
    if (hasBus) {
        m_desk->startBus();
    }
    m_desk->start();

    QVERIFY(m_desk->ask({u"reveal"_s, m_file}));

    QTRY_COMPARE(m_desk->started(), (Started{{u"files"_s, m_desk->path(u"a folder"_s)}}));
}

void RevealTest::reveal_fileManagerRefuses_opensTheFolder()
{
    m_desk->startBus();
    m_fileManager = m_desk->startService(FileManager, {u"refuse"_s});
    m_desk->start();

    QVERIFY(m_desk->ask({u"reveal"_s, m_file}));

    QTRY_COMPARE(m_desk->started(), (Started{{u"files"_s, m_desk->path(u"a folder"_s)}}));
}

void RevealTest::reveal_fileManagerCrashes_opensTheFolder()
{
    m_desk->startBus();
    m_fileManager = m_desk->startService(FileManager);
    sendSignal(m_fileManager->processId(), SIGSTOP);
    m_desk->start();
    QVERIFY(m_desk->ask({u"reveal"_s, m_file}));

    m_fileManager->kill();

    QTRY_COMPARE(m_desk->started(), (Started{{u"files"_s, m_desk->path(u"a folder"_s)}}));
}

void RevealTest::reveal_hungFileManager_blocksNothing()
{
    m_desk->startBus();
    m_fileManager = m_desk->startService(FileManager);
    sendSignal(m_fileManager->processId(), SIGSTOP);
    m_desk->start();

    QVERIFY(m_desk->ask({u"reveal"_s, m_file}));
    endAfter({});
    sendSignal(m_fileManager->processId(), SIGCONT);

    QTRY_VERIFY(m_fileManager->canReadLine());
    QCOMPARE(m_fileManager->readLine(), shown(m_file));
    QVERIFY(m_desk->quit());
    QCOMPARE(m_desk->started().size(), 1);
}

void RevealTest::reveal_fileManagerFailsLate_opensNothing()
{
    m_desk->startBus();
    m_desk->environment.insert(u"QUIB_IMPATIENT"_s, u"1"_s); // Every answer is late.
    m_fileManager = m_desk->startService(FileManager, {u"refuse"_s});
    sendSignal(m_fileManager->processId(), SIGSTOP);
    m_desk->start();
    QVERIFY(m_desk->ask({u"reveal"_s, m_file}));

    sendSignal(m_fileManager->processId(), SIGCONT);

    QTRY_VERIFY(m_fileManager->canReadLine());
    endAfter({});
}

void RevealTest::reveal_missingFolder_opensNothing()
{
    m_desk->startBus();
    m_desk->start();

    QVERIFY(m_desk->ask({u"reveal"_s, m_desk->path(u"missing/file.txt"_s)}));

    endAfter({});
}

QTEST_GUILESS_MAIN(RevealTest)
#include "tst_reveal.moc"
