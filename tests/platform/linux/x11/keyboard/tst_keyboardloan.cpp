#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/xcbpanelhost.h"

#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

/// A panel that counts the keys typed into it.
class Panel : public QWindow {
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent* /*event*/) override { ++keys; }
};

} // namespace

/// The server's own rules, without a window manager.
class KeyboardLoanTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void orderFront_takesNoKeyboard();
    void takeKeyboard_bringsTheKeysHere();
    void takeKeyboard_afterAChangeThatQtDidNotSee_bringsTheKeysHere();
    void giveBackKeyboard_returnsItToWhoHadIt();
    void giveBackKeyboard_twiceInARow_returnsItEachTime();
    void giveBackKeyboard_takenTwice_returnsItToWhoHadItFirst();
    void giveBackKeyboard_notTaken_leavesItAlone();
    void giveBackKeyboard_movedOnMeanwhile_leavesItThere();
    void giveBackKeyboard_clickMovesItLater_leavesItThere();
    void giveBackKeyboard_clickOfUnknownTime_returnsIt();
    void giveBackKeyboard_lenderHasEnded_freesIt();
    void giveBackKeyboard_lenderIsHidden_freesIt();
    void giveBackKeyboard_nobodyHadIt_freesIt();
    void giveBackKeyboard_afterAShortcutOfAnother_returnsIt();
    void giveBackKeyboard_returnedByAThird_goesToTheLastLender();
    void keyboardOfAClosedPanel_isPassedOn();

private:
    xcb_window_t native() const { return xcb_window_t(m_panel->winId()); }

    std::unique_ptr<XcbPanelHost> m_host;
    std::unique_ptr<Panel> m_panel;
    std::unique_ptr<OtherProgram> m_other;
};

void KeyboardLoanTest::init()
{
    m_other = std::make_unique<OtherProgram>(QRect(0, 300, 200, 200));
    m_other->show();
    m_other->takeKeyboard();
    m_panel = std::make_unique<Panel>();
    m_host = std::make_unique<XcbPanelHost>();
    m_host->adopt(*m_panel);
    m_host->place({200, 0, 300, 200});
    m_host->setInputRegion(QRect(0, 0, 300, 200));
    m_host->orderFront();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
}

void KeyboardLoanTest::cleanup()
{
    m_host.reset();
    m_panel.reset();
    m_other.reset();
}

void KeyboardLoanTest::orderFront_takesNoKeyboard()
{
    xdotool({u"key"_s, u"a"_s});

    QCOMPARE(m_other->keys(), 1);
}

void KeyboardLoanTest::takeKeyboard_bringsTheKeysHere()
{
    m_host->takeKeyboard();
    xdotool({u"key"_s, u"a"_s});

    QTRY_COMPARE(m_panel->keys, 1);
    QVERIFY(m_panel->isActive());
    QCOMPARE(m_other->keys(), 0);
}

void KeyboardLoanTest::takeKeyboard_afterAChangeThatQtDidNotSee_bringsTheKeysHere()
{
    const OtherProgram latest(QRect(0, 600, 200, 200));
    latest.show();
    latest.takeKeyboard();

    m_host->takeKeyboard();

    QCOMPARE(keyboardOwner(), native());
}

void KeyboardLoanTest::giveBackKeyboard_returnsItToWhoHadIt()
{
    m_host->takeKeyboard();
    QTRY_VERIFY(m_panel->isActive());

    m_host->giveBackKeyboard({});
    xdotool({u"key"_s, u"a"_s});

    QCOMPARE(m_other->keys(), 1);
    QTRY_VERIFY(!m_panel->isActive());
}

void KeyboardLoanTest::giveBackKeyboard_twiceInARow_returnsItEachTime()
{
    for (int round = 0; round < 2; ++round) {
        m_host->takeKeyboard();
        QCOMPARE(keyboardOwner(), native());

        m_host->giveBackKeyboard({});
        QCOMPARE(keyboardOwner(), m_other->window());
    }
}

