#include "platform/linux/x11/pointeroveranother.h"

#include <QGuiApplication>
#include <QScreen>

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

/// A pointer that rests need not be asked: the server tells of the next thing it does, once.
class XcbPointerRestTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_desk = std::make_unique<PointerOverAnother>(); }
    void cleanup() { m_desk.reset(); }
    void changed_onceForEachAnnouncement_data();
    void changed_onceForEachAnnouncement();
    void changed_thePointerIsThereAlready();
    void changed_unannounced_isNotToldNorEvenHeard();
    void announceNextChange_byPolling_canNot();

private:
    std::unique_ptr<PointerOverAnother> m_desk;
};

void XcbPointerRestTest::changed_onceForEachAnnouncement_data()
{
    QTest::addColumn<QStringList>("change");

    QTest::addRow("a move") << QStringList{u"mousemove_relative"_s, u"3"_s, u"3"_s};
    QTest::addRow("a press") << QStringList{u"mousedown"_s, u"1"_s};
    QTest::addRow("a release") << QStringList{u"mouseup"_s, u"1"_s};
    QTest::addRow("another button") << QStringList{u"click"_s, u"3"_s};
    QTest::addRow("the wheel") << QStringList{u"click"_s, u"4"_s};
}

void XcbPointerRestTest::changed_onceForEachAnnouncement()
{
    QFETCH(const QStringList, change);
    if (change.first() == u"mouseup"_s) {
        xdotool({u"mousedown"_s, u"1"_s});
    }
    const QSignalSpy changes(&m_desk->pointer, &PointerSource::changed);
    QSignalSpy clicks(&m_desk->pointer, &PointerSource::clicked);

    for (int round = 1; round < 4; ++round) {
        QVERIFY(m_desk->pointer.announceNextChange());
        QVERIFY(m_desk->pointer.announceNextChange()); // Which asks for nothing more.
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

void XcbPointerRestTest::changed_thePointerIsThereAlready()
{
    movePointer({400, 300});
    m_desk->pointer.announceNextChange();
    std::optional<PointerState> seen;
    connect(&m_desk->pointer, &PointerSource::changed, this,
            [&] { seen = m_desk->pointer.state(); });

    push(100, 50);
    QTRY_VERIFY(seen);

    m_desk->pointer.disconnect(this);
    const auto scale = qGuiApp->primaryScreen()->devicePixelRatio();
    QCOMPARE(seen->position, QPointF(500, 350) / scale);
}

void XcbPointerRestTest::changed_unannounced_isNotToldNorEvenHeard()
{
    const QSignalSpy changes(&m_desk->pointer, &PointerSource::changed);
    const QSignalSpy clicks(&m_desk->pointer, &PointerSource::clicked);
    m_desk->pointer.announceNextChange();
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

void XcbPointerRestTest::announceNextChange_byPolling_canNot()
{
    XcbPointerSource polled(XcbPointerSource::Clicks::FromPolling);

    QVERIFY(!polled.announceNextChange());
}

QTEST_MAIN(XcbPointerRestTest)
#include "tst_xcbpointerrest.moc"
