#include "support/panel/crowdedpanel.h"

using namespace Qt::StringLiterals;
using quib::Tab;

/// Lists that go on where they are cut, in one of the scales of a screen: each process has one.
class CutListsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cutEdges_fade_data();
    void cutEdges_fade();
    void whatFits_fadesNowhere();
    void cutBetweenRows_dimsTheLastRow();
    void listUnderThePointer_hasAThumb_data();
    void listUnderThePointer_hasAThumb();
    void rowOfTheKeyboard_isNotFaded_data();
    void rowOfTheKeyboard_isNotFaded();
};

namespace {

/// Beside the list, in front of it.
QQuickItem* edgesOf(const QQuickItem* list)
{
    const auto siblings = list->parentItem()->childItems();
    const auto edges = std::ranges::find_if(siblings, [list](const QQuickItem* sibling) {
        return sibling->property("flickable").value<QQuickItem*>() == list;
    });
    return edges == siblings.end() ? nullptr : *edges;
}

bool isSideways(const QQuickItem* list)
{
    return edgesOf(list)->property("isSideways").toBool();
}

bool fadesAt(const QQuickItem* list, const QString& edge)
{
    const auto* fade = ShownPanel::find(edgesOf(list), edge);
    return fade && fade->isVisible(); // None is built where everything fits.
}

/// From 0, its beginning, to 1. What a list knows of its end it learns on the way.
void scroll(QQuickItem* list, double way)
{
    const auto* edges = edgesOf(list);
    const auto start = numberOf(edges, "start");
    for (double before = -1; numberOf(edges, "end") != before;) {
        before = numberOf(edges, "end");
        list->setProperty(isSideways(list) ? "contentX" : "contentY",
                          start + way * (before - start));
    }
}

/// The outermost line of device pixels at an end of the list, without its corners.
QRect edgeLine(const QQuickItem* list, double scale, const QString& edge)
{
    const auto place = inScene(list);
    const QRect inside(
        QPoint(qCeil(place.left() * scale), qCeil(place.top() * scale)),
        QPoint(qFloor(place.right() * scale) - 1, qFloor(place.bottom() * scale) - 1));
    const bool isFirst = edge == u"moreBefore"_s;
    if (isSideways(list)) {
        return {isFirst ? inside.left() : inside.right(), inside.top(), 1, inside.height()};
    }
    return {inside.left(), isFirst ? inside.top() : inside.bottom(), inside.width(), 1};
}

bool isAlike(const QColor& one, const QColor& other)
{
    const auto isClose = [](int a, int b) { return qAbs(a - b) <= 6; };
    return isClose(one.red(), other.red()) && isClose(one.green(), other.green())
        && isClose(one.blue(), other.blue());
}

/// How many pixels of the line are not as the surface beside the list.
int remainders(const ShownPanel& panel, const QQuickItem* list, const QString& edge)
{
    const auto picture = panel.window->grabWindow();
    const auto scale = panel.window->effectiveDevicePixelRatio();
    const auto place = inScene(list);
    const auto surface
        = picture.pixelColor((QPointF(place.left() - 2, place.center().y()) * scale).toPoint());
    const auto line = edgeLine(list, scale, edge);
    int count = 0;
    for (int y = line.top(); y <= line.bottom(); ++y) {
        for (int x = line.left(); x <= line.right(); ++x) {
            count += isAlike(picture.pixelColor(x, y), surface) ? 0 : 1;
        }
    }
    return count;
}

const QQuickItem* rowOf(const ShownPanel& panel, int row)
{
    QQuickItem* item = nullptr;
    QMetaObject::invokeMethod(panel.item(u"clientList"_s), "itemAtIndex",
                              Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, row));
    return item;
}

/// From 0, black, to 1.
double brightestOf(const ShownPanel& panel, const QRectF& place)
{
    const auto scale = panel.window->effectiveDevicePixelRatio();
    const auto picture = panel.window->grabWindow().copy(
        QRectF(place.topLeft() * scale, place.size() * scale).toRect());
    float brightest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            brightest = std::max(brightest, picture.pixelColor(x, y).valueF());
        }
    }
    return brightest;
}

} // namespace

void CutListsTest::cutEdges_fade_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<QString>("name");

    QTest::addRow("clients") << Tab::Clients << u"clientList"_s;
    QTest::addRow("tasks") << Tab::Tasks << u"list"_s;
    QTest::addRow("totals") << Tab::Time << u"list"_s;
    QTest::addRow("events") << Tab::Home << u"events"_s;
    QTest::addRow("menu") << Tab::Tasks << u"menuList"_s;
    QTest::addRow("chips") << Tab::Tasks << u"chips"_s;
    QTest::addRow("shortcut boxes") << Tab::Links << u"groups"_s;
    QTest::addRow("shortcut buttons") << Tab::Links << u"buttons"_s;
    QTest::addRow("quick launch") << Tab::Home << u"items"_s;
    QTest::addRow("shelf") << Tab::Shelf << u"items"_s;
}

