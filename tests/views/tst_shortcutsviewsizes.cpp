#include "support/linkstab.h"

#include "brand/brand.h"

#include <QFont>

using namespace Qt::StringLiterals;
using quib::Brand;

/// Every number of the links tab, read from the live items.
class ShortcutsViewSizesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_links = std::make_unique<LinksTab>(); }
    void cleanup() { m_links.reset(); }

    void problem_standsAboveTheBoxes();
    void boxes_shareTheWidth_data();
    void boxes_shareTheWidth();
    void header_hasItsSizes();
    void buttons_standInAGrid_data();
    void buttons_standInAGrid();
    void button_hasItsSizes();
    void button_hasTheColoursOfItsGroup_data();
    void button_hasTheColoursOfItsGroup();
    void name_shrinksBeforeItIsCut();
    void names_stayInTheirButtons_data();
    void names_stayInTheirButtons();
    void manyBoxes_scroll();
    void manyButtons_scroll();

private:
    QQuickItem* item(const QString& name) { return m_links->item(name); }
    QRectF rect(const QString& name) { return m_links->rect(name); }
    void showOne(const QString& name, const QString& color = {})
    {
        m_links->show(
            {LinksTab::group(u"Work"_s, {LinksTab::button(name, u"a.b"_s, u"star"_s)}, color)});
    }

    std::unique_ptr<LinksTab> m_links;
};

namespace {

bool near(double one, double other)
{
    return qAbs(one - other) < 0.001;
}

/// The colour and its opacity in hundredths.
QString told(const QColor& color)
{
    return color.name() + u' ' + QString::number(qRound(color.alphaF() * 100));
}

} // namespace

void ShortcutsViewSizesTest::problem_standsAboveTheBoxes()
{
    m_links->write(QByteArrayLiteral("broken"));
    m_links->show();
    const auto area = rect(u"tabArea"_s);
    const auto problem = rect(u"problem"_s);
    const auto* symbol = item(u"problemSymbol"_s);
    const auto* text = item(u"problemText"_s);

    QCOMPARE(problem.left(), area.left());
    QCOMPARE(problem.top(), area.top() + 10);
    QCOMPARE(rect(u"groups"_s).top(), problem.bottom() + 8);
    QCOMPARE(rect(u"groups"_s).bottom(), area.bottom());
    QCOMPARE(symbol->property("name").toString(), u"exclamationmark.triangle.fill"_s);
    QCOMPARE(symbol->property("size").toDouble(), 10.5);
    QCOMPARE(colorOf(symbol), Brand::gold());
    QCOMPARE(text->property("size").toDouble(), 10.5);
    QCOMPARE(text->property("weight").toInt(), int(QFont::Normal));
    QCOMPARE(colorOf(text), Brand::gold());
    QCOMPARE(inScene(symbol).left(), area.left());
    QVERIFY(inScene(text).left() > inScene(symbol).right());

    m_links->show(QJsonArray());
    QCOMPARE(rect(u"groups"_s).top(), area.top() + 10);
}

void ShortcutsViewSizesTest::boxes_shareTheWidth_data()
{
    QTest::addColumn<int>("count");

    QTest::addRow("one") << 1;
    QTest::addRow("two") << 2;
    QTest::addRow("four") << 4;
}

void ShortcutsViewSizesTest::boxes_shareTheWidth()
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
    QVERIFY(near(inScene(boxes.back()).right(), area.right()));
    for (int number = 0; number < count; ++number) {
        const auto box = inScene(boxes.at(number));
        QVERIFY(near(box.width(), (area.width() - 10 * (count - 1)) / count));
        QCOMPARE(box.top(), area.top() + 10);
        QCOMPARE(box.bottom(), area.bottom());
        QVERIFY(number == 0 || near(box.left(), inScene(boxes.at(number - 1)).right() + 10));
    }
    QVERIFY(!item(u"groups"_s)->property("interactive").toBool());
}

