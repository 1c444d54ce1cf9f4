#include "platform/linux/x11/panelthroughxwayland.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

/// Through Xwayland another window has the keyboard for the panel.
class XwaylandKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_panel->end(); }
    void takeKeyboard_panelHasTheFocusOnceItHasTheKeys();
    void takeKeyboard_twice_isNewOnce();
    void keys_reachThePanel();
    void heldKey_repeats();
    void keyboard_isOfAWindowThatIsInNoList();
    void giveBackKeyboard_returnsToTheLender();
    void giveBackAndTakeAtOnce_hasIt();
    void anotherWindowTakesIt_panelLosesTheFocus();
    void closingTheKeysWindow_givesTheKeyboardBack();

private:
    std::unique_ptr<RunningProgram> m_manager;
    std::unique_ptr<PanelThroughXwayland> m_panel;
};

void XwaylandKeyboardTest::initTestCase()
{
    m_manager = PanelThroughXwayland::startWindowManager();
    QVERIFY(m_manager);
}

void XwaylandKeyboardTest::init()
{
    m_panel = std::make_unique<PanelThroughXwayland>();
    m_panel->show();
}

void XwaylandKeyboardTest::takeKeyboard_panelHasTheFocusOnceItHasTheKeys()
{
    m_panel->open();

    QVERIFY(m_panel->host->takeKeyboard());
    QVERIFY(!m_panel->hasFocus());

    QTRY_VERIFY(m_panel->hasFocus());
    QVERIFY(m_panel->window->isActive());
    QVERIFY(keyboardOwner() != m_panel->lender->window());
    QVERIFY(keyboardOwner() != m_panel->native());
}

void XwaylandKeyboardTest::takeKeyboard_twice_isNewOnce()
{
    m_panel->open();

    QVERIFY(m_panel->host->takeKeyboard());
    QVERIFY(!m_panel->host->takeKeyboard());
    QTRY_VERIFY(m_panel->hasFocus());
    QVERIFY(!m_panel->host->takeKeyboard());
}

void XwaylandKeyboardTest::keys_reachThePanel()
{
    m_panel->openWithKeyboard();
    m_panel->lender->keys();

    QVERIFY(xdotool({u"type"_s, u"a task"_s}));

    QTRY_COMPARE(m_panel->window->heard, u"a task"_s);
    QCOMPARE(m_panel->lender->keys(), 0);
}

void XwaylandKeyboardTest::heldKey_repeats()
{
    m_panel->openWithKeyboard();

    QVERIFY(xdotool({u"keydown"_s, u"x"_s}));
    QTRY_VERIFY(m_panel->window->repeats.size() > 4);
    QVERIFY(xdotool({u"keyup"_s, u"x"_s}));

    QVERIFY(!m_panel->window->repeats.first());
    QCOMPARE(m_panel->window->repeats.count(false), 1);
}

void XwaylandKeyboardTest::keyboard_isOfAWindowThatIsInNoList()
{
    m_panel->openWithKeyboard();

    auto* connection = qtConnection();
    const XcbOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, keyboardOwner(), atomNamed(connection, "_NET_WM_STATE"),
                         XCB_ATOM_ATOM, 0, 16),
        nullptr));
    QVERIFY(reply);
    const auto* atoms = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()));
    const QList<xcb_atom_t> state(atoms, atoms + reply->value_len);
    QVERIFY(state.contains(atomNamed(connection, "_NET_WM_STATE_SKIP_TASKBAR")));
    QVERIFY(state.contains(atomNamed(connection, "_NET_WM_STATE_SKIP_PAGER")));
}

void XwaylandKeyboardTest::giveBackKeyboard_returnsToTheLender()
{
    for (int i = 0; i < 10; ++i) {
        m_panel->openWithKeyboard();

        m_panel->close();
        m_panel->host->giveBackKeyboard({});

        QTRY_COMPARE(keyboardOwner(), m_panel->lender->window());
        QTRY_VERIFY(!m_panel->hasFocus());
    }
}

void XwaylandKeyboardTest::giveBackAndTakeAtOnce_hasIt()
{
    m_panel->openWithKeyboard();

    m_panel->host->giveBackKeyboard({});
    QVERIFY(m_panel->host->takeKeyboard());

    QTRY_VERIFY((xdotool({u"type"_s, u"x"_s}), !m_panel->window->heard.isEmpty()));
    QTRY_VERIFY(m_panel->hasFocus());
}

void XwaylandKeyboardTest::anotherWindowTakesIt_panelLosesTheFocus()
{
    m_panel->openWithKeyboard();

    m_panel->lender->takeKeyboard();
    QTRY_VERIFY(!m_panel->hasFocus());

    QVERIFY(m_panel->host->takeKeyboard());
    QTRY_VERIFY(m_panel->hasFocus());
}

void XwaylandKeyboardTest::closingTheKeysWindow_givesTheKeyboardBack()
{
    m_panel->openWithKeyboard();

    QVERIFY(xdotool({u"key"_s, u"alt+F4"_s}));

    QTRY_COMPARE(keyboardOwner(), m_panel->lender->window());
    QVERIFY(m_panel->window->isVisible());
    QVERIFY(m_panel->host->takeKeyboard());
    QTRY_VERIFY(m_panel->hasFocus());
}

QTEST_MAIN(XwaylandKeyboardTest)
#include "tst_xwaylandkeyboard.moc"
