#include "platform/linux/x11/panelthroughxwayland.h"

#include <QSignalSpy>
#include <QTest>

using namespace quib;

namespace {

constexpr auto Frame = PanelThroughXwayland::Frame;
constexpr auto Notch = PanelThroughXwayland::Notch;
constexpr QRect WiderNotch(178, 0, 404, 30);

} // namespace

/// Through Xwayland the panel's window is where clicks are taken.
class XwaylandPanelHostTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_panel->end(); }
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
    void windowGone_nothingHappens();

private:
    std::unique_ptr<RunningProgram> m_manager;
    std::unique_ptr<PanelThroughXwayland> m_panel;
};

void XwaylandPanelHostTest::initTestCase()
{
    m_manager = PanelThroughXwayland::startWindowManager();
    QVERIFY(m_manager);
}

void XwaylandPanelHostTest::init()
{
    m_panel = std::make_unique<PanelThroughXwayland>();
    m_panel->show();
}

void XwaylandPanelHostTest::plainServer_isNotOfAWaylandDesktop()
{
    QVERIFY(!isXwayland());
}

void XwaylandPanelHostTest::atFirst_isAsLargeAsTheNotch()
{
    QCOMPARE(m_panel->window->geometry(), Notch.translated(Frame.topLeft()));
}

void XwaylandPanelHostTest::open_isWhole()
{
    m_panel->open();

    QTRY_COMPARE(m_panel->window->size, Frame.size());
    QCOMPARE(m_panel->nativeRect(), m_panel->onServer({{}, Frame.size()}));
}

void XwaylandPanelHostTest::closed_isWholeUntilWhatIsDrawnFits()
{
    m_panel->open();
    QTRY_COMPARE(m_panel->window->size, Frame.size());

    m_panel->close({240, 60});
    QSignalSpy sizes(m_panel->window.get(), &QWindow::widthChanged);
    QVERIFY(!sizes.wait(300));
    m_panel->host->setVisibleShape(PanelThroughXwayland::drawn({200, 24}));

    QTRY_COMPARE(m_panel->nativeRect(), m_panel->onServer(Notch));
}

void XwaylandPanelHostTest::notchGrows_isAsLargeAsIt()
{
    m_panel->host->setHoverRect(WiderNotch);

    QTRY_COMPARE(m_panel->nativeRect(), m_panel->onServer(WiderNotch));
}

void XwaylandPanelHostTest::notchBesideTheMiddle_isCentred()
{
    m_panel->host->setHoverRect(WiderNotch.adjusted(0, 0, -50, 0));

    QTRY_COMPARE(m_panel->nativeRect(), m_panel->onServer(WiderNotch));
}

void XwaylandPanelHostTest::openedAndClosedQuickly_qtAndServerAgree()
{
    for (int i = 0; i < 100; ++i) {
        m_panel->open();
        QTest::qWait(i % 4);
        m_panel->close();
        QTest::qWait(i % 7 == 0 ? 120 : i % 3);
    }
    QTRY_COMPARE(m_panel->nativeRect(), m_panel->onServer(Notch));
    QTRY_COMPARE(m_panel->window->size, Notch.size());

    m_panel->open();
    QTRY_COMPARE(m_panel->nativeRect(), m_panel->onServer({{}, Frame.size()}));
    QTRY_COMPARE(m_panel->window->size, Frame.size());
}

void XwaylandPanelHostTest::frames_areDrawnOnceQtKnowsTheSize()
{
    m_panel->open();
    QEvent frame(QEvent::UpdateRequest);
    QSignalSpy known(m_panel->window.get(), &QWindow::widthChanged);
    QVERIFY(m_panel->host->eventFilter(m_panel->window.get(), &frame));

    QVERIFY(known.wait());

    QTRY_VERIFY(!m_panel->host->eventFilter(m_panel->window.get(), &frame));
}

void XwaylandPanelHostTest::clicks_besideTheNotch_reachWhatLiesBeneath()
{
    const auto beside = m_panel->onServer(Notch);
    int presses = 0;

    click({beside.left() - 2, 10});
    click({beside.right() + 2, 10});
    click({beside.center().x(), beside.bottom() + 2});

    QTRY_COMPARE(presses += m_panel->lender->presses(), 3);
    click(beside.center());
    QCOMPARE(m_panel->lender->presses(), 0);
}

void XwaylandPanelHostTest::inputShape_isNeverSet()
{
    QCOMPARE(shapeOf(m_panel->native(), XCB_SHAPE_SK_INPUT),
             QRegion({{}, m_panel->onServer(Notch).size()}));

    m_panel->open();
    QTRY_COMPARE(m_panel->window->size, Frame.size());

    QCOMPARE(shapeOf(m_panel->native(), XCB_SHAPE_SK_INPUT),
             QRegion({{}, m_panel->nativeRect().size()}));
}

void XwaylandPanelHostTest::window_looksLikeANotification()
{
    auto* connection = qtConnection();
    const auto type = atomNamed(connection, "_NET_WM_WINDOW_TYPE");
    const XcbOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, m_panel->native(), type, XCB_ATOM_ATOM, 0, 1),
        nullptr));

    QVERIFY(reply && xcb_get_property_value_length(reply.get()) > 0);
    QCOMPARE(*static_cast<xcb_atom_t*>(xcb_get_property_value(reply.get())),
             atomNamed(connection, "_NET_WM_WINDOW_TYPE_NOTIFICATION"));
}

void XwaylandPanelHostTest::windowGone_nothingHappens()
{
    m_panel->window.reset();

    m_panel->host->place(Frame);
    m_panel->host->setInputRegion(PanelThroughXwayland::Card);
    m_panel->host->setHoverRect(Notch);
    m_panel->host->setVisibleShape(PanelThroughXwayland::drawn({200, 24}));
    m_panel->host->orderFront();
    QVERIFY(!m_panel->host->takeKeyboard());
    m_panel->host->giveBackKeyboard({});
}

QTEST_MAIN(XwaylandPanelHostTest)
#include "tst_xwaylandpanelhost.moc"