void ShortcutsViewSizesTest::header_hasItsSizes()
{
    showOne(u"Go"_s);
    const auto box = inScene(m_links->boxes().at(0));
    const auto* title = m_links->part(0, u"title"_s);
    const auto* pencil = m_links->part(0, u"edit"_s);

    QCOMPARE(title->property("text").toString(), u"Work"_s);
    QVERIFY(title->property("capitals").toBool());
    QCOMPARE(title->property("size").toDouble(), 9.5);
    QCOMPARE(title->property("tracking").toDouble(), 0.8);
    QCOMPARE(colorOf(title), Brand::muted2());
    QCOMPARE(inScene(title).left(), box.left());
    QCOMPARE(pencil->property("symbol").toString(), u"pencil"_s);
    QCOMPARE(pencil->property("size").toDouble(), 10.0);
    QCOMPARE(pencil->property("help").toString(), u"Edit shortcuts (opens shortcuts.json)"_s);
    QCOMPARE(inScene(pencil), QRectF(box.right() - 24, box.top(), 24, 24));
    QVERIFY(qAbs(inScene(title).center().y() - inScene(pencil).center().y()) <= 0.5);
    QCOMPARE(inScene(m_links->shortcut(0)).top(), box.top() + 24 + 8);
}

void ShortcutsViewSizesTest::buttons_standInAGrid_data()
{
    QTest::addColumn<int>("groups");
    QTest::addColumn<int>("columns");

    QTest::addRow("one box") << 1 << 4;
    QTest::addRow("two boxes") << 2 << 2;
    QTest::addRow("three boxes") << 3 << 1;
    QTest::addRow("twelve boxes") << 12 << 1;
}

void ShortcutsViewSizesTest::buttons_standInAGrid()
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

    QVERIFY(near(first.left(), box.left()));
    QVERIFY(first.width() >= 136);
    QVERIFY(near(first.width(), (box.width() - 6 * (columns - 1)) / columns));
    QVERIFY(near(first.height(), 36));
    for (int row = 1; row < 5; ++row) {
        const auto here = inScene(m_links->shortcut(row));
        QVERIFY(near(here.width(), first.width()));
        QVERIFY(near(here.left(), first.left() + row % columns * (first.width() + 6)));
        QVERIFY(near(here.top(), first.top() + row / columns * (36 + 6)));
    }
}

void ShortcutsViewSizesTest::button_hasItsSizes()
{
    showOne(u"Go"_s);
    const auto button = inScene(m_links->shortcut(0));
    const auto* icon = m_links->partOf(0, u"icon"_s);
    const auto* symbol = m_links->partOf(0, u"symbol"_s);
    const auto* name = m_links->partOf(0, u"name"_s);
    const auto* surface = m_links->partOf(0, u"surface"_s);

    QCOMPARE(inScene(icon), QRectF(button.left() + 10, button.top() + 8, 20, 20));
    const auto off = inScene(symbol).center() - inScene(icon).center();
    QVERIFY(qAbs(off.x()) <= 0.5 && qAbs(off.y()) <= 0.5);
    QCOMPARE(symbol->property("size").toDouble(), 13.0);
    QCOMPARE(symbol->property("weight").toInt(), int(QFont::DemiBold));
    QCOMPARE(inScene(name).left(), inScene(icon).right() + 8);
    QCOMPARE(inScene(name).right(), button.right() - 10);
    QVERIFY(qAbs(inScene(name).center().y() - button.center().y()) <= 0.5);
    QCOMPARE(name->property("size").toDouble(), 12.0);
    QCOMPARE(name->property("weight").toInt(), int(QFont::DemiBold));
    QCOMPARE(inScene(surface), button);
    QCOMPARE(surface->property("radius").toDouble(), 10.0);
    QCOMPARE(surface->property("strokeWidth").toDouble(), 1.0);
}

void ShortcutsViewSizesTest::button_hasTheColoursOfItsGroup_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("ink");
    QTest::addColumn<QString>("rest");
    QTest::addColumn<QString>("hover");

    const auto neutral = [](const char* row, const QString& color) {
        QTest::addRow("%s", row) << color << u"#ffffff 100"_s << u"#ffffff 6, #000000 0"_s
                                 << u"#ffffff 12, #000000 0"_s;
    };
    const auto tinted = [](const char* row, const QString& color, const QString& tint) {
        QTest::addRow("%s", row) << color << tint + u" 100"_s << u"%1 14, %1 40"_s.arg(tint)
                                 << u"%1 26, %1 70"_s.arg(tint);
    };
    neutral("no colour", {});
    neutral("purple", u"purple"_s);
    neutral("Purple", u"Purple"_s);
    tinted("gold", u"gold"_s, u"#f5c542"_s);
    tinted("Gold", u"Gold"_s, u"#f5c542"_s);
    tinted("a green", u"#22c55e"_s, u"#22c55e"_s);
    tinted("a word that is no colour", u"red"_s, u"#a78bfa"_s);
    tinted("an empty word", u""_s, u"#a78bfa"_s);
}

