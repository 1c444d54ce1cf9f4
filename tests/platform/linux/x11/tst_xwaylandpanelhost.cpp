#include "platform/linux/windowpointer.h"
#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/runningprogram.h"
#include "platform/linux/x11/xwaylandpanelhost.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

constexpr QRect Frame(420, 0, 760, 330);
constexpr QRect Card(30, 0, 700, 290); ///< In the window.
constexpr QRect Notch(270, 0, 220, 30);
constexpr QRect WiderNotch(178, 0, 404, 30);

QPainterPath drawn(QSizeF size)
{
    QPainterPath path;
    path.addRect({{}, size});
    return path;
}

/// Notes the keys that reach it, and the size that its scene has.
class Panel : public QWindow {
public:
    QSize size;
    QString heard;
    QList<bool> repeats;

protected:
    void resizeEvent(QResizeEvent* event) override { size = event->size(); }

    void keyPressEvent(QKeyEvent* event) override
    {
        heard += event->text();
        repeats.append(event->isAutoRepeat());
    }
};

} // namespace

/// On a plain X server with a window manager, which gives the keyboard like the compositors do.
class XwaylandPanelHostTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void plainServer_isNotOfAWaylandDesktop();
    void atFirst_isAsLargeAsTheNotch();
    void open_isWhole();
    void closed_isWholeUntilWhatIsDrawnFits();
    void notchGrows_isAsLargeAsIt();
    void notchBesideTheMiddle_isCentred();
    void openedAndClosedQuickly_qtAndServerAgree();
    void frames_areDrawnOnceQtKnowsTheSize();
    void clicks_besideTheNotch_reachWhatLiesBeneath();
    void inputShape_isNeverSet();
    void window_looksLikeANotification();
    void takeKeyboard_panelHasTheFocusOnceItHasTheKeys();
    void takeKeyboard_twice_isNewOnce();
    void keys_reachThePanel();
    void heldKey_repeats();
    void keyboard_isOfAWindowThatIsInNoList();
    void giveBackKeyboard_returnsToTheLender();
    void giveBackAndTakeAtOnce_hasIt();
    void anotherWindowTakesIt_panelLosesTheFocus();
    void closingTheKeysWindow_givesTheKeyboardBack();
    void windowGone_nothingHappens();

private:
    xcb_window_t native() const { return xcb_window_t(m_window->winId()); }
    QRect nativeRect() const { return nativeFrame(native()); }
    QRect onServer(const QRect& inFrame) const;
    void open();
    void close(QSizeF drawnSize = QSizeF(200, 24));
    bool hasFocus() const { return QGuiApplication::focusWindow() == m_window.get(); }

    double m_scale = 1;
    std::unique_ptr<RunningProgram> m_manager;
    std::unique_ptr<OtherProgram> m_lender;
    WindowPointer m_pointer;
    std::unique_ptr<Panel> m_window;
    std::unique_ptr<XwaylandPanelHost> m_host;
};

void XwaylandPanelHostTest::initTestCase()
{
    m_scale = qGuiApp->primaryScreen()->devicePixelRatio();
    m_manager = std::make_unique<RunningProgram>(QStringList{u"openbox"_s});
    QTRY_VERIFY(hasWindowManager());
}

void XwaylandPanelHostTest::init()
{
    m_lender = std::make_unique<OtherProgram>(QRect(0, 0, 1600, 800),
                                              OtherProgram::Placing::ByWindowManager);
    m_lender->setPlace({0, 0});
    m_lender->setProperty("_MOTIF_WM_HINTS", atomNamed(qtConnection(), "_MOTIF_WM_HINTS"),
                          {2, 0, 0, 0, 0}); // No frame.
    m_lender->show();
    QTRY_VERIFY_WITH_TIMEOUT(isManaged(m_lender->window()), 20000);
    QTRY_COMPARE((m_lender->takeKeyboard(), keyboardOwner()), m_lender->window());
    m_window = std::make_unique<Panel>();
    m_host = std::make_unique<XwaylandPanelHost>(m_pointer);
    m_host->adopt(*m_window);
    m_host->place(Frame);
    m_host->setHoverRect(Notch);
    m_host->setInputRegion({});
    m_host->setVisibleShape(drawn({200, 24}));
    m_host->orderFront();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QTRY_COMPARE(nativeRect(), onServer(Notch));
    QTRY_COMPARE(m_window->size, Notch.size());
}

