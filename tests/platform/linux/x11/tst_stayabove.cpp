#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/stayabove.h"

#include <QTest>
#include <QWindow>

using namespace quib;
using namespace std::chrono_literals;

namespace {

constexpr QRect Frame(200, 0, 300, 200);

/// A window that no window manager touches.
class Unmanaged {
public:
    Unmanaged()
    {
        m_window.setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
        m_window.setGeometry(Frame);
        m_window.show();
        if (!QTest::qWaitForWindowExposed(&m_window)) {
            qWarning("no window came");
        }
        m_above.setWindow(native());
    }

    xcb_window_t native() const { return xcb_window_t(m_window.winId()); }
    StayAbove& above() { return m_above; }

private:
    QWindow m_window;
    StayAbove m_above;
};

/// What a window manager has put around a window of another program.
void markManaged(const OtherProgram& frame)
{
    constexpr uint32_t NormalState = 1;
    frame.setProperty("WM_STATE", XCB_ATOM_CARDINAL, {NormalState, 0});
}

} // namespace

class StayAboveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void waitAfter_growsWhileOthersRiseToo_data();
    void waitAfter_growsWhileOthersRiseToo();
    void managedWindow_comesBeneath_data();
    void managedWindow_comesBeneath();
    void windowThatBecomesManaged_comesBeneath();
    void windowThatLooksAfterItself_staysAbove();
    void resting_othersComeAbove();
    void rival_isNotFoughtWithoutEnd();
};

void StayAboveTest::waitAfter_growsWhileOthersRiseToo_data()
{
    QTest::addColumn<int>("risesInARow");
    QTest::addColumn<std::chrono::milliseconds>("wait");

    QTest::addRow("the first in a while") << 0 << 30ms;
    QTest::addRow("a window raised, then another") << 1 << 60ms;
    QTest::addRow("somebody goes through all windows") << 4 << 480ms;
    QTest::addRow("a rival") << 9 << 5000ms;
    QTest::addRow("a rival that never tires") << 1'000'000 << 5000ms;
}

void StayAboveTest::waitAfter_growsWhileOthersRiseToo()
{
    QFETCH(const int, risesInARow);
    QFETCH(const std::chrono::milliseconds, wait);

    QCOMPARE(waitAfter(risesInARow), wait);
}

void StayAboveTest::managedWindow_comesBeneath_data()
{
    QTest::addColumn<OtherProgram::Placing>("placing");

    QTest::addRow("in a frame") << OtherProgram::Placing::ByItself;
    QTest::addRow("plain, whoever manages it") << OtherProgram::Placing::ByWindowManager;
}

void StayAboveTest::managedWindow_comesBeneath()
{
    QFETCH(const OtherProgram::Placing, placing);
    Unmanaged panel;
    const OtherProgram other(Frame, placing);
    if (placing == OtherProgram::Placing::ByItself) {
        markManaged(other);
    }

    other.show();
    QTRY_VERIFY(isAbove(panel.native(), other.window()));

    other.raise();
    QTRY_VERIFY(isAbove(panel.native(), other.window()));
}

/// Window managers may say so after they have shown it.
void StayAboveTest::windowThatBecomesManaged_comesBeneath()
{
    Unmanaged panel;
    const OtherProgram other(Frame);
    markManaged(other);
    other.show();
    const OtherProgram late(Frame);
    late.show();
    QTRY_VERIFY(isAbove(panel.native(), other.window()));
    QVERIFY(isAbove(late.window(), panel.native()));

    markManaged(late);
    setManaged({other.window(), late.window()});

    QTRY_VERIFY(isAbove(panel.native(), late.window()));
    setManaged({});
}

/// As menus and screen lockers do. It is left alone while the panel rises above another.
void StayAboveTest::windowThatLooksAfterItself_staysAbove()
{
    Unmanaged panel;
    const OtherProgram locker(Frame);
    locker.show();
    const OtherProgram other(Frame);
    markManaged(other);
    other.show();
    locker.raise();

    QTRY_VERIFY(isAbove(panel.native(), other.window()));
    QVERIFY(isAbove(locker.window(), panel.native()));
}

/// The second panel tells when the first one would have risen.
void StayAboveTest::resting_othersComeAbove()
{
    Unmanaged panel;
    Unmanaged awake;
    panel.above().setResting(true);
    const OtherProgram other(Frame);
    markManaged(other);

    other.show();
    QTRY_VERIFY(isAbove(awake.native(), other.window()));
    QVERIFY(isAbove(other.window(), panel.native()));

    panel.above().setResting(false);
    QTRY_VERIFY(isAbove(panel.native(), other.window()));
}

/// Whoever answers each rise at once would be answered thirty times a second.
void StayAboveTest::rival_isNotFoughtWithoutEnd()
{
    Unmanaged panel;
    const OtherProgram rival(Frame);
    markManaged(rival);
    rival.show();
    int rises = 0;

    const auto end = QDeadlineTimer(1500);
    while (!end.hasExpired()) {
        if (isAbove(panel.native(), rival.window())) {
            ++rises;
            rival.raise();
        }
        QTest::qWait(1);
    }

    QVERIFY2(rises <= 10, qPrintable(QString::number(rises)));
    QTRY_VERIFY_WITH_TIMEOUT(isAbove(panel.native(), rival.window()), 10'000);
}

QTEST_MAIN(StayAboveTest)
#include "tst_stayabove.moc"
