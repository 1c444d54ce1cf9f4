#include "platform/platform.h"

#include <QTest>

using namespace quib;

class PlatformTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void makePlatform_makesEverySeam();
    void makePlatformWithoutDisplay_makesWhatNeedsNone();
};

void PlatformTest::makePlatform_makesEverySeam()
{
    const auto platform = makePlatform();

    QVERIFY(platform.screens);
    QVERIFY(platform.pointer);
    QVERIFY(platform.panelHost);
    QVERIFY(platform.instance);
    QVERIFY(platform.desktop);
    QVERIFY(platform.applications);
    QVERIFY(platform.player);
    QVERIFY(platform.icons);
    QVERIFY(platform.calendar);
    QVERIFY(platform.quitSignals);
}

void PlatformTest::makePlatformWithoutDisplay_makesWhatNeedsNone()
{
    const auto platform = makePlatformWithoutDisplay();

    QVERIFY(platform.desktop);
    QVERIFY(platform.applications);
    QVERIFY(platform.opener);
    QVERIFY(platform.player);
    QVERIFY(platform.calendar);
    QVERIFY(platform.icons);
    QVERIFY(!platform.screens);
    QVERIFY(!platform.panelHost);
    QVERIFY(!platform.instance);
}

QTEST_MAIN(PlatformTest)
#include "tst_platform.moc"