void ShortcutsViewSizesTest::button_hasTheColoursOfItsGroup()
{
    QFETCH(QString, color);
    showOne(u"Go"_s, color);
    const auto* surface = m_links->partOf(0, u"surface"_s);
    const auto look = [&] {
        return told(colorOf(surface)) + u", "_s
            + told(surface->property("strokeColor").value<QColor>());
    };

    QTEST(told(colorOf(m_links->partOf(0, u"symbol"_s))), "ink");
    QTEST(told(colorOf(m_links->partOf(0, u"name"_s))), "ink");
    QTEST(look(), "rest");
    m_links->move(m_links->shortcut(0));
    QTEST(look(), "hover");
    m_links->move(m_links->part(0, u"title"_s));
    QTEST(look(), "rest");
}

void ShortcutsViewSizesTest::name_shrinksBeforeItIsCut()
{
    const auto fitOf = [&](int letters) {
        m_links->show({LinksTab::group(
            u"A"_s, {LinksTab::button(QString(letters, u'n'), u"a.b"_s, u"star"_s)})});
        return m_links->partOf(0, u"name"_s)->property("fit").toDouble();
    };

    double least = 1;
    QCOMPARE(fitOf(3), 1.0);
    for (int letters = 12; letters < 25; ++letters) {
        const auto fit = fitOf(letters);
        QVERIFY(fit <= least && fit >= 0.8);
        least = fit;
    }
    QCOMPARE(least, 0.8);
}

void ShortcutsViewSizesTest::names_stayInTheirButtons_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("sixty letters") << QString(60, u'w');
    QTest::addRow("a megabyte") << QString(1'000'000, u'w');
    QTest::addRow("pictures") << u"🎉👩‍👩‍👧"_s.repeated(30);
    QTest::addRow("from right to left") << u"مكتبة الزاوية "_s.repeated(10);
    QTest::addRow("lines") << u"Two\nlines\u2028of many"_s.repeated(10);
    QTest::addRow("none") << u""_s;
    QTest::addRow("markup") << u"<h1>Large</h1><img src='http://x/y'>"_s;
}

void ShortcutsViewSizesTest::names_stayInTheirButtons()
{
    QFETCH(QString, name);
    m_links->show({LinksTab::group(name, {LinksTab::button(name, name, u"star"_s)}),
                   LinksTab::group(u"B"_s, {})});

    const auto button = inScene(m_links->shortcut(0));
    const auto* text = m_links->partOf(0, u"name"_s);
    const auto title = inScene(m_links->part(0, u"title"_s));
    QVERIFY(near(button.height(), 36));
    QVERIFY(inScene(text).right() <= button.right() - 9.9);
    QVERIFY(inScene(text->childItems().front()).right() <= button.right() - 9.9);
    QVERIFY(inScene(text).height() < 20);
    QVERIFY(title.right() < inScene(m_links->part(0, u"edit"_s)).left());
    QVERIFY(title.height() < 20);
}

void ShortcutsViewSizesTest::manyBoxes_scroll()
{
    QJsonArray groups;
    for (int number = 0; number < 12; ++number) {
        groups << LinksTab::group(QString::number(number), LinksTab::buttons(2));
    }
    m_links->show(groups);
    auto* row = item(u"groups"_s);

    QCOMPARE(m_links->boxes().at(0)->width(), 136.0);
    QCOMPARE(row->property("contentWidth").toDouble(), 12 * 136.0 + 11 * 10);
    QVERIFY(row->property("interactive").toBool() && row->clip());
    QWheelEvent wheel({300, 200}, m_links->window->mapToGlobal(QPointF(300, 200)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_links->window.get(), &wheel);
    QTRY_VERIFY(row->property("contentX").toDouble() > 0);
}

void ShortcutsViewSizesTest::manyButtons_scroll()
{
    m_links->show({LinksTab::group(u"A"_s, LinksTab::buttons(200)),
                   LinksTab::group(u"B"_s, LinksTab::buttons(1))});
    auto* grid = m_links->part(0, u"buttons"_s);

    QVERIFY(grid->property("interactive").toBool());
    QVERIFY(!m_links->part(1, u"buttons"_s)->property("interactive").toBool());
    QCOMPARE(grid->property("contentHeight").toDouble(), 100 * 42.0);
    QVERIFY(!m_links->shortcut(150));
    QWheelEvent wheel({100, 200}, m_links->window->mapToGlobal(QPointF(100, 200)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_links->window.get(), &wheel);
    QTRY_VERIFY(grid->property("contentY").toDouble() > 0);
}

QTEST_MAIN(ShortcutsViewSizesTest)
#include "tst_shortcutsviewsizes.moc"