void CutListsTest::cutEdges_fade()
{
    QFETCH(const Tab, tab);
    QFETCH(const QString, name);
    CrowdedPanel panel(tab);
    auto* list = panel.list(name);
    QVERIFY(edgesOf(list));

    QVERIFY(!fadesAt(list, u"moreBefore"_s));
    QVERIFY(fadesAt(list, u"moreAfter"_s));
    QCOMPARE(remainders(panel, list, u"moreAfter"_s), 0);

    scroll(list, 0.5);
    QCOMPARE(remainders(panel, list, u"moreBefore"_s), 0);
    QCOMPARE(remainders(panel, list, u"moreAfter"_s), 0);

    scroll(list, 1);
    QCOMPARE(remainders(panel, list, u"moreBefore"_s), 0);
    QVERIFY(!fadesAt(list, u"moreAfter"_s));
}

void CutListsTest::whatFits_fadesNowhere()
{
    ShownPanel panel;
    panel.workspace.client(u"Café"_s);
    panel.open(Tab::Clients);
    const auto* list = panel.item(u"clientList"_s);

    QVERIFY(!fadesAt(list, u"moreBefore"_s));
    QVERIFY(!fadesAt(list, u"moreAfter"_s));
}

void CutListsTest::cutBetweenRows_dimsTheLastRow()
{
    constexpr int RowsInSight = 6;
    CrowdedPanel cut(Tab::Clients);
    CrowdedPanel whole(Tab::Clients);
    auto data = whole.store().data();
    data.clients.remove(RowsInSight, data.clients.size() - RowsInSight);
    whole.store().setData(data);
    const auto place = inScene(rowOf(cut, RowsInSight - 1));
    QVERIFY(inScene(cut.item(u"clientList"_s)).contains(place));
    QCOMPARE(inScene(rowOf(whole, RowsInSight - 1)), place);

    QCOMPARE_LT(brightestOf(cut, place), 0.9 * brightestOf(whole, place));
}

void CutListsTest::listUnderThePointer_hasAThumb_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("hasThumb");

    QTest::addRow("clients") << Tab::Clients << u"clientList"_s << true;
    QTest::addRow("tasks") << Tab::Tasks << u"list"_s << true;
    QTest::addRow("totals") << Tab::Time << u"list"_s << true;
    QTest::addRow("events") << Tab::Home << u"events"_s << true;
    QTest::addRow("menu") << Tab::Tasks << u"menuList"_s << true;
    QTest::addRow("shortcut buttons") << Tab::Links << u"buttons"_s << false;
    QTest::addRow("quick launch") << Tab::Home << u"items"_s << false;
}

void CutListsTest::listUnderThePointer_hasAThumb()
{
    QFETCH(const Tab, tab);
    QFETCH(const QString, name);
    QFETCH(const bool, hasThumb);
    CrowdedPanel panel(tab);
    const auto* list = panel.list(name);
    const auto* thumb = ShownPanel::find(edgesOf(list), u"thumb"_s);
    panel.move(panel.item(u"date"_s));
    QTRY_VERIFY(!thumb->isVisible());

    panel.move(list);

    QTRY_COMPARE(thumb->opacity(), 1.0);
    QCOMPARE(thumb->isVisible(), hasThumb);
}

void CutListsTest::rowOfTheKeyboard_isNotFaded_data()
{
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("from");
    QTest::addColumn<Qt::Key>("key");

    QTest::addRow("clients") << Tab::Clients << u"clientList"_s << u"clientList"_s << Qt::Key_Down;
    QTest::addRow("tasks") << Tab::Tasks << u"list"_s << u"tick"_s << Qt::Key_Down;
    QTest::addRow("menu") << Tab::Tasks << u"menuList"_s << u""_s << Qt::Key_Down;
    QTest::addRow("chips") << Tab::Tasks << u"chips"_s << u"allChip"_s << Qt::Key_Right;
    QTest::addRow("shortcut buttons")
        << Tab::Links << u"buttons"_s << u"shortcut"_s << Qt::Key_Down;
    QTest::addRow("quick launch") << Tab::Home << u"items"_s << u"launch"_s << Qt::Key_Right;
}

void CutListsTest::rowOfTheKeyboard_isNotFaded()
{
    QFETCH(const Tab, tab);
    QFETCH(const QString, name);
    QFETCH(const QString, from);
    QFETCH(const Qt::Key, key);
    CrowdedPanel panel(tab);
    const auto* list = panel.list(name);
    if (!from.isEmpty()) {
        panel.item(from)->forceActiveFocus(Qt::TabFocusReason);
    }

    for (int step = 0; step < 20; ++step) {
        panel.press(key);
    }

    const auto* row = list->property("currentItem").value<QQuickItem*>();
    const auto across = isSideways(list) ? 0 : 100;
    const auto along = numberOf(edgesOf(list), "fadeSize") - 0.5;
    QVERIFY(row);
    QVERIFY(inScene(list)
                .adjusted(across ? -across : along, across ? along : -100, across ? across : -along,
                          across ? -along : 100)
                .contains(inScene(row)));
}

QTEST_MAIN(CutListsTest)
#include "tst_cutlists.moc"
