#include "support/panel/taskstab.h"
#include "support/toldtext.h"

#include "brand/brand.h"
#include "views/core/noclient.h"

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::ClientStatus;

/// The to-do list as its user meets it.
class TasksViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TasksTab>(); }
    void cleanup() { m_tab.reset(); }

    void empty_saysNothingToDo();
    void return_addsTheTaskAndKeepsTheFocus();
    void blankTitle_addsNothingAndIsCleared();
    void newTask_goesToTheChosenClient();
    void newTask_goesToTheFilteredClient();
    void newTask_chosenClientCountsMoreThanTheFiltered();
    void newTask_isBroughtIntoSight();
    void newTask_thatIsNotShown_leavesTheListWhereItIs_data();
    void newTask_thatIsNotShown_leavesTheListWhereItIs();
    void chosenClient_isKeptForTheNextTask();
    void chips_areThoseOfClientsWithTasks();
    void chip_filtersAndStaysSelected();
    void lastTaskOfTheFilteredClientCleared_leavesTheFilterSet();
    void picker_standsAsHighAsTheField();
    void picker_drawsAGoneClientAsNone();
    void pickerMenu_choosesAndTakesBack();
    void names_tellWhatPressingDoes();

private:
    /// More tasks than fit, and the list at its end.
    void fillAndScroll(const QUuid& client);
    double listPosition() { return numberOf(m_tab->item(u"list"_s), "contentY"); }

    std::unique_ptr<TasksTab> m_tab;
};

void TasksViewTest::fillAndScroll(const QUuid& client)
{
    auto data = m_tab->store().data();
    for (int number = 0; number < 40; ++number) {
        data.tasks.append({.id = QUuid::createUuid(),
                           .title = u"Task %1"_s.arg(number),
                           .clientID = client,
                           .created = m_tab->hands.now});
    }
    m_tab->store().setData(data);
    QMetaObject::invokeMethod(m_tab->item(u"list"_s), "positionViewAtEnd");
}

void TasksViewTest::empty_saysNothingToDo()
{
    const auto* text = m_tab->item(u"nothing"_s);

    QVERIFY(text->isVisible());
    QCOMPARE(textOf(text), u"Nothing to do. Nice."_s);
    QCOMPARE(numberOf(text, "size"), 12.0);
    QCOMPARE(colorOf(text), Brand::muted2());
    QCOMPARE(inScene(text).top(), m_tab->rect(u"list"_s).top() + 30);
    QVERIFY(!m_tab->item(u"clearDone"_s)->isVisible());
    QVERIFY(!m_tab->chip(0));
    QVERIFY(m_tab->item(u"allChip"_s)->isVisible());
}

void TasksViewTest::return_addsTheTaskAndKeepsTheFocus()
{
    m_tab->add(u"  Call Ann  "_s);
    QCOMPARE(m_tab->shownTitles(), QStringList{u"Call Ann"_s});
    QCOMPARE(textOf(m_tab->item(u"newTitle"_s)), QString());

    QTest::keyClick(m_tab->window.get(), 'B');
    QTest::keyClick(m_tab->window.get(), Qt::Key_Return);

    QCOMPARE(m_tab->shownTitles(), (QStringList{u"B"_s, u"Call Ann"_s}));
    QVERIFY(!m_tab->item(u"nothing"_s)->isVisible());
}

void TasksViewTest::blankTitle_addsNothingAndIsCleared()
{
    m_tab->add(u"   "_s);

    QVERIFY(m_tab->store().data().tasks.isEmpty());
    QCOMPARE(textOf(m_tab->item(u"newTitle"_s)), QString());
}

void TasksViewTest::newTask_goesToTheChosenClient()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    m_tab->item(u"tasksView"_s)->setProperty("newClient", cafe);

    m_tab->add(u"Call"_s);

    QCOMPARE(m_tab->store().data().tasks.front().clientID, cafe);
}

