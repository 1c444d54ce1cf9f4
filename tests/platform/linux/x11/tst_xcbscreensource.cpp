#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/runningprogram.h"
#include "platform/linux/x11/xcbscreensource.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

/// A dock at the top of part of the X screen.
std::unique_ptr<OtherProgram> dockAt(const QRect& place)
{
    auto dock = std::make_unique<OtherProgram>(place, OtherProgram::Placing::ByWindowManager);
    dock->setAtoms("_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_DOCK"});
    dock->setPlace(place.topLeft());
    dock->setProperty("_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL,
                      {0, 0, uint32_t(place.bottom() + 1), 0, 0, 0, 0, 0, uint32_t(place.left()),
                       uint32_t(place.right()), 0, 0});
    dock->show();
    return dock;
}

} // namespace

class XcbScreenSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void screens_one_isTheMainOne();
    void changed_onceForARearrangement();
    void screens_one_visibleFrameEndsAtADock();
    void screens_two_comeAndGo();
    void screens_two_aDockOnTheSecond();
    void changed_notForPlainWindowsOnTwoScreens();

private:
    double visibleTop(qsizetype screen) const;
    void showTwoMonitors();
    void startWindowManager();

    double m_scale = 1;
    std::unique_ptr<RunningProgram> m_manager;
    std::unique_ptr<XcbScreenSource> m_source;
};

void XcbScreenSourceTest::initTestCase()
{
    m_scale = qGuiApp->primaryScreen()->devicePixelRatio();
    m_source = std::make_unique<XcbScreenSource>();
}

void XcbScreenSourceTest::cleanup()
{
    for (const auto& name : {u"L"_s, u"R"_s}) {
        removeMonitor(name);
    }
    QTRY_COMPARE(m_source->screens().size(), 1);
    QTRY_COMPARE(visibleTop(0), 0);
}

double XcbScreenSourceTest::visibleTop(qsizetype screen) const
{
    return m_source->screens().value(screen).visibleFrame.top();
}

void XcbScreenSourceTest::showTwoMonitors()
{
    addMonitor(u"L"_s, 0, u"screen"_s);
    addMonitor(u"R"_s, 800, u"none"_s);
    QTRY_COMPARE(m_source->screens().size(), 2);
}

/// From the first test that needs it: it answers each rearrangement with changes of its own.
void XcbScreenSourceTest::startWindowManager()
{
    if (!m_manager) {
        m_manager = std::make_unique<RunningProgram>(QStringList{u"openbox"_s});
    }
    QTRY_VERIFY(hasWindowManager());
}

void XcbScreenSourceTest::screens_one_isTheMainOne()
{
    const auto screens = m_source->screens();

    QCOMPARE(screens.size(), 1);
    QCOMPARE(screens.first().frame.toRect(), qGuiApp->primaryScreen()->geometry());
    QCOMPARE(screens.first().visibleFrame, screens.first().frame);
    QCOMPARE(screens.first().topInset, 0);
    QVERIFY(screens.first().isMain);
}

void XcbScreenSourceTest::changed_onceForARearrangement()
{
    QSignalSpy changes(m_source.get(), &ScreenSource::changed);

    addMonitor(u"L"_s, 0, u"screen"_s);

    QTRY_COMPARE(m_source->screens().first().frame.width(), qRound(800 / m_scale));
    QTRY_COMPARE(changes.size(), 1);
}

void XcbScreenSourceTest::screens_one_visibleFrameEndsAtADock()
{
    startWindowManager();
    QSignalSpy changes(m_source.get(), &ScreenSource::changed);

    const auto dock = dockAt({0, 0, 1600, 36});

    QTRY_COMPARE(qRound(visibleTop(0) * m_scale), 36);
    QTRY_VERIFY(!changes.isEmpty());
}

void XcbScreenSourceTest::screens_two_comeAndGo()
{
    showTwoMonitors();

    const auto screens = m_source->screens();
    QCOMPARE(screens[0].frame, QRectF(0, 0, 800 / m_scale, 900 / m_scale).toRect());
    QCOMPARE(screens[1].frame.topLeft(), QPointF(800, 0));
    QCOMPARE(std::ranges::count(screens, true, &Screen::isMain), 1);
}

void XcbScreenSourceTest::screens_two_aDockOnTheSecond()
{
    startWindowManager();
    showTwoMonitors();
    QSignalSpy changes(m_source.get(), &ScreenSource::changed);

    const auto dock = dockAt({800, 0, 800, 48});

    QTRY_COMPARE(qRound(visibleTop(1) * m_scale), 48);
    QCOMPARE(visibleTop(0), 0);
    QTRY_VERIFY(!changes.isEmpty());

    dock->end();
    QTRY_COMPARE(visibleTop(1), 0);
}

void XcbScreenSourceTest::changed_notForPlainWindowsOnTwoScreens()
{
    startWindowManager();
    showTwoMonitors();
    QTest::qWait(0);
    QSignalSpy changes(m_source.get(), &ScreenSource::changed);

    const OtherProgram plain({0, 300, 300, 200}, OtherProgram::Placing::ByWindowManager);
    plain.show();
    QTRY_VERIFY(isManaged(plain.window()));
    QTest::qWait(0);
    const auto dock = dockAt({800, 0, 800, 48}); // The last to be noticed.

    QTRY_COMPARE(qRound(visibleTop(1) * m_scale), 48);
    QCOMPARE(changes.size(), 1);
}

QTEST_MAIN(XcbScreenSourceTest)
#include "tst_xcbscreensource.moc"