void KeyboardLoanTest::giveBackKeyboard_takenTwice_returnsItToWhoHadItFirst()
{
    m_host->takeKeyboard();
    m_host->takeKeyboard();

    m_host->giveBackKeyboard({});

    QCOMPARE(keyboardOwner(), m_other->window());
}

void KeyboardLoanTest::giveBackKeyboard_notTaken_leavesItAlone()
{
    m_host->giveBackKeyboard({});

    QCOMPARE(keyboardOwner(), m_other->window());
}

void KeyboardLoanTest::giveBackKeyboard_movedOnMeanwhile_leavesItThere()
{
    m_host->takeKeyboard();
    const OtherProgram third(QRect(0, 600, 200, 200));
    third.show();
    third.takeKeyboard();

    m_host->giveBackKeyboard({});

    QCOMPARE(keyboardOwner(), third.window());
}

void KeyboardLoanTest::giveBackKeyboard_clickMovesItLater_leavesItThere()
{
    OtherProgram clicked(QRect(0, 600, 200, 200));
    clicked.show();
    m_host->takeKeyboard();
    click({100, 700});
    const auto time = clicked.timeOfLastPress();

    m_host->giveBackKeyboard(time);
    QCOMPARE(keyboardOwner(), m_other->window());
    clicked.takeKeyboard(time);

    QCOMPARE(keyboardOwner(), clicked.window());
}

void KeyboardLoanTest::giveBackKeyboard_clickOfUnknownTime_returnsIt()
{
    m_host->takeKeyboard();

    m_host->giveBackKeyboard(XCB_CURRENT_TIME);

    QCOMPARE(keyboardOwner(), m_other->window());
}

void KeyboardLoanTest::giveBackKeyboard_lenderHasEnded_freesIt()
{
    m_host->takeKeyboard();
    m_other->end();

    m_host->giveBackKeyboard({});

    QCOMPARE(keyboardOwner(), xcb_window_t(XCB_INPUT_FOCUS_POINTER_ROOT));
}

void KeyboardLoanTest::giveBackKeyboard_lenderIsHidden_freesIt()
{
    m_host->takeKeyboard();
    m_other->hide();

    m_host->giveBackKeyboard({});

    QCOMPARE(keyboardOwner(), xcb_window_t(XCB_INPUT_FOCUS_POINTER_ROOT));
}

void KeyboardLoanTest::giveBackKeyboard_nobodyHadIt_freesIt()
{
    m_other->letKeyboardGo();
    m_host->takeKeyboard();
    QCOMPARE(keyboardOwner(), native());

    m_host->giveBackKeyboard({});

    QCOMPARE(keyboardOwner(), xcb_window_t(XCB_INPUT_FOCUS_POINTER_ROOT));
}

void KeyboardLoanTest::giveBackKeyboard_afterAShortcutOfAnother_returnsIt()
{
    m_host->takeKeyboard();
    QTRY_VERIFY(m_panel->isActive());
    QSignalSpy activity(m_panel.get(), &QWindow::activeChanged);
    m_other->grabKeyboard();
    activity.wait(1000);
    m_other->ungrabKeyboard();

    m_host->giveBackKeyboard({});

    QCOMPARE(keyboardOwner(), m_other->window());
}

void KeyboardLoanTest::giveBackKeyboard_returnedByAThird_goesToTheLastLender()
{
    m_host->takeKeyboard();
    const OtherProgram third(QRect(0, 600, 200, 200));
    third.show();
    third.takeKeyboard();
    QTRY_VERIFY(!m_panel->isActive());
    third.focus(native());
    QTRY_VERIFY(m_panel->isActive());

    m_host->giveBackKeyboard({});

    QCOMPARE(keyboardOwner(), m_other->window());
}

void KeyboardLoanTest::keyboardOfAClosedPanel_isPassedOn()
{
    m_host->takeKeyboard();
    const OtherProgram third(QRect(0, 600, 200, 200));
    third.show();
    third.takeKeyboard();
    m_host->setInputRegion({});

    third.focus(native());

    QTRY_COMPARE(keyboardOwner(), m_other->window());
}

QTEST_MAIN(KeyboardLoanTest)
#include "tst_keyboardloan.moc"
