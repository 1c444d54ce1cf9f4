#include "support/panel/linkstab.h"

using namespace Qt::StringLiterals;

/// How the boxes of the links tab share its room, and their buttons the box.
class ShortcutBoxesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_links = std::make_unique<LinksTab>(); }
    void cleanup() { m_links.reset(); }

    void problem_standsAboveTheBoxes();
    void boxes_shareTheWidth_data();
    void boxes_shareTheWidth();
    void buttons_standInAGrid_data();
    void buttons_standInAGrid();
    void manyBoxes_scroll();
    void manyButtons_scroll();

private:
    QQuickItem* item(const QString& name) { return m_links->item(name); }
    QRectF rect(const QString& name) { return m_links->rect(name); }

    std::unique_ptr<LinksTab> m_links;
};

void ShortcutBoxesTest::problem_standsAboveTheBoxes()
{
    m_links->write(QByteArrayLiteral("broken"));
    m_links->show();
    const auto area = rect(u"tabArea"_s);

    QVERIFY(rect(u"problem"_s).top() > area.top());
    QVERIFY(rect(u"groups"_s).top() > rect(u"problem"_s).bottom());
    QCOMPARE(rect(u"groups"_s).bottom(), area.bottom());

    m_links->show(QJsonArray());
    QCOMPARE(rect(u"groups"_s).top(), area.top() + 10);
}

void ShortcutBoxesTest::boxes_shareTheWidth_data()
{
    QTest::addColumn<int>("count");

    QTest::addRow("one") << 1;
    QTest::addRow("two") << 2;
    QTest::addRow("four") << 4;
}

void ShortcutBoxesTest::boxes_shareTheWidth()
{
    QFETCH(int, count);
    QJsonArray groups;
    for (int number = 0; number < count; ++number) {
        groups << LinksTab::group(QString::number(number), LinksTab::buttons(number));
    }
    m_links->show(groups);
    const auto area = rect(u"tabArea"_s);
    const auto boxes = m_links->boxes();

    QCOMPARE(boxes.size(), count);
    QCOMPARE(inScene(boxes.front()).left(), area.left());
    QVERIFY(isNear(inScene(boxes.back()).right(), area.right()));
    for (int number = 0; number < count; ++number) {
        const auto box = inScene(boxes.at(number));
        QVERIFY(isNear(box.width(), (area.width() - 10 * (count - 1)) / count));
        QCOMPARE(box.top(), area.top() + 10);
        QCOMPARE(box.bottom(), area.bottom());
        QVERIFY(number == 0 || isNear(box.left(), inScene(boxes.at(number - 1)).right() + 10));
    }
    QVERIFY(!item(u"groups"_s)->property("interactive").toBool());
}

void ShortcutBoxesTest::buttons_standInAGrid_data()
{
    QTest::addColumn<int>("groups");
    QTest::addColumn<int>("columns");

    QTest::addRow("one box") << 1 << 4;
    QTest::addRow("two boxes") << 2 << 2;
    QTest::addRow("three boxes") << 3 << 1;
    QTest::addRow("twelve boxes") << 12 << 1;
}

void ShortcutBoxesTest::buttons_standInAGrid()
{
    QFETCH(int, groups);
    QFETCH(int, columns);
    QJsonArray list;
    for (int number = 0; number < groups; ++number) {
        list << LinksTab::group(QString::number(number), LinksTab::buttons(5));
    }
    m_links->show(list);
    const auto box = inScene(m_links->boxes().at(0));
    const auto first = inScene(m_links->shortcut(0));

    QVERIFY(isNear(first.left(), box.left()));
    QVERIFY(first.width() >= 136);
    QVERIFY(isNear(first.width(), (box.width() - 6 * (columns - 1)) / columns));
    QVERIFY(isNear(first.height(), 36));
    for (int row = 1; row < 5; ++row) {
        const auto here = inScene(m_links->shortcut(row));
        QVERIFY(isNear(here.width(), first.width()));
        QVERIFY(isNear(here.left(), first.left() + row % columns * (first.width() + 6)));
        QVERIFY(isNear(here.top(), first.top() + row / columns * (36 + 6)));
    }
}

void ShortcutBoxesTest::manyBoxes_scroll()
{
    QJsonArray groups;
    for (int number = 0; number < 12; ++number) {
        groups << LinksTab::group(QString::number(number), LinksTab::buttons(2));
    }
    m_links->show(groups);
    auto* row = item(u"groups"_s);

    QCOMPARE(m_links->boxes().at(0)->width(), 136.0);
    QCOMPARE(numberOf(row, "contentWidth"), 12 * 136.0 + 11 * 10);
    QVERIFY(row->property("interactive").toBool() && row->clip());
    QWheelEvent wheel({300, 200}, m_links->window->mapToGlobal(QPointF(300, 200)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_links->window.get(), &wheel);
    QTRY_VERIFY(numberOf(row, "contentX") > 0);
}

void ShortcutBoxesTest::manyButtons_scroll()
{
    m_links->show({LinksTab::group(u"A"_s, LinksTab::buttons(200)),
                   LinksTab::group(u"B"_s, LinksTab::buttons(1))});
    auto* grid = m_links->part(0, u"buttons"_s);

    QVERIFY(grid->property("interactive").toBool());
    QVERIFY(!m_links->part(1, u"buttons"_s)->property("interactive").toBool());
    QCOMPARE(numberOf(grid, "contentHeight"), 100 * 42.0);
    QVERIFY(!m_links->shortcut(150));
    QWheelEvent wheel({100, 200}, m_links->window->mapToGlobal(QPointF(100, 200)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_links->window.get(), &wheel);
    QTRY_VERIFY(numberOf(grid, "contentY") > 0);
}

QTEST_MAIN(ShortcutBoxesTest)
#include "tst_shortcutboxes.moc"