void XwaylandPanelHostTest::cleanup()
{
    m_host.reset();
    m_window.reset();
    const auto lender = m_lender->window();
    m_lender.reset();
    QTRY_VERIFY_WITH_TIMEOUT(!isManaged(lender), 20000); // The next one may get the same number.
}

QRect XwaylandPanelHostTest::onServer(const QRect& inFrame) const
{
    const QRectF rect = inFrame.translated(Frame.topLeft());
    return QRectF(rect.topLeft() * m_scale, rect.size() * m_scale).toAlignedRect();
}

void XwaylandPanelHostTest::open()
{
    m_host->setHoverRect({26, 0, 708, 294});
    m_host->orderFront();
    m_host->setInputRegion(Card);
}

void XwaylandPanelHostTest::close(QSizeF drawnSize)
{
    m_host->setHoverRect(Notch);
    m_host->setInputRegion({});
    m_host->setVisibleShape(drawn(drawnSize));
}

void XwaylandPanelHostTest::plainServer_isNotOfAWaylandDesktop()
{
    QVERIFY(!isXwayland());
}

void XwaylandPanelHostTest::atFirst_isAsLargeAsTheNotch()
{
    QCOMPARE(m_window->geometry(), Notch.translated(Frame.topLeft()));
}

void XwaylandPanelHostTest::open_isWhole()
{
    open();

    QTRY_COMPARE(m_window->size, Frame.size());
    QCOMPARE(nativeRect(), onServer({{}, Frame.size()}));
}

void XwaylandPanelHostTest::closed_isWholeUntilWhatIsDrawnFits()
{
    open();
    QTRY_COMPARE(m_window->size, Frame.size());

    close({240, 60});
    QSignalSpy sizes(m_window.get(), &QWindow::widthChanged);
    QVERIFY(!sizes.wait(300));
    m_host->setVisibleShape(drawn({200, 24}));

    QTRY_COMPARE(nativeRect(), onServer(Notch));
}

void XwaylandPanelHostTest::notchGrows_isAsLargeAsIt()
{
    m_host->setHoverRect(WiderNotch);

    QTRY_COMPARE(nativeRect(), onServer(WiderNotch));
}

void XwaylandPanelHostTest::notchBesideTheMiddle_isCentred()
{
    m_host->setHoverRect(WiderNotch.adjusted(0, 0, -50, 0));

    QTRY_COMPARE(nativeRect(), onServer(WiderNotch));
}

void XwaylandPanelHostTest::openedAndClosedQuickly_qtAndServerAgree()
{
    for (int i = 0; i < 100; ++i) {
        open();
        QTest::qWait(i % 4);
        close();
        QTest::qWait(i % 7 == 0 ? 120 : i % 3);
    }
    QTRY_COMPARE(nativeRect(), onServer(Notch));
    QTRY_COMPARE(m_window->size, Notch.size());

    open();
    QTRY_COMPARE(nativeRect(), onServer({{}, Frame.size()}));
    QTRY_COMPARE(m_window->size, Frame.size());
}

void XwaylandPanelHostTest::frames_areDrawnOnceQtKnowsTheSize()
{
    open();
    QEvent frame(QEvent::UpdateRequest);
    QSignalSpy known(m_window.get(), &QWindow::widthChanged);
    QVERIFY(m_host->eventFilter(m_window.get(), &frame));

    QVERIFY(known.wait());

    QTRY_VERIFY(!m_host->eventFilter(m_window.get(), &frame));
}

void XwaylandPanelHostTest::clicks_besideTheNotch_reachWhatLiesBeneath()
{
    const auto beside = onServer(Notch);
    int presses = 0;

    click({beside.left() - 2, 10});
    click({beside.right() + 2, 10});
    click({beside.center().x(), beside.bottom() + 2});

    QTRY_COMPARE(presses += m_lender->presses(), 3);
    click(beside.center());
    QCOMPARE(m_lender->presses(), 0);
}

void XwaylandPanelHostTest::inputShape_isNeverSet()
{
    QCOMPARE(shapeOf(native(), XCB_SHAPE_SK_INPUT), QRegion({{}, onServer(Notch).size()}));

    open();
    QTRY_COMPARE(m_window->size, Frame.size());

    QCOMPARE(shapeOf(native(), XCB_SHAPE_SK_INPUT), QRegion({{}, nativeRect().size()}));
}

