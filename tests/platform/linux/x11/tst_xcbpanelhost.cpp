#include "platform/linux/x11/xcbpanelonscreen.h"

#include <QTest>

using namespace quib;

namespace {

constexpr auto Frame = XcbPanelOnScreen::Frame;
constexpr auto Card = XcbPanelOnScreen::Card;

} // namespace

/// Where the panel is, what it covers, and which clicks it takes.
class XcbPanelHostTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_panel = std::make_unique<XcbPanelOnScreen>(); }
    void cleanup() { m_panel.reset(); }
    void place_putsTheWindowWhereItIsTold();
    void orderFront_isAboveWhatCameBefore();
    void placeBelow_isOverUntilOrderedFront();
    void clicks_reachWhatLiesBeneathAtFirst();
    void clicks_insideTheRegion_stayWithThePanel();
    void clicks_besideTheRegion_reachWhatLiesBeneath();
    void clicks_afterTheRegionIsEmptyAgain_reachWhatLiesBeneath();
    void inputRegion_survivesHidingAndShowing();
    void inputRegion_survivesANewNativeWindow();
    void inputRegion_isInPixels();
    void windowGone_nothingHappens();

private:
    std::unique_ptr<XcbPanelOnScreen> m_panel;
};

void XcbPanelHostTest::place_putsTheWindowWhereItIsTold()
{
    m_panel->show();

    QCOMPARE(nativeFrame(m_panel->native()), m_panel->scaled(Frame));
}

void XcbPanelHostTest::orderFront_isAboveWhatCameBefore()
{
    m_panel->host.setInputRegion(Card);
    m_panel->show();
    OtherProgram late(QRect(0, 0, 1600, 900));
    late.show();
    click(m_panel->onScreen(Card.center()));
    QCOMPARE(late.presses(), 1);

    m_panel->host.orderFront();

    QTRY_COMPARE((click(m_panel->onScreen(Card.center())), late.presses()), 0);
}

void XcbPanelHostTest::placeBelow_isOverUntilOrderedFront()
{
    m_panel->show();
    const OtherProgram dialog({100, 0, 600, 200}, OtherProgram::Placing::ByWindowManager);
    m_panel->host.placeBelow(dialog.window());
    dialog.show();
    XcbPanelHost awake; // Tells when the first one would have risen.
    QWindow other;
    awake.adopt(other);
    awake.place(Frame);
    awake.orderFront();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    dialog.raise();
    QTRY_VERIFY(isAbove(xcb_window_t(other.winId()), dialog.window()));
    QVERIFY(isAbove(dialog.window(), m_panel->native()));

    m_panel->host.orderFront();

    QTRY_VERIFY(isAbove(m_panel->native(), dialog.window()));
}

void XcbPanelHostTest::clicks_reachWhatLiesBeneathAtFirst()
{
    m_panel->show();

    click(m_panel->onScreen(Card.center()));

    QCOMPARE(m_panel->beneath.presses(), 1);
}

void XcbPanelHostTest::clicks_insideTheRegion_stayWithThePanel()
{
    m_panel->show();

    m_panel->host.setInputRegion(Card);
    click(m_panel->onScreen(Card.topLeft() + QPoint(1, 1)));
    click(m_panel->onScreen(Card.bottomRight() - QPoint(1, 1)));

    QCOMPARE(m_panel->beneath.presses(), 0);
}

void XcbPanelHostTest::clicks_besideTheRegion_reachWhatLiesBeneath()
{
    m_panel->show();

    m_panel->host.setInputRegion(Card);
    click(m_panel->onScreen({Card.left() - 3, 10}));
    click(m_panel->onScreen({Card.center().x(), Card.bottom() + 3}));

    QCOMPARE(m_panel->beneath.presses(), 2);
}

void XcbPanelHostTest::clicks_afterTheRegionIsEmptyAgain_reachWhatLiesBeneath()
{
    m_panel->show();
    m_panel->host.setInputRegion(Card);

    m_panel->host.setInputRegion({});
    click(m_panel->onScreen(Card.center()));

    QCOMPARE(m_panel->beneath.presses(), 1);
}

void XcbPanelHostTest::inputRegion_survivesHidingAndShowing()
{
    m_panel->show();
    m_panel->host.setInputRegion(Card);

    m_panel->window->hide();
    m_panel->show();

    QCOMPARE(m_panel->inputShape(), QRegion(m_panel->scaled(Card)));
}

void XcbPanelHostTest::inputRegion_survivesANewNativeWindow()
{
    m_panel->show();
    m_panel->host.setInputRegion(Card);

    m_panel->window->destroy();
    m_panel->show();

    QCOMPARE(m_panel->inputShape(), QRegion(m_panel->scaled(Card)));
}

void XcbPanelHostTest::inputRegion_isInPixels()
{
    m_panel->show();

    m_panel->host.setInputRegion(QRegion(3, 5, 11, 7) + QRect(100, 50, 21, 23));

    QCOMPARE(m_panel->inputShape(),
             QRegion(m_panel->scaled({3, 5, 11, 7})) + m_panel->scaled({100, 50, 21, 23}));
}

void XcbPanelHostTest::windowGone_nothingHappens()
{
    m_panel->show();

    m_panel->window.reset();
    m_panel->host.place(Frame);
    m_panel->host.setInputRegion(Card);
    m_panel->host.setVisibleShape({});
    m_panel->host.orderFront();
    m_panel->host.takeKeyboard();
    m_panel->host.giveBackKeyboard({});
}

QTEST_MAIN(XcbPanelHostTest)
#include "tst_xcbpanelhost.moc"
