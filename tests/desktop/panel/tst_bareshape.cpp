#include "desktop/desk/deskconnection.h"

#include <QTest>

#include <cmath>
#include <span>

#include <xcb/shape.h>

using namespace Qt::StringLiterals;

namespace {

/// The sizes of the shape that the panel's window has had, one after the other.
class ShapeLog {
public:
    explicit ShapeLog(const Desk& desk)
        : m_server(desk.variable(u"DISPLAY"_s))
        , m_panel(panel())
        , m_firstEvent(xcb_get_extension_data(m_server.xcb, &xcb_shape_id)->first_event)
    {
        xcb_shape_select_input(m_server.xcb, m_panel, 1);
        finish();
    }

    QSize now() const
    {
        const auto shape = own(xcb_shape_query_extents_reply(
            m_server.xcb, xcb_shape_query_extents(m_server.xcb, m_panel), nullptr));
        return {shape->bounding_shape_extents_width, shape->bounding_shape_extents_height};
    }

    /// Since it was asked last.
    QList<QSize> sizes()
    {
        finish();
        QList<QSize> sizes;
        while (const auto event = own(xcb_poll_for_event(m_server.xcb))) {
            const auto* change = reinterpret_cast<const xcb_shape_notify_event_t*>(event.get());
            if (change->response_type == m_firstEvent + XCB_SHAPE_NOTIFY
                && change->shape_kind == XCB_SHAPE_SK_BOUNDING) {
                sizes << QSize(change->extents_width, change->extents_height);
            }
        }
        return sizes;
    }

private:
    xcb_window_t panel() const
    {
        const auto tree = own(xcb_query_tree_reply(
            m_server.xcb, xcb_query_tree(m_server.xcb, m_server.root), nullptr));
        for (const auto window :
             std::span(xcb_query_tree_children(tree.get()), tree->children_len)) {
            const auto place = own(xcb_get_geometry_reply(
                m_server.xcb, xcb_get_geometry(m_server.xcb, window), nullptr));
            if (place && place->width == 760 && place->height == 330) {
                return window;
            }
        }
        return XCB_NONE;
    }

    void finish() const
    {
        const auto reply = own(
            xcb_get_input_focus_reply(m_server.xcb, xcb_get_input_focus(m_server.xcb), nullptr));
    }

    Desk::Connection m_server;
    xcb_window_t m_panel;
    int m_firstEvent;
};

} // namespace

/// Where nothing blends windows, the panel's has the shape of what is drawn.
class BareShapeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void expansion_noFrameMixesOldAndNewSizes_data();
    void expansion_noFrameMixesOldAndNewSizes();
};

void BareShapeTest::expansion_noFrameMixesOldAndNewSizes_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<bool>("opens");

    QTest::addRow("open") << Desk::FarAway << Desk::Notch << true;
    QTest::addRow("close") << Desk::Notch << Desk::FarAway << false;
}

/// On the way from one size to the other, width and height have always come equally far.
void BareShapeTest::expansion_noFrameMixesOldAndNewSizes()
{
    QFETCH(const QPoint, from);
    QFETCH(const QPoint, to);
    QFETCH(const bool, opens);
    constexpr double Rounding = 0.02;
    Desk desk;
    const auto quib = desk.startQuib();
    ShapeLog log(desk);
    desk.moveTo(from);
    QVERIFY(desk.waitForExpanded(!opens));
    QVERIFY(waitForLasting("the spring to rest", [&] { return log.sizes().isEmpty(); }));
    const auto first = log.now();

    desk.moveTo(to);
    QVERIFY(desk.waitForExpanded(opens));
    QList<QSize> sizes;
    QVERIFY(waitForLasting("the spring to rest", [&] {
        const auto further = log.sizes();
        sizes += further;
        return further.isEmpty();
    }));

    QVERIFY(sizes.size() > 2);
    const auto way = log.now() - first;
    for (const auto& size : std::as_const(sizes)) {
        const auto done = size - first;
        const double across = double(done.width()) / way.width();
        const double down = double(done.height()) / way.height();
        QVERIFY2(std::abs(across - down) < Rounding,
                 qPrintable(u"%1 x %2"_s.arg(size.width()).arg(size.height())));
    }
}

QTEST_GUILESS_MAIN(BareShapeTest)
#include "tst_bareshape.moc"
