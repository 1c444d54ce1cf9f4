#include "platform/linux/x11/otherprogram.h"
#include "platform/linux/x11/runningprogram.h"
#include "platform/linux/x11/xcbpanelhost.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

constexpr QRect Frame(200, 0, 300, 200);
constexpr QRect Card(50, 0, 200, 100); ///< In the window.

QPainterPath pathOf(const QRectF& rect)
{
    QPainterPath path;
    path.addRect(rect);
    return path;
}

/// How often Qt has been told that a window is to be painted.
class ExposeCounter final : public QObject {
public:
    int count = 0;

    explicit ExposeCounter(QWindow& window) { window.installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        count += event->type() == QEvent::Expose ? 1 : 0;
        return QObject::eventFilter(object, event);
    }
};

} // namespace

class XcbPanelHostTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
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
    void visibleShape_withoutCompositor_boundsTheWindow();
    void visibleShape_followsThePath();
    void visibleShape_thatGrows_isNotToldOfAsUnpainted();
    void visibleShape_untold_leavesTheWindowWhole();
    void visibleShape_comesAndGoesWithTheCompositor_data();
    void visibleShape_comesAndGoesWithTheCompositor();
    void windowGone_nothingHappens();

private:
    xcb_window_t native() const { return xcb_window_t(m_window->winId()); }
    QRegion inputShape() const { return shapeOf(native(), XCB_SHAPE_SK_INPUT); }
    QRegion boundingShape() const { return shapeOf(native(), XCB_SHAPE_SK_BOUNDING); }
    QRect scaled(const QRect& points) const;
    QPoint onScreen(QPoint inWindow) const;
    void showPanel();

    double m_scale = 1;
    std::unique_ptr<XcbPanelHost> m_host;
    std::unique_ptr<QWindow> m_window;
    std::unique_ptr<OtherProgram> m_beneath;
};

void XcbPanelHostTest::init()
{
    m_scale = qGuiApp->primaryScreen()->devicePixelRatio();
    m_beneath = std::make_unique<OtherProgram>(QRect(0, 0, 1600, 900));
    m_beneath->show();
    m_window = std::make_unique<QWindow>();
    m_host = std::make_unique<XcbPanelHost>();
    m_host->adopt(*m_window);
    m_host->place(Frame);
}

void XcbPanelHostTest::cleanup()
{
    m_host.reset();
    m_window.reset();
    m_beneath.reset();
}

QRect XcbPanelHostTest::scaled(const QRect& points) const
{
    return QRectF(points.x() * m_scale, points.y() * m_scale, points.width() * m_scale,
                  points.height() * m_scale)
        .toAlignedRect();
}

QPoint XcbPanelHostTest::onScreen(QPoint inWindow) const
{
    return scaled(Frame).topLeft()
        + QPoint(qRound(inWindow.x() * m_scale), qRound(inWindow.y() * m_scale));
}

