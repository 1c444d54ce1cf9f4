#include "platform/linux/launch/openerdesk.h"
#include "support/hungfile.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A player in the ways in which it may be installed, the preferred one first.
const QStringList Ways{u"spotify"_s, u"com.spotify.Client"_s, u"spotify_spotify"_s};

} // namespace

class LaunchInstalledTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFirstInstalled_isLaunched_data();
    void theFirstInstalled_isLaunched();
    void entryOfNoUse_isPassedOver_data();
    void entryOfNoUse_isPassedOver();
    void notInstalled_nothingHappens_data();
    void notInstalled_nothingHappens();
    void hungDisk_blocksNothing();
};

void LaunchInstalledTest::theFirstInstalled_isLaunched_data()
{
    QTest::addColumn<QStringList>("installed");
    QTest::addColumn<QString>("launched");

    QTest::addRow("package") << QStringList(Ways[0]) << Ways[0];
    QTest::addRow("Flatpak") << QStringList(Ways[1]) << Ways[1];
    QTest::addRow("Snap") << QStringList(Ways[2]) << Ways[2];
    QTest::addRow("all") << Ways << Ways[0];
}

void LaunchInstalledTest::theFirstInstalled_isLaunched()
{
    QFETCH(const QStringList, installed);
    QFETCH(const QString, launched);
    OpenerDesk desk;
    desk.install(u"rhythmbox"_s);
    for (const auto& name : installed) {
        desk.install(name, u"%U"_s);
    }
    desk.start();

    QVERIFY(desk.ask({u"launchSpotify"_s}));

    QTRY_COMPARE(desk.started(), Started{{launched}});
}

void LaunchInstalledTest::entryOfNoUse_isPassedOver_data()
{
    QTest::addColumn<QString>("line");

    QTest::addRow("hidden") << u"Hidden=true"_s;
    QTest::addRow("its program is missing") << u"TryExec=nowhere-to-be-found"_s;
    QTest::addRow("its program's path is missing") << u"TryExec=/nowhere/spotify"_s;
}

void LaunchInstalledTest::entryOfNoUse_isPassedOver()
{
    QFETCH(const QString, line);
    OpenerDesk desk;
    desk.install(Ways[0], u"%U"_s, line);
    desk.install(Ways[1], u"%U"_s, u"Hidden=false\nTryExec=sh"_s);
    desk.start();

    QVERIFY(desk.ask({u"launchSpotify"_s}));

    QTRY_COMPARE(desk.started(), Started{{Ways[1]}});
}

void LaunchInstalledTest::notInstalled_nothingHappens_data()
{
    QTest::addColumn<QByteArray>("entry");

    QTest::addRow("no entry") << QByteArray();
    QTest::addRow("a broken entry") << "[[[[\0\xff"_ba;
}

void LaunchInstalledTest::notInstalled_nothingHappens()
{
    QFETCH(const QByteArray, entry);
    OpenerDesk desk;
    if (!entry.isNull()) {
        desk.makeFile(u"data/applications/spotify.desktop"_s, entry);
    }
    const auto other = desk.install(u"org.gnome.Music"_s);
    desk.start();

    QVERIFY(desk.ask({u"launchSpotify"_s}));

    QVERIFY(desk.ask({u"openPath"_s, other}));
    QTRY_COMPARE(desk.started(), Started{{u"org.gnome.Music"_s}});
    QVERIFY(desk.quit());
    QCOMPARE(desk.complaints(), QByteArray());
}

void LaunchInstalledTest::hungDisk_blocksNothing()
{
    OpenerDesk desk;
    const auto entry = desk.install(u"spotify"_s);
    const auto other = desk.install(u"org.gnome.Music"_s);
    desk.start();
    const HungFile disk(entry);
    if (!disk.isHung()) {
        QSKIP("this file system knows no leases");
    }

    for (int i = 0; i < 20; ++i) {
        QVERIFY(desk.ask({u"launchSpotify"_s}));
    }

    QVERIFY(desk.ask({u"openPath"_s, other}));
    QTRY_COMPARE(desk.started(), Started{{u"org.gnome.Music"_s}});
    QVERIFY(desk.quit());
}

QTEST_GUILESS_MAIN(LaunchInstalledTest)
#include "tst_launchinstalled.moc"
