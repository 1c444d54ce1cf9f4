#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/xcbpointersource.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <xcb/xinput.h>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

/// How many raw motions the server has told this program of.
class MotionCounter final : public QAbstractNativeEventFilter {
public:
    int motions = 0;

    MotionCounter() { qApp->installNativeEventFilter(this); }

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) override
    {
        const auto* event = static_cast<const xcb_ge_generic_event_t*>(message);
        const bool isGeneric = type == "xcb_generic_event_t"
            && eventKind(*static_cast<const xcb_generic_event_t*>(message)) == XCB_GE_GENERIC;
        motions += isGeneric && event->event_type == XCB_INPUT_RAW_MOTION ? 1 : 0;
        return false;
    }
};

/// As a hand does; moving to a point makes no event of a device.
void push(int x, int y)
{
    xdotool({u"mousemove_relative"_s, u"--"_s, QString::number(x), QString::number(y)});
}

} // namespace

class XcbPointerSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
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
    void changed_onceForEachAnnouncement_data();
    void changed_onceForEachAnnouncement();
    void changed_thePointerIsThereAlready();
    void changed_unannounced_isNotToldNorEvenHeard();
    void announceNextChange_byPolling_canNot();

private:
    std::unique_ptr<OtherProgram> m_other;
    XcbPointerSource m_pointer;
};

void XcbPointerSourceTest::init()
{
    m_other = std::make_unique<OtherProgram>(QRect(0, 0, 1600, 900));
    m_other->show();
    QSignalSpy clicks(&m_pointer, &PointerSource::clicked);
    click({400, 300});
    const auto latest = m_other->timeOfLastPress();
    QTRY_VERIFY(!clicks.isEmpty() && clicks.last().first().toUInt() == latest);
}

void XcbPointerSourceTest::cleanup()
{
    xdotool({u"mouseup"_s, u"1"_s});
    m_other.reset();
}

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

    QCOMPARE(m_pointer.state().position, QPointF(native) / scale);
}

void XcbPointerSourceTest::state_position_onASecondScreen()
{
    const auto scale = qGuiApp->primaryScreen()->devicePixelRatio();
    addMonitor(u"L"_s, 0, u"screen"_s);
    addMonitor(u"R"_s, 800, u"none"_s);
    QTRY_COMPARE(QGuiApplication::screens().size(), 2);
    movePointer({1100, 30});

    const auto position = m_pointer.state().position;

    removeMonitor(u"L"_s);
    removeMonitor(u"R"_s);
    QTRY_COMPARE(QGuiApplication::screens().size(), 1);
    QCOMPARE(position, QPointF(800 + 300 / scale, 30 / scale)); // As Qt places its windows there.
}

void XcbPointerSourceTest::state_leftHeld_whileTheLeftButtonIsDown()
{
    QVERIFY(!m_pointer.state().leftHeld);

    xdotool({u"mousedown"_s, u"1"_s});
    QVERIFY(m_pointer.state().leftHeld);

    xdotool({u"mouseup"_s, u"1"_s});
    QVERIFY(!m_pointer.state().leftHeld);
}

void XcbPointerSourceTest::state_leftHeld_notForOtherButtons()
{
    xdotool({u"mousedown"_s, u"3"_s});
    const auto held = m_pointer.state().leftHeld;
    xdotool({u"mouseup"_s, u"3"_s});

    QVERIFY(!held);
}

void XcbPointerSourceTest::state_leftHeld_whileAnotherProgramHasThePointer()
{
    m_other->grabPointer();
    xdotool({u"mousedown"_s, u"1"_s});
    movePointer({500, 310});

    const auto state = m_pointer.state();

    m_other->ungrabPointer();
    const auto scale = qGuiApp->primaryScreen()->devicePixelRatio();
    QVERIFY(state.leftHeld);
    QCOMPARE(state.position, QPointF(500, 310) / scale);
}

void XcbPointerSourceTest::clicked_overAnotherProgram()
{
    QSignalSpy clicks(&m_pointer, &PointerSource::clicked);

    click({400, 300});

    QTRY_COMPARE(clicks.size(), 1);
    QCOMPARE(m_other->presses(), 1); // Seen, not taken.
}

void XcbPointerSourceTest::clicked_tellsTheServersTime()
{
    QSignalSpy clicks(&m_pointer, &PointerSource::clicked);

    click({400, 300});
    QTRY_COMPARE(clicks.size(), 1);

    QCOMPARE(clicks.first().first().toUInt(), m_other->timeOfLastPress());
}

