#include "support/panel/taskstab.h"

#include "brand/brand.h"

using namespace Qt::StringLiterals;
using quib::Brand;

/// The rows of the to-do list: ticked off, deleted, kept.
class TaskRowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TasksTab>(); }
    void cleanup() { m_tab.reset(); }

    void circle_doubleClicked_ticksOffOneTask();
    void delete_doubleClicked_deletesOneTask();
    void circle_ticksOffAndMovesTheRow();
    void changeOfOneTask_keepsTheOtherRows();
    void hoveredRow_showsItsButton();
    void deleting_takesOneClick();
    void clearDone_clearsTheDoneOnes();
    void deletedClient_takesItsTagAway();
    void longTitleAndName_leaveRoomForEachOther();

private:
    std::unique_ptr<TasksTab> m_tab;
};

void TaskRowsTest::circle_doubleClicked_ticksOffOneTask()
{
    m_tab->workspace.task(u"first"_s);
    m_tab->workspace.task(u"second"_s);
    m_tab->workspace.task(u"third"_s);

    m_tab->doubleClick(m_tab->part(0, u"tick"_s));

    QCOMPARE(std::ranges::count_if(m_tab->store().data().tasks, &quib::TaskItem::done), 1);
}

void TaskRowsTest::delete_doubleClicked_deletesOneTask()
{
    m_tab->workspace.task(u"first"_s);
    m_tab->workspace.task(u"second"_s);
    m_tab->workspace.task(u"third"_s);
    m_tab->move(m_tab->part(0, u"title"_s));

    m_tab->doubleClick(m_tab->part(0, u"remove"_s));

    QCOMPARE(m_tab->store().data().tasks.size(), 2);
}

void TaskRowsTest::circle_ticksOffAndMovesTheRow()
{
    m_tab->workspace.task(u"first"_s);
    m_tab->workspace.task(u"second"_s);
    m_tab->workspace.task(u"third"_s, {}, true);

    m_tab->click(m_tab->part(0, u"tick"_s));

    QVERIFY(m_tab->store().data().tasks.front().done);
    QCOMPARE(m_tab->shownTitles(), (QStringList{u"second"_s, u"first"_s, u"third"_s}));
}

void TaskRowsTest::changeOfOneTask_keepsTheOtherRows()
{
    const auto first = m_tab->workspace.task(u"first"_s);
    m_tab->workspace.task(u"second"_s);
    auto* firstRow = m_tab->row(0);
    auto* secondRow = m_tab->row(1);

    m_tab->store().toggleTask(first);
    m_tab->store().addTask(u"new"_s, {});

    QCOMPARE(m_tab->row(1), secondRow);
    QCOMPARE(m_tab->row(2), firstRow);
}

void TaskRowsTest::hoveredRow_showsItsButton()
{
    m_tab->workspace.task(u"first"_s);
    m_tab->workspace.task(u"second"_s);
    auto* remove = m_tab->part(0, u"remove"_s);
    QVERIFY(!remove->isVisible());

    m_tab->move(m_tab->part(0, u"title"_s));
    QTRY_VERIFY(remove->isVisible());
    QCOMPARE(textOf(remove, "symbol"), u"xmark"_s);
    QCOMPARE(numberOf(remove, "size"), 9.0);
    QCOMPARE(remove->size(), QSizeF(23, 23));
    m_tab->move(m_tab->row(1));

    QTRY_VERIFY(!remove->isVisible());
}

void TaskRowsTest::deleting_takesOneClick()
{
    m_tab->workspace.task(u"first"_s);
    m_tab->workspace.task(u"second"_s);
    m_tab->move(m_tab->part(0, u"title"_s));
    QTRY_VERIFY(m_tab->part(0, u"remove"_s)->isVisible());

    m_tab->click(m_tab->part(0, u"remove"_s));

    QCOMPARE(m_tab->shownTitles(), QStringList{u"second"_s});
}

void TaskRowsTest::clearDone_clearsTheDoneOnes()
{
    m_tab->workspace.task(u"open"_s);
    m_tab->workspace.task(u"done"_s, {}, true);
    const auto* text = m_tab->item(u"clearDone"_s)->property("contentItem").value<QQuickItem*>();
    QCOMPARE(textOf(text), u"Clear 1 done"_s);
    QCOMPARE(numberOf(text, "size"), 10.5);
    QCOMPARE(colorOf(text), Brand::muted2());

    m_tab->click(m_tab->item(u"clearDone"_s));

    QCOMPARE(m_tab->shownTitles(), QStringList{u"open"_s});
    QVERIFY(!m_tab->item(u"clearDone"_s)->isVisible());
}

void TaskRowsTest::deletedClient_takesItsTagAway()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    m_tab->workspace.task(u"Call"_s, cafe);
    QVERIFY(m_tab->part(0, u"tag"_s)->isVisible());

    m_tab->store().deleteClient(cafe);

    QVERIFY(!m_tab->part(0, u"tag"_s)->isVisible());
}

void TaskRowsTest::longTitleAndName_leaveRoomForEachOther()
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

QTEST_MAIN(TaskRowsTest)
#include "tst_taskrows.moc"