void TasksViewTest::newTask_goesToTheFilteredClient()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    m_tab->workspace.task(u"Old"_s, cafe);
    m_tab->click(m_tab->chip(0));

    m_tab->add(u"Call"_s);

    QCOMPARE(m_tab->store().data().tasks.front().clientID, cafe);
    QCOMPARE(m_tab->shownTitles(), (QStringList{u"Call"_s, u"Old"_s}));
}

void TasksViewTest::newTask_chosenClientCountsMoreThanTheFiltered()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    const auto bloom = m_tab->workspace.client(u"Bloom"_s);
    m_tab->workspace.task(u"Old"_s, cafe);
    m_tab->click(m_tab->chip(0));
    m_tab->item(u"tasksView"_s)->setProperty("newClient", bloom);

    m_tab->add(u"Call"_s);

    QCOMPARE(m_tab->store().data().tasks.front().clientID, bloom);
    QCOMPARE(m_tab->shownTitles(), QStringList{u"Old"_s});
}

void TasksViewTest::newTask_isBroughtIntoSight()
{
    fillAndScroll(m_tab->workspace.client(u"Café"_s));

    m_tab->add(u"Call"_s);

    const auto* row = m_tab->row(0);
    QVERIFY(row);
    QCOMPARE(textOf(m_tab->part(0, u"title"_s)), u"Call"_s);
    QVERIFY(m_tab->rect(u"list"_s).contains(inScene(row)));
}

void TasksViewTest::newTask_thatIsNotShown_leavesTheListWhereItIs_data()
{
    QTest::addColumn<QString>("title");

    QTest::addRow("blank") << u"  "_s;
    QTest::addRow("of another client") << u"Call"_s;
}

void TasksViewTest::newTask_thatIsNotShown_leavesTheListWhereItIs()
{
    QFETCH(const QString, title);
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    auto* view = m_tab->item(u"tasksView"_s);
    view->setProperty("filter", cafe);
    view->setProperty("newClient", m_tab->workspace.client(u"Bloom"_s));
    fillAndScroll(cafe);
    const auto before = listPosition();
    QVERIFY(before > 100);

    m_tab->add(title);

    QCOMPARE(listPosition(), before);
}

void TasksViewTest::chosenClient_isKeptForTheNextTask()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    m_tab->item(u"tasksView"_s)->setProperty("newClient", cafe);

    m_tab->add(u"One"_s);
    m_tab->add(u"Two"_s);

    QCOMPARE(m_tab->store().data().tasks.front().clientID, cafe);
}

void TasksViewTest::chips_areThoseOfClientsWithTasks()
{
    const auto first = m_tab->workspace.client(u"First"_s);
    m_tab->workspace.client(u"Idle"_s);
    const auto last = m_tab->workspace.client(u"Last"_s);
    m_tab->workspace.task(u"a"_s, last);
    m_tab->workspace.task(u"b"_s, first, true);

    QCOMPARE(textOf(m_tab->chip(0), "title"), u"First"_s);
    QCOMPARE(textOf(m_tab->chip(1), "title"), u"Last"_s);
    QVERIFY(!m_tab->chip(2));
}

void TasksViewTest::chip_filtersAndStaysSelected()
{
    m_tab->workspace.task(u"for the café"_s, m_tab->workspace.client(u"Café"_s));
    m_tab->workspace.task(u"for nobody"_s);
    QVERIFY(m_tab->item(u"allChip"_s)->property("selected").toBool());

    m_tab->click(m_tab->chip(0));
    m_tab->click(m_tab->chip(0));
    QCOMPARE(m_tab->shownTitles(), QStringList{u"for the café"_s});
    QVERIFY(m_tab->chip(0)->property("selected").toBool());
    QVERIFY(!m_tab->item(u"allChip"_s)->property("selected").toBool());
    m_tab->click(m_tab->item(u"allChip"_s));

    QCOMPARE(m_tab->shownTitles(), (QStringList{u"for the café"_s, u"for nobody"_s}));
}

