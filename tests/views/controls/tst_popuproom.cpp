#include "support/panel/shelftab.h"

#include "views/shapes/notchshape.h"

using namespace Qt::StringLiterals;
using quib::Tab;

/// Menus and tooltips at the edges of the real card.
class PopupRoomTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void menu_keepsClearOfTheCardsEdge_data();
    void menu_keepsClearOfTheCardsEdge();
    void toolTip_keepsClearOfTheCardsEdge_data();
    void toolTip_keepsClearOfTheCardsEdge();
};

namespace {

constexpr double Gap = 4;

/// The popup that is open; null while there is none.
const QQuickItem* popup(const ShownPanel& panel)
{
    return ShownPanel::findAll(panel.window->contentItem(), u"popup"_s).value(0);
}

bool isClearOfTheEdge(const ShownPanel& panel, const QQuickItem& popup)
{
    const auto radius = numberOf(&popup, "radius") + Gap;
    QPainterPath around;
    around.addRoundedRect(inScene(&popup).adjusted(-Gap, 0, Gap, Gap), radius, radius);
    const auto* shape = panel.root()->findChild<quib::NotchShape*>();
    return inScene(&popup).top() >= Gap && shape->pathInScene().contains(around);
}

} // namespace

void PopupRoomTest::menu_keepsClearOfTheCardsEdge_data()
{
    QTest::addColumn<QPointF>("at");

    QTest::addRow("bottom left") << QPointF(-50, 300);
    QTest::addRow("bottom right") << QPointF(700, 300);
    QTest::addRow("right") << QPointF(700, 0);
}

void PopupRoomTest::menu_keepsClearOfTheCardsEdge()
{
    QFETCH(const QPointF, at);
    ShelfTab tab;
    tab.fill(1);
    auto* menu = tab.item(u"shelfList"_s)->findChild<QObject*>(u"tileMenu"_s);
    menu->setProperty("x", at.x());
    menu->setProperty("y", at.y());

    QMetaObject::invokeMethod(menu, "open");

    QTRY_VERIFY(popup(tab));
    QTRY_VERIFY(isClearOfTheEdge(tab, *popup(tab)));
}

void PopupRoomTest::toolTip_keepsClearOfTheCardsEdge_data()
{
    QTest::addColumn<QString>("of");

    QTest::addRow("bottom right") << u"edit"_s;
    QTest::addRow("top right") << u"pin"_s;
    QTest::addRow("bottom left") << u"launch"_s;
}

void PopupRoomTest::toolTip_keepsClearOfTheCardsEdge()
{
    QFETCH(const QString, of);
    ShownPanel panel;
    auto data = panel.store().data();
    data.launch = {{.id = QUuid::createUuid(), .name = u"Shop"_s, .target = QString(300, u'w')}};
    panel.store().setData(data);
    panel.open(Tab::Home);

    panel.move(panel.item(u"tabArea"_s)); // The first move only brings the pointer.
    panel.move(panel.item(of));

    QTRY_VERIFY(popup(panel));
    QTRY_VERIFY(isClearOfTheEdge(panel, *popup(panel)));
}

QTEST_MAIN(PopupRoomTest)
#include "tst_popuproom.moc"
