#include "desktop/desk/deskconnection.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// A launcher takes the keyboard from whoever has it and gives it back there when it closes. What
/// is typed afterwards lands where the user looks.
class ThirdProgramTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void givesBackToTheOpenCard_thenTheCardCollapses();
    void givesBackToThePanelThatHasCollapsed();
    void givesBackToThePanel_whoseLenderHasGone();
};

namespace {

/// An unmanaged window of a connection of its own.
class Launcher {
public:
    explicit Launcher(const Desk& desk)
        : m_server(desk.variable(u"DISPLAY"_s))
        , m_window(m_server.createUnmanaged({400, 500, 200, 100}))
    {
        xcb_map_window(m_server.xcb, m_window);
    }

    void takeKeyboard()
    {
        m_before = keyboardOwner();
        focus(m_window);
        waitFor("the launcher's keyboard", [this] { return keyboardOwner() == m_window; });
    }

    void giveBack() const { focus(m_before); }

    xcb_window_t keyboardOwner() const
    {
        const auto reply = own(
            xcb_get_input_focus_reply(m_server.xcb, xcb_get_input_focus(m_server.xcb), nullptr));
        return reply ? reply->focus : xcb_window_t(XCB_NONE);
    }

private:
    void focus(xcb_window_t window) const
    {
        xcb_set_input_focus(m_server.xcb, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
        xcb_flush(m_server.xcb);
    }

    Desk::Connection m_server;
    xcb_window_t m_window;
    xcb_window_t m_before = XCB_NONE;
};

struct BusyDesk : Desk {
    Program listener = startListener();
    Output heard{*listener};
    Program quib = startQuib();
    Launcher launcher{*this};

    void typeIntoTheCard() const
    {
        openWithPointer();
        showTab(3);
        click(TaskField);
        type(u"half a word"_s);
    }

    void leave() const
    {
        moveTo(FarAway);
        QVERIFY(waitForExpanded(false));
    }

    bool isHeardBeneath(const QString& key)
    {
        heard.forget();
        this->key(key);
        return waitFor("the key beneath", [this] { return heard.count("KeyPress event") == 1; });
    }
};

} // namespace

void ThirdProgramTest::givesBackToTheOpenCard_thenTheCardCollapses()
{
    BusyDesk desk;
    desk.typeIntoTheCard();
    desk.launcher.takeKeyboard();
    desk.type(u"what is looked for, long enough to be noticed by everybody"_s);

    desk.launcher.giveBack();
    desk.leave();

    QVERIFY(desk.isHeardBeneath(u"x"_s));
}

void ThirdProgramTest::givesBackToThePanelThatHasCollapsed()
{
    BusyDesk desk;
    desk.typeIntoTheCard();
    const auto panel = desk.launcher.keyboardOwner();
    desk.launcher.takeKeyboard();
    desk.leave();

    desk.launcher.giveBack();

    QTRY_VERIFY(desk.launcher.keyboardOwner() != panel);
    QVERIFY(desk.isHeardBeneath(u"x"_s));
}

void ThirdProgramTest::givesBackToThePanel_whoseLenderHasGone()
{
    BusyDesk desk;
    desk.typeIntoTheCard();
    const auto panel = desk.launcher.keyboardOwner();
    desk.launcher.takeKeyboard();
    desk.listener->kill();
    desk.listener->waitForFinished();
    desk.type(u"what is looked for, long enough to be noticed by everybody"_s);

    desk.launcher.giveBack();
    desk.leave();

    QTRY_VERIFY(desk.launcher.keyboardOwner() != panel);
}

QTEST_GUILESS_MAIN(ThirdProgramTest)
#include "tst_thirdprogram.moc"