void XcbPointerSourceTest::clicked_onceForEachPress()
{
    QSignalSpy clicks(&m_pointer, &PointerSource::clicked);

    xdotool({u"click"_s, u"--repeat"_s, u"20"_s, u"--delay"_s, u"0"_s, u"1"_s});

    QTRY_COMPARE(clicks.size(), 20);
}

void XcbPointerSourceTest::clicked_notForOtherButtonsAndTheWheel()
{
    QSignalSpy clicks(&m_pointer, &PointerSource::clicked);

    for (const auto& button : {u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"8"_s}) {
        xdotool({u"click"_s, button});
    }
    xdotool({u"click"_s, u"1"_s}); // The last to arrive.

    QTRY_VERIFY(!clicks.isEmpty());
    QCOMPARE(clicks.size(), 1);
}

void XcbPointerSourceTest::clicked_leftHanded_isTheButtonThatMeansLeft()
{
    QSignalSpy clicks(&m_pointer, &PointerSource::clicked);
    setPointerMapping({3, 2, 1});
    xdotool({u"click"_s, u"1"_s}); // Means the right button now.
    xdotool({u"click"_s, u"3"_s});
    QTRY_VERIFY(!clicks.isEmpty());
    const auto whileSwapped = clicks.size();
    const auto time = clicks.first().first().toUInt();
    const auto leftPress = m_other->timeOfLastPress();
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

void XcbPointerSourceTest::changed_onceForEachAnnouncement_data()
{
    QTest::addColumn<QStringList>("change");

    QTest::addRow("a move") << QStringList{u"mousemove_relative"_s, u"3"_s, u"3"_s};
    QTest::addRow("a press") << QStringList{u"mousedown"_s, u"1"_s};
    QTest::addRow("a release") << QStringList{u"mouseup"_s, u"1"_s};
    QTest::addRow("another button") << QStringList{u"click"_s, u"3"_s};
    QTest::addRow("the wheel") << QStringList{u"click"_s, u"4"_s};
}

void XcbPointerSourceTest::changed_onceForEachAnnouncement()
{
    QFETCH(const QStringList, change);
    if (change.first() == u"mouseup"_s) {
        xdotool({u"mousedown"_s, u"1"_s});
    }
    const QSignalSpy changes(&m_pointer, &PointerSource::changed);
    QSignalSpy clicks(&m_pointer, &PointerSource::clicked);

    for (int round = 1; round < 4; ++round) {
        QVERIFY(m_pointer.announceNextChange());
        QVERIFY(m_pointer.announceNextChange()); // Which asks for nothing more.
        xdotool(change);
        xdotool(change);
        QTRY_COMPARE(changes.size(), round);
        xdotool({u"mouseup"_s, u"1"_s});
        clicks.clear();
        xdotool({u"click"_s, u"1"_s}); // The last to arrive.
        QTRY_VERIFY(!clicks.isEmpty());
        QCOMPARE(changes.size(), round);
    }
}

void XcbPointerSourceTest::changed_thePointerIsThereAlready()
{
    movePointer({400, 300});
    m_pointer.announceNextChange();
    std::optional<PointerState> seen;
    connect(&m_pointer, &PointerSource::changed, this, [&] { seen = m_pointer.state(); });

    push(100, 50);
    QTRY_VERIFY(seen);

    m_pointer.disconnect(this);
    const auto scale = qGuiApp->primaryScreen()->devicePixelRatio();
    QCOMPARE(seen->position, QPointF(500, 350) / scale);
}

void XcbPointerSourceTest::changed_unannounced_isNotToldNorEvenHeard()
{
    const QSignalSpy changes(&m_pointer, &PointerSource::changed);
    const QSignalSpy clicks(&m_pointer, &PointerSource::clicked);
    m_pointer.announceNextChange();
    push(1, 1);
    QTRY_COMPARE(changes.size(), 1);
    const MotionCounter heard;

    for (int round = 0; round < 20; ++round) {
        push(1, 1);
    }
    xdotool({u"click"_s, u"1"_s}); // The last to arrive.

    QTRY_COMPARE(clicks.size(), 1);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(heard.motions, 0);
}

void XcbPointerSourceTest::announceNextChange_byPolling_canNot()
{
    XcbPointerSource polled(XcbPointerSource::Clicks::FromPolling);

    QVERIFY(!polled.announceNextChange());
}

QTEST_MAIN(XcbPointerSourceTest)
#include "tst_xcbpointersource.moc"
