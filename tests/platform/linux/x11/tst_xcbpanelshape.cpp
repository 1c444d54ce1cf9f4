#include "platform/linux/x11/runningprogram.h"
#include "platform/linux/x11/xcbpanelonscreen.h"

#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace quib;

namespace {

constexpr auto Frame = XcbPanelOnScreen::Frame;

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

/// What is seen of the panel where no compositor makes the rest of its window transparent.
class XcbPanelShapeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_panel = std::make_unique<XcbPanelOnScreen>(); }
    void cleanup() { m_panel.reset(); }
    void visibleShape_withoutCompositor_boundsTheWindow();
    void visibleShape_followsThePath();
    void visibleShape_isRoundInItsCorners();
    void visibleShape_thatGrows_isNotToldOfAsUnpainted();
    void visibleShape_untold_leavesTheWindowWhole();
    void visibleShape_comesAndGoesWithTheCompositor_data();
    void visibleShape_comesAndGoesWithTheCompositor();

private:
    std::unique_ptr<XcbPanelOnScreen> m_panel;
};

void XcbPanelShapeTest::visibleShape_withoutCompositor_boundsTheWindow()
{
    m_panel->host.setVisibleShape(pathOf({10, 0, 100, 50}));
    m_panel->show();

    QCOMPARE(m_panel->boundingShape(), QRegion(m_panel->scaled({10, 0, 100, 50})));
}

void XcbPanelShapeTest::visibleShape_followsThePath()
{
    m_panel->host.setVisibleShape(pathOf({10, 0, 100, 50}));
    m_panel->show();

    m_panel->host.setVisibleShape(pathOf({20, 0, 40, 20}));

    QTRY_COMPARE(m_panel->boundingShape(), QRegion(m_panel->scaled({20, 0, 40, 20})));
}

void XcbPanelShapeTest::visibleShape_isRoundInItsCorners()
{
    constexpr double Radius = 26;
    constexpr double Rounding = 0.15; // Of the edge, in pixels.
    QPainterPath path;
    path.addRoundedRect(QRectF(10, -26, 200, 126), Radius, Radius);
    m_panel->host.setVisibleShape(path);
    m_panel->show();
    const auto scale = m_panel->scale;
    const QRectF corner(10, 100 - Radius, Radius, Radius);

    const auto shape = m_panel->boundingShape();
    const auto box = m_panel->scaled(corner.toRect());
    for (int y = box.top(); y <= box.bottom(); ++y) {
        for (int x = box.left(); x <= box.right(); ++x) {
            const auto middle = QPointF(x + 0.5, y + 0.5) / scale - corner.topRight();
            const auto inside = (Radius - std::hypot(middle.x(), middle.y())) * scale;
            if (std::abs(inside) > Rounding) {
                QCOMPARE(shape.contains(QPoint(x, y)), inside > 0);
            }
        }
    }
}

void XcbPanelShapeTest::visibleShape_thatGrows_isNotToldOfAsUnpainted()
{
    m_panel->host.setVisibleShape(pathOf({10, 0, 100, 50}));
    m_panel->show();
    const ExposeCounter exposes(*m_panel->window);
    const OtherProgram above(m_panel->scaled(Frame));

    for (int width = 110; width <= 200; width += 10) {
        const QRect rect(10, 0, width, 50);
        m_panel->host.setVisibleShape(pathOf(rect));
        QTRY_COMPARE(m_panel->boundingShape(), QRegion(m_panel->scaled(rect)));
    }
    above.show();
    above.hide(); // What it uncovers has to be painted.

    QTRY_VERIFY(exposes.count > 0);
    QCOMPARE(exposes.count, 1);
}

void XcbPanelShapeTest::visibleShape_untold_leavesTheWindowWhole()
{
    m_panel->show();

    QCOMPARE(m_panel->boundingShape(), QRegion(m_panel->scaled(QRect({}, Frame.size()))));
}

void XcbPanelShapeTest::visibleShape_comesAndGoesWithTheCompositor_data()
{
    QTest::addColumn<QStringList>("command");

    QTest::addRow("picom") << QStringList{u"picom"_s, u"--backend"_s, u"xrender"_s, u"--config"_s,
                                          u"/dev/null"_s};
    QTest::addRow("xcompmgr") << QStringList{u"xcompmgr"_s};
}

void XcbPanelShapeTest::visibleShape_comesAndGoesWithTheCompositor()
{
    QFETCH(const QStringList, command);
    const QRegion whole(m_panel->scaled(QRect({}, Frame.size())));
    const QRegion shape(m_panel->scaled({10, 0, 100, 50}));
    m_panel->host.setVisibleShape(pathOf({10, 0, 100, 50}));
    m_panel->show();

    {
        const RunningProgram compositor(command);
        QTRY_COMPARE(m_panel->boundingShape(), whole);
        m_panel->host.setVisibleShape(pathOf({10, 0, 60, 60}));
        QCOMPARE(m_panel->boundingShape(), whole);
        m_panel->host.setVisibleShape(pathOf({10, 0, 100, 50}));
    }
    QTRY_COMPARE(m_panel->boundingShape(), shape);

    const RunningProgram again(command);
    QTRY_COMPARE(m_panel->boundingShape(), whole);
}

QTEST_MAIN(XcbPanelShapeTest)
#include "tst_xcbpanelshape.moc"
