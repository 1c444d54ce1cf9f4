#include "platform/linux/x11/pointeroveranother.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

class XcbPointerSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_desk = std::make_unique<PointerOverAnother>(); }
    void cleanup() { m_desk.reset(); }
    void state_position_data();
    void state_position();
    void state_position_onASecondScreen();
    void state_leftHeld_whileTheLeftButtonIsDown();
    void state_leftHeld_notForOtherButtons();
    void state_leftHeld_whileAnotherProgramHasThePointer();
    void clicked_overAnotherProgram();
    void clicked_tellsTheServersTime();
    void clicked_onceForEachPress();
    void clicked_notForOtherButtonsAndTheWheel();
    void clicked_leftHanded_isTheButtonThatMeansLeft();
    void clicked_byPolling_tellsAHeldButton();
    void clicked_byPolling_isNotToldInsideTheQuestion();

private:
    std::unique_ptr<PointerOverAnother> m_desk;
};

void XcbPointerSourceTest::state_position_data()
{
    QTest::addColumn<QPoint>("native");

    QTest::addRow("top edge") << QPoint(800, 0);
    QTest::addRow("corner") << QPoint(1599, 899);
    QTest::addRow("between whole points") << QPoint(401, 303);
}

void XcbPointerSourceTest::state_position()
{
    QFETCH(const QPoint, native);
    const auto scale = qGuiApp->primaryScreen()->devicePixelRatio();

    movePointer(native);

    QCOMPARE(m_desk->pointer.state().position, QPointF(native) / scale);
}

void XcbPointerSourceTest::state_position_onASecondScreen()
{
    const auto scale = qGuiApp->primaryScreen()->devicePixelRatio();
    addMonitor(u"L"_s, 0, u"screen"_s);
    addMonitor(u"R"_s, 800, u"none"_s);
    QTRY_COMPARE(QGuiApplication::screens().size(), 2);
    movePointer({1100, 30});

    const auto position = m_desk->pointer.state().position;

    removeMonitor(u"L"_s);
    removeMonitor(u"R"_s);
    QTRY_COMPARE(QGuiApplication::screens().size(), 1);
    QCOMPARE(position, QPointF(800 + 300 / scale, 30 / scale)); // As Qt places its windows there.
}

void XcbPointerSourceTest::state_leftHeld_whileTheLeftButtonIsDown()
{
    QVERIFY(!m_desk->pointer.state().leftHeld);

    xdotool({u"mousedown"_s, u"1"_s});
    QVERIFY(m_desk->pointer.state().leftHeld);

    xdotool({u"mouseup"_s, u"1"_s});
    QVERIFY(!m_desk->pointer.state().leftHeld);
}

void XcbPointerSourceTest::state_leftHeld_notForOtherButtons()
{
    xdotool({u"mousedown"_s, u"3"_s});
    const auto held = m_desk->pointer.state().leftHeld;
    xdotool({u"mouseup"_s, u"3"_s});

    QVERIFY(!held);
}

void XcbPointerSourceTest::state_leftHeld_whileAnotherProgramHasThePointer()
{
    m_desk->other.grabPointer();
    xdotool({u"mousedown"_s, u"1"_s});
    movePointer({500, 310});

    const auto state = m_desk->pointer.state();

    m_desk->other.ungrabPointer();
    const auto scale = qGuiApp->primaryScreen()->devicePixelRatio();
    QVERIFY(state.leftHeld);
    QCOMPARE(state.position, QPointF(500, 310) / scale);
}

void XcbPointerSourceTest::clicked_overAnotherProgram()
{
    QSignalSpy clicks(&m_desk->pointer, &PointerSource::clicked);

    click({400, 300});

    QTRY_COMPARE(clicks.size(), 1);
    QCOMPARE(m_desk->other.presses(), 1); // Seen, not taken.
}

void XcbPointerSourceTest::clicked_tellsTheServersTime()
{
    QSignalSpy clicks(&m_desk->pointer, &PointerSource::clicked);

    click({400, 300});
    QTRY_COMPARE(clicks.size(), 1);

    QCOMPARE(clicks.first().first().toUInt(), m_desk->other.timeOfLastPress());
}

void XcbPointerSourceTest::clicked_onceForEachPress()
{
    QSignalSpy clicks(&m_desk->pointer, &PointerSource::clicked);

    xdotool({u"click"_s, u"--repeat"_s, u"20"_s, u"--delay"_s, u"0"_s, u"1"_s});

    QTRY_COMPARE(clicks.size(), 20);
}

void XcbPointerSourceTest::clicked_notForOtherButtonsAndTheWheel()
{
    QSignalSpy clicks(&m_desk->pointer, &PointerSource::clicked);

    for (const auto& button : {u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"8"_s}) {
        xdotool({u"click"_s, button});
    }
    xdotool({u"click"_s, u"1"_s}); // The last to arrive.

    QTRY_VERIFY(!clicks.isEmpty());
    QCOMPARE(clicks.size(), 1);
}

void XcbPointerSourceTest::clicked_leftHanded_isTheButtonThatMeansLeft()
{
    QSignalSpy clicks(&m_desk->pointer, &PointerSource::clicked);
    setPointerMapping({3, 2, 1});
    xdotool({u"click"_s, u"1"_s}); // Means the right button now.
    xdotool({u"click"_s, u"3"_s});
    QTRY_VERIFY(!clicks.isEmpty());
    const auto whileSwapped = clicks.size();
    const auto time = clicks.first().first().toUInt();
    const auto leftPress = m_desk->other.timeOfLastPress();
    clicks.clear();

    setPointerMapping({1, 2, 3});
    xdotool({u"click"_s, u"1"_s});

    QTRY_COMPARE(clicks.size(), 1);
    QCOMPARE(whileSwapped, 1);
    QCOMPARE(time, leftPress);
}

void XcbPointerSourceTest::clicked_byPolling_tellsAHeldButton()
{
    const XcbPointerSource polled(XcbPointerSource::Clicks::FromPolling);
    QSignalSpy clicks(&polled, &PointerSource::clicked);
    polled.state();

    xdotool({u"mousedown"_s, u"1"_s});
    polled.state();
    polled.state();
    QTRY_COMPARE(clicks.size(), 1);
    xdotool({u"mouseup"_s, u"1"_s});
    polled.state();

    QTest::qWait(0);
    QCOMPARE(clicks.size(), 1);
}

void XcbPointerSourceTest::clicked_byPolling_isNotToldInsideTheQuestion()
{
    const XcbPointerSource polled(XcbPointerSource::Clicks::FromPolling);
    QSignalSpy clicks(&polled, &PointerSource::clicked);

    xdotool({u"mousedown"_s, u"1"_s});
    polled.state();

    QCOMPARE(clicks.size(), 0);
    QTRY_COMPARE(clicks.size(), 1);
}

QTEST_MAIN(XcbPointerSourceTest)
#include "tst_xcbpointersource.moc"
