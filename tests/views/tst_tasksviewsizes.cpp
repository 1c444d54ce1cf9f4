#include "support/taskstab.h"

#include "brand/brand.h"

#include <QFont>

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::ClientStatus;

/// Every number of the to-do list, read from the live items.
class TasksViewSizesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TasksTab>(); }
    void cleanup() { m_tab.reset(); }

    void entryRow_hasItsSizes();
    void clientPicker_hasItsSizes();
    void chips_haveTheirSizes();
    void row_hasItsSizes_data();
    void row_hasItsSizes();
    void longTitleAndName_leaveRoomForEachOther();

private:
    std::unique_ptr<TasksTab> m_tab;
};

void TasksViewSizesTest::entryRow_hasItsSizes()
{
    const auto field = m_tab->rect(u"newTitle"_s);
    const auto picker = m_tab->rect(u"newClient"_s);
    const auto area = m_tab->rect(u"tabArea"_s);

    QCOMPARE(field.left(), area.left());
    QCOMPARE(picker.left() - field.right(), 6.0);
    QCOMPARE(picker.width(), 140.0);
    QCOMPARE(picker.right(), area.right());
    QVERIFY(qAbs(picker.center().y() - field.center().y()) <= 0.5); // On whole points.
    QCOMPARE(textOf(m_tab->item(u"newTitle"_s), "placeholder"), u"Add a task and press Return…"_s);
}

void TasksViewSizesTest::clientPicker_hasItsSizes()
{
    auto* picker = m_tab->item(u"newClient"_s);
    const auto frame = inScene(picker);
    const auto dot = inScene(ShownPanel::find(picker, u"dot"_s));
    auto* name = ShownPanel::find(picker, u"name"_s);
    auto* arrows = ShownPanel::find(picker, u"arrows"_s);
    auto* background = ShownPanel::find(picker, u"background"_s);

    QCOMPARE(dot.size(), QSizeF(6, 6));
    QCOMPARE(dot.left(), frame.left() + 9);
    QCOMPARE(numberOf(name, "size"), 11.5);
    QCOMPARE(textOf(name), u"No client"_s);
    QCOMPARE(frame.height(), m_tab->rect(u"newTitle"_s).height());
    QCOMPARE(textOf(arrows, "name"), u"chevron.up.chevron.down"_s);
    QCOMPARE(numberOf(arrows, "size"), 8.0);
    QCOMPARE(inScene(arrows).right(), frame.right() - 9);
    QCOMPARE(numberOf(background, "radius"), 8.0);
    QCOMPARE(colorOf(background), Brand::white(0.07));
    QCOMPARE(inScene(background), frame);
}

void TasksViewSizesTest::chips_haveTheirSizes()
{
    m_tab->workspace.task(u"a"_s, m_tab->workspace.client(u"Café"_s));
    m_tab->workspace.task(u"b"_s, m_tab->workspace.client(u"Bloom"_s));

    const auto all = m_tab->rect(u"allChip"_s);
    const auto first = inScene(m_tab->chip(0));
    const auto second = inScene(m_tab->chip(1));

    QCOMPARE(first.left() - all.right(), 4.0);
    QCOMPARE(second.left() - first.right(), 4.0);
}

void TasksViewSizesTest::row_hasItsSizes_data()
{
    QTest::addColumn<bool>("done");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QColor>("circle");
    QTest::addColumn<QColor>("title");

    QTest::addRow("open") << false << u"circle"_s << Brand::muted() << QColor(Qt::white);
    QTest::addRow("done") << true << u"checkmark.circle.fill"_s << Brand::live() << Brand::muted2();
}

void TasksViewSizesTest::row_hasItsSizes()
{
    QFETCH(bool, done);
    const auto cafe = m_tab->workspace.client(u"Café"_s, ClientStatus::Review);
    m_tab->workspace.task(u"Call"_s, cafe, done);

    const auto* symbol = ShownPanel::find(m_tab->part(0, u"tick"_s), u"symbol"_s);
    QTEST(textOf(symbol, "name"), "symbol");
    QTEST(colorOf(symbol), "circle");
    QCOMPARE(numberOf(symbol, "size"), 14.0);

    const auto* title = m_tab->part(0, u"title"_s);
    QTEST(colorOf(title), "title");
    QTEST(title->property("strikeout").toBool(), "done");
    QCOMPARE(numberOf(title, "size"), 12.5);

    auto* tag = m_tab->part(0, u"tag"_s);
    const auto* name = ShownPanel::find(tag, u"clientName"_s);
    const auto* capsule = ShownPanel::find(tag, u"capsule"_s);
    const auto frame = inScene(tag);
    const auto inner = inScene(name);
    QCOMPARE(inner, frame.adjusted(7, 2, -7, -2));
    QCOMPARE(numberOf(name, "size"), 10.0);
    QCOMPARE(name->property("weight").toInt(), int(QFont::Medium));
    QCOMPARE(colorOf(name), Brand::color(u"review"_s));
    QCOMPARE(colorOf(capsule), Brand::color(u"review"_s));
    QCOMPARE(capsule->opacity(), 0.13);
    QCOMPARE(numberOf(capsule, "radius"), frame.height() / 2);

    m_tab->workspace.task(u"Other"_s, {}, done);
    QCOMPARE(inScene(m_tab->row(1)).top() - inScene(m_tab->row(0)).bottom(), 2.0);
}

void TasksViewSizesTest::longTitleAndName_leaveRoomForEachOther()
{
    const QString title(300, u'w');
    m_tab->workspace.task(title, m_tab->workspace.client(QString(200, u'm')));
    m_tab->move(m_tab->row(0));

    const auto remove = inScene(m_tab->part(0, u"remove"_s));
    const auto tag = inScene(m_tab->part(0, u"tag"_s));
    const auto text = inScene(m_tab->part(0, u"title"_s));

    QVERIFY(text.right() < tag.left());
    QVERIFY(tag.right() <= remove.left());
    QVERIFY(text.width() > 300);
}

QTEST_MAIN(TasksViewSizesTest)
#include "tst_tasksviewsizes.moc"