void TasksViewTest::lastTaskOfTheFilteredClientCleared_leavesTheFilterSet()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    m_tab->workspace.task(u"done"_s, cafe, true);
    m_tab->workspace.task(u"general"_s);
    m_tab->click(m_tab->chip(0));

    m_tab->click(m_tab->item(u"clearDone"_s));

    QVERIFY(!m_tab->chip(0));
    QCOMPARE(m_tab->shownTitles(), QStringList());
    QCOMPARE(m_tab->item(u"tasksView"_s)->property("filter").toUuid(), cafe);
    QVERIFY(m_tab->item(u"nothing"_s)->isVisible());
}

void TasksViewTest::picker_standsAsHighAsTheField()
{
    const auto* field = m_tab->item(u"newTitle"_s);
    const auto* picker = m_tab->item(u"newClient"_s);

    QCOMPARE(picker->mapToScene({}).y(), field->mapToScene({}).y());
    QCOMPARE(picker->height(), field->height());
}

void TasksViewTest::picker_drawsAGoneClientAsNone()
{
    auto* picker = m_tab->item(u"newClient"_s);
    const auto cafe = m_tab->workspace.client(u"Café"_s, ClientStatus::Build);
    m_tab->item(u"tasksView"_s)->setProperty("newClient", cafe);
    QCOMPARE(textOf(ShownPanel::find(picker, u"name"_s)), u"Café"_s);
    QCOMPARE(colorOf(ShownPanel::find(picker, u"dot"_s)), Brand::purple());

    m_tab->store().deleteClient(cafe);

    QCOMPARE(textOf(ShownPanel::find(picker, u"name"_s)), u"No client"_s);
    QCOMPARE(colorOf(ShownPanel::find(picker, u"dot"_s)), Brand::muted2());
}

void TasksViewTest::pickerMenu_choosesAndTakesBack()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    m_tab->workspace.client(u"Bloom"_s);
    auto* picker = m_tab->item(u"newClient"_s);
    auto* view = m_tab->item(u"tasksView"_s);

    m_tab->click(picker);
    QTest::keyClick(m_tab->window.get(), Qt::Key_Down);
    QTest::keyClick(m_tab->window.get(), Qt::Key_Return);
    QTRY_COMPARE(view->property("newClient").toUuid(), cafe);
    m_tab->click(picker);
    QTest::keyClick(m_tab->window.get(), Qt::Key_Home);
    QTest::keyClick(m_tab->window.get(), Qt::Key_Return);

    QTRY_COMPARE(view->property("newClient").toUuid(), quib::NoClient::id());
}

void TasksViewTest::names_tellWhatPressingDoes()
{
    m_tab->workspace.task(u"Call Ann"_s);

    QCOMPARE(toldOf(m_tab->part(0, u"tick"_s)), u"Mark done: Call Ann"_s);
    QCOMPARE(toldOf(m_tab->part(0, u"remove"_s)), u"Delete: Call Ann"_s);
    QCOMPARE(toldOf(m_tab->item(u"newClient"_s)), u"Client: No client"_s);
    QCOMPARE(toldOf(m_tab->item(u"pin"_s)), u"Keep open"_s);
    QCOMPARE(toldOf(m_tab->item(u"date"_s)), textOf(m_tab->item(u"date"_s)));
    QCOMPARE(toldOf(m_tab->item(u"tabs"_s)->childItems().front()), u"Home"_s);
    QCOMPARE(toldOf(m_tab->item(u"list"_s)), u"Tasks"_s);

    m_tab->store().toggleTask(m_tab->store().data().tasks.front().id);
    QCOMPARE(toldOf(m_tab->part(0, u"tick"_s)), u"Mark open: Call Ann"_s);
}

QTEST_MAIN(TasksViewTest)
#include "tst_tasksview.moc"
