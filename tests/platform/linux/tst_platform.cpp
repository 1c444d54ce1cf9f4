#include "platform/platform.h"

#include <QTest>

using namespace quib;

class PlatformTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasDisplay_onOne();
    void hasDisplay_noneNamed_isFalse();
    void hasDisplay_nobodyAnswers_isFalse();
    void makePlatform_makesEverySeam();
    void makePlatformWithoutDisplay_makesWhatNeedsNone();
};

void PlatformTest::hasDisplay_onOne()
{
    QVERIFY(hasDisplay());
}

void PlatformTest::hasDisplay_noneNamed_isFalse()
{
    const auto display = qgetenv("DISPLAY");

    qunsetenv("DISPLAY");
    const auto has = hasDisplay();

    qputenv("DISPLAY", display);
    QVERIFY(!has);
}

void PlatformTest::hasDisplay_nobodyAnswers_isFalse()
{
    const auto display = qgetenv("DISPLAY");

    qputenv("DISPLAY", ":9999");
    const auto has = hasDisplay();

    qputenv("DISPLAY", display);
    QVERIFY(!has);
}

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