void XwaylandPanelHostTest::window_looksLikeANotification()
{
    auto* connection = qtConnection();
    const auto type = atomNamed(connection, "_NET_WM_WINDOW_TYPE");
    const XcbOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, native(), type, XCB_ATOM_ATOM, 0, 1), nullptr));

    QVERIFY(reply && xcb_get_property_value_length(reply.get()) > 0);
    QCOMPARE(*static_cast<xcb_atom_t*>(xcb_get_property_value(reply.get())),
             atomNamed(connection, "_NET_WM_WINDOW_TYPE_NOTIFICATION"));
}

void XwaylandPanelHostTest::takeKeyboard_panelHasTheFocusOnceItHasTheKeys()
{
    open();

    QVERIFY(m_host->takeKeyboard());
    QVERIFY(!hasFocus());

    QTRY_VERIFY(hasFocus());
    QVERIFY(m_window->isActive());
    QVERIFY(keyboardOwner() != m_lender->window());
    QVERIFY(keyboardOwner() != native());
}

void XwaylandPanelHostTest::takeKeyboard_twice_isNewOnce()
{
    open();

    QVERIFY(m_host->takeKeyboard());
    QVERIFY(!m_host->takeKeyboard());
    QTRY_VERIFY(hasFocus());
    QVERIFY(!m_host->takeKeyboard());
}

void XwaylandPanelHostTest::keys_reachThePanel()
{
    open();
    m_host->takeKeyboard();
    QTRY_VERIFY(hasFocus());
    m_lender->keys();

    QVERIFY(xdotool({u"type"_s, u"a task"_s}));

    QTRY_COMPARE(m_window->heard, u"a task"_s);
    QCOMPARE(m_lender->keys(), 0);
}

void XwaylandPanelHostTest::heldKey_repeats()
{
    open();
    m_host->takeKeyboard();
    QTRY_VERIFY(hasFocus());

    QVERIFY(xdotool({u"keydown"_s, u"x"_s}));
    QTRY_VERIFY(m_window->repeats.size() > 4);
    QVERIFY(xdotool({u"keyup"_s, u"x"_s}));

    QVERIFY(!m_window->repeats.first());
    QCOMPARE(m_window->repeats.count(false), 1);
}

void XwaylandPanelHostTest::keyboard_isOfAWindowThatIsInNoList()
{
    open();
    m_host->takeKeyboard();
    QTRY_VERIFY(hasFocus());

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

void XwaylandPanelHostTest::giveBackKeyboard_returnsToTheLender()
{
    for (int i = 0; i < 10; ++i) {
        open();
        m_host->takeKeyboard();
        QTRY_VERIFY(hasFocus());

        close();
        m_host->giveBackKeyboard({});

        QTRY_COMPARE(keyboardOwner(), m_lender->window());
        QTRY_VERIFY(!hasFocus());
    }
}

void XwaylandPanelHostTest::giveBackAndTakeAtOnce_hasIt()
{
    open();
    m_host->takeKeyboard();
    QTRY_VERIFY(hasFocus());

    m_host->giveBackKeyboard({});
    QVERIFY(m_host->takeKeyboard());

    QTRY_VERIFY((xdotool({u"type"_s, u"x"_s}), !m_window->heard.isEmpty()));
    QTRY_VERIFY(hasFocus());
}

void XwaylandPanelHostTest::anotherWindowTakesIt_panelLosesTheFocus()
{
    open();
    m_host->takeKeyboard();
    QTRY_VERIFY(hasFocus());

    m_lender->takeKeyboard();
    QTRY_VERIFY(!hasFocus());

    QVERIFY(m_host->takeKeyboard());
    QTRY_VERIFY(hasFocus());
}

void XwaylandPanelHostTest::closingTheKeysWindow_givesTheKeyboardBack()
{
    open();
    m_host->takeKeyboard();
    QTRY_VERIFY(hasFocus());

    QVERIFY(xdotool({u"key"_s, u"alt+F4"_s}));

    QTRY_COMPARE(keyboardOwner(), m_lender->window());
    QVERIFY(m_window->isVisible());
    QVERIFY(m_host->takeKeyboard());
    QTRY_VERIFY(hasFocus());
}

void XwaylandPanelHostTest::windowGone_nothingHappens()
{
    m_window.reset();

    m_host->place(Frame);
    m_host->setInputRegion(Card);
    m_host->setHoverRect(Notch);
    m_host->setVisibleShape(drawn({200, 24}));
    m_host->orderFront();
    QVERIFY(!m_host->takeKeyboard());
    m_host->giveBackKeyboard({});
}

QTEST_MAIN(XwaylandPanelHostTest)
#include "tst_xwaylandpanelhost.moc"