void XcbPanelHostTest::showPanel()
{
    m_host->orderFront();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void XcbPanelHostTest::place_putsTheWindowWhereItIsTold()
{
    showPanel();

    QCOMPARE(nativeFrame(native()), scaled(Frame));
}

void XcbPanelHostTest::orderFront_isAboveWhatCameBefore()
{
    m_host->setInputRegion(Card);
    showPanel();
    OtherProgram late(QRect(0, 0, 1600, 900));
    late.show();
    click(onScreen(Card.center()));
    QCOMPARE(late.presses(), 1);

    m_host->orderFront();

    QTRY_COMPARE((click(onScreen(Card.center())), late.presses()), 0);
}

void XcbPanelHostTest::placeBelow_isOverUntilOrderedFront()
{
    showPanel();
    const OtherProgram dialog({100, 0, 600, 200}, OtherProgram::Placing::ByWindowManager);
    m_host->placeBelow(dialog.window());
    dialog.show();
    XcbPanelHost awake; // Tells when the first one would have risen.
    QWindow other;
    awake.adopt(other);
    awake.place(Frame);
    awake.orderFront();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    dialog.raise();
    QTRY_VERIFY(isAbove(xcb_window_t(other.winId()), dialog.window()));
    QVERIFY(isAbove(dialog.window(), native()));

    m_host->orderFront();

    QTRY_VERIFY(isAbove(native(), dialog.window()));
}

void XcbPanelHostTest::clicks_reachWhatLiesBeneathAtFirst()
{
    showPanel();

    click(onScreen(Card.center()));

    QCOMPARE(m_beneath->presses(), 1);
}

void XcbPanelHostTest::clicks_insideTheRegion_stayWithThePanel()
{
    showPanel();

    m_host->setInputRegion(Card);
    click(onScreen(Card.topLeft() + QPoint(1, 1)));
    click(onScreen(Card.bottomRight() - QPoint(1, 1)));

    QCOMPARE(m_beneath->presses(), 0);
}

void XcbPanelHostTest::clicks_besideTheRegion_reachWhatLiesBeneath()
{
    showPanel();

    m_host->setInputRegion(Card);
    click(onScreen({Card.left() - 3, 10}));
    click(onScreen({Card.center().x(), Card.bottom() + 3}));

    QCOMPARE(m_beneath->presses(), 2);
}

void XcbPanelHostTest::clicks_afterTheRegionIsEmptyAgain_reachWhatLiesBeneath()
{
    showPanel();
    m_host->setInputRegion(Card);

    m_host->setInputRegion({});
    click(onScreen(Card.center()));

    QCOMPARE(m_beneath->presses(), 1);
}

void XcbPanelHostTest::inputRegion_survivesHidingAndShowing()
{
    showPanel();
    m_host->setInputRegion(Card);

    m_window->hide();
    showPanel();

    QCOMPARE(inputShape(), QRegion(scaled(Card)));
}

void XcbPanelHostTest::inputRegion_survivesANewNativeWindow()
{
    showPanel();
    m_host->setInputRegion(Card);

    m_window->destroy();
    showPanel();

    QCOMPARE(inputShape(), QRegion(scaled(Card)));
}

void XcbPanelHostTest::inputRegion_isInPixels()
{
    showPanel();

    m_host->setInputRegion(QRegion(3, 5, 11, 7) + QRect(100, 50, 21, 23));

    QCOMPARE(inputShape(), QRegion(scaled({3, 5, 11, 7})) + scaled({100, 50, 21, 23}));
}

void XcbPanelHostTest::visibleShape_withoutCompositor_boundsTheWindow()
{
    m_host->setVisibleShape(pathOf({10, 0, 100, 50}));
    showPanel();

    QCOMPARE(boundingShape(), QRegion(scaled({10, 0, 100, 50})));
}

void XcbPanelHostTest::visibleShape_followsThePath()
{
    m_host->setVisibleShape(pathOf({10, 0, 100, 50}));
    showPanel();

    m_host->setVisibleShape(pathOf({20, 0, 40, 20}));

    QTRY_COMPARE(boundingShape(), QRegion(scaled({20, 0, 40, 20})));
}

void XcbPanelHostTest::visibleShape_thatGrows_isNotToldOfAsUnpainted()
{
    m_host->setVisibleShape(pathOf({10, 0, 100, 50}));
    showPanel();
    const ExposeCounter exposes(*m_window);
    const OtherProgram above(scaled(Frame));

    for (int width = 110; width <= 200; width += 10) {
        const QRect rect(10, 0, width, 50);
        m_host->setVisibleShape(pathOf(rect));
        QTRY_COMPARE(boundingShape(), QRegion(scaled(rect)));
    }
    above.show();
    above.hide(); // What it uncovers has to be painted.

    QTRY_VERIFY(exposes.count > 0);
    QCOMPARE(exposes.count, 1);
}

void XcbPanelHostTest::visibleShape_untold_leavesTheWindowWhole()
{
    showPanel();

    QCOMPARE(boundingShape(), QRegion(scaled(QRect({}, Frame.size()))));
}

void XcbPanelHostTest::visibleShape_comesAndGoesWithTheCompositor_data()
{
    QTest::addColumn<QStringList>("command");

    QTest::addRow("picom") << QStringList{u"picom"_s, u"--backend"_s, u"xrender"_s, u"--config"_s,
                                          u"/dev/null"_s};
    QTest::addRow("xcompmgr") << QStringList{u"xcompmgr"_s};
}

void XcbPanelHostTest::visibleShape_comesAndGoesWithTheCompositor()
{
    QFETCH(const QStringList, command);
    const QRegion whole(scaled(QRect({}, Frame.size())));
    const QRegion shape(scaled({10, 0, 100, 50}));
    m_host->setVisibleShape(pathOf({10, 0, 100, 50}));
    showPanel();

    {
        const RunningProgram compositor(command);
        QTRY_COMPARE(boundingShape(), whole);
        m_host->setVisibleShape(pathOf({10, 0, 60, 60}));
        QCOMPARE(boundingShape(), whole);
        m_host->setVisibleShape(pathOf({10, 0, 100, 50}));
    }
    QTRY_COMPARE(boundingShape(), shape);

    const RunningProgram again(command);
    QTRY_COMPARE(boundingShape(), whole);
}

void XcbPanelHostTest::windowGone_nothingHappens()
{
    showPanel();

    m_window.reset();
    m_host->place(Frame);
    m_host->setInputRegion(Card);
    m_host->setVisibleShape(pathOf(Card));
    m_host->orderFront();
    m_host->takeKeyboard();
    m_host->giveBackKeyboard({});
}

QTEST_MAIN(XcbPanelHostTest)
#include "tst_xcbpanelhost.moc"
