#include "support/shownpanel.h"

#include "brand/brand.h"

#include <QAccessible>
#include <QFont>

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::ClientStatus;
using quib::Tab;

/// The to-do list as its user meets it, and every number of it read from the live items.
class TasksViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void empty_saysNothingToDo();
    void return_addsTheTaskAndKeepsTheFocus();
    void blankTitle_addsNothingAndIsCleared();
    void newTask_goesToTheChosenClient();
    void newTask_goesToTheFilteredClient();
    void chosenClient_isKeptForTheNextTask();
    void chips_areThoseOfClientsWithTasks();
    void chip_filtersAndStaysSelected();
    void lastTaskOfTheFilteredClientCleared_leavesTheFilterSet();
    void circle_ticksOffAndMovesTheRow();
    void changeOfOneTask_keepsTheOtherRows();
    void hoveredRow_showsItsButton();
    void deleting_takesOneClick();
    void clearDone_clearsTheDoneOnes();
    void deletedClient_takesItsTagAway();
    void picker_drawsAGoneClientAsNone();
    void pickerMenu_choosesAndTakesBack();

    void entryRow_hasItsSizes();
    void clientPicker_hasItsSizes();
    void chips_haveTheirSizes();
    void row_hasItsSizes_data();
    void row_hasItsSizes();
    void longTitleAndName_leaveRoomForEachOther();
    void names_tellWhatPressingDoes();

private:
    QQuickItem* item(const QString& name) { return m_panel->item(name); }
    QQuickItem* row(int number);
    QQuickItem* chip(int number);
    QQuickItem* part(QQuickItem* of, const QString& name) { return ShownPanel::find(of, name); }
    quib::Store& store() { return *m_panel->workspace.store; }
    QStringList shownTitles();
    void type(const QString& title);
    QQuickItem* rowOf(const QString& list, int number);

    std::unique_ptr<ShownPanel> m_panel;
};

void TasksViewTest::init()
{
    m_panel = std::make_unique<ShownPanel>();
    m_panel->open(Tab::Tasks);
    m_panel->window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_panel->window.get()));
}

QQuickItem* TasksViewTest::rowOf(const QString& list, int number)
{
    QQuickItem* found = nullptr;
    QMetaObject::invokeMethod(item(list), "forceLayout");
    QMetaObject::invokeMethod(item(list), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found),
                              Q_ARG(int, number));
    return found;
}

QQuickItem* TasksViewTest::row(int number)
{
    return rowOf(u"list"_s, number);
}

QQuickItem* TasksViewTest::chip(int number)
{
    return rowOf(u"chips"_s, number);
}

QStringList TasksViewTest::shownTitles()
{
    QStringList titles;
    for (int number = 0; row(number); ++number) {
        titles << row(number)->property("title").toString();
    }
    return titles;
}

void TasksViewTest::type(const QString& title)
{
    m_panel->click(item(u"newTitle"_s));
    for (const auto letter : title) {
        QTest::keyClick(m_panel->window.get(), letter.toLatin1());
    }
    QTest::keyClick(m_panel->window.get(), Qt::Key_Return);
}

void TasksViewTest::empty_saysNothingToDo()
{
    const auto* text = item(u"nothing"_s);

    QVERIFY(text->isVisible());
    QCOMPARE(text->property("text").toString(), u"Nothing to do. Nice."_s);
    QCOMPARE(text->property("size").toDouble(), 12.0);
    QCOMPARE(colorOf(text), Brand::muted2());
    QCOMPARE(ShownPanel::inScene(text).top(), m_panel->rect(u"list"_s).top() + 30);
    QVERIFY(!item(u"clearDone"_s)->isVisible());
    QVERIFY(!chip(0));
    QVERIFY(item(u"allChip"_s)->isVisible());
}

void TasksViewTest::return_addsTheTaskAndKeepsTheFocus()
{
    type(u"  Call Ann  "_s);
    QCOMPARE(shownTitles(), QStringList{u"Call Ann"_s});
    QCOMPARE(item(u"newTitle"_s)->property("text").toString(), QString());

    QTest::keyClick(m_panel->window.get(), 'B');
    QTest::keyClick(m_panel->window.get(), Qt::Key_Return);

    QCOMPARE(shownTitles(), (QStringList{u"B"_s, u"Call Ann"_s}));
    QVERIFY(!item(u"nothing"_s)->isVisible());
}

void TasksViewTest::blankTitle_addsNothingAndIsCleared()
{
    type(u"   "_s);

    QVERIFY(store().data().tasks.isEmpty());
    QCOMPARE(item(u"newTitle"_s)->property("text").toString(), QString());
}

void TasksViewTest::newTask_goesToTheChosenClient()
{
    const auto cafe = m_panel->workspace.client(u"Café"_s);
    item(u"tasksView"_s)->setProperty("newClient", cafe);

    type(u"Call"_s);

    QCOMPARE(store().data().tasks.front().clientID, cafe);
}

void TasksViewTest::newTask_goesToTheFilteredClient()
{
    const auto cafe = m_panel->workspace.client(u"Café"_s);
    m_panel->workspace.task(u"Old"_s, cafe);
    m_panel->click(chip(0));

    type(u"Call"_s);

    QCOMPARE(store().data().tasks.front().clientID, cafe);
    QCOMPARE(shownTitles(), (QStringList{u"Call"_s, u"Old"_s}));
}

void TasksViewTest::chosenClient_isKeptForTheNextTask()
{
    const auto cafe = m_panel->workspace.client(u"Café"_s);
    item(u"tasksView"_s)->setProperty("newClient", cafe);

    type(u"One"_s);
    type(u"Two"_s);

    QCOMPARE(store().data().tasks.front().clientID, cafe);
}

void TasksViewTest::chips_areThoseOfClientsWithTasks()
{
    const auto first = m_panel->workspace.client(u"First"_s);
    m_panel->workspace.client(u"Idle"_s);
    const auto last = m_panel->workspace.client(u"Last"_s);
    m_panel->workspace.task(u"a"_s, last);
    m_panel->workspace.task(u"b"_s, first, true);

    QCOMPARE(chip(0)->property("title").toString(), u"First"_s);
    QCOMPARE(chip(1)->property("title").toString(), u"Last"_s);
    QVERIFY(!chip(2));
}

void TasksViewTest::chip_filtersAndStaysSelected()
{
    m_panel->workspace.task(u"for the café"_s, m_panel->workspace.client(u"Café"_s));
    m_panel->workspace.task(u"for nobody"_s);
    QVERIFY(item(u"allChip"_s)->property("selected").toBool());

    m_panel->click(chip(0));
    m_panel->click(chip(0));
    QCOMPARE(shownTitles(), QStringList{u"for the café"_s});
    QVERIFY(chip(0)->property("selected").toBool());
    QVERIFY(!item(u"allChip"_s)->property("selected").toBool());
    m_panel->click(item(u"allChip"_s));

    QCOMPARE(shownTitles(), (QStringList{u"for the café"_s, u"for nobody"_s}));
}

void TasksViewTest::lastTaskOfTheFilteredClientCleared_leavesTheFilterSet()
{
    const auto cafe = m_panel->workspace.client(u"Café"_s);
    m_panel->workspace.task(u"done"_s, cafe, true);
    m_panel->workspace.task(u"general"_s);
    m_panel->click(chip(0));

    m_panel->click(item(u"clearDone"_s));

    QVERIFY(!chip(0));
    QCOMPARE(shownTitles(), QStringList());
    QCOMPARE(item(u"tasksView"_s)->property("filter").toUuid(), cafe);
    QVERIFY(item(u"nothing"_s)->isVisible());
}

void TasksViewTest::circle_ticksOffAndMovesTheRow()
{
    m_panel->workspace.task(u"first"_s);
    m_panel->workspace.task(u"second"_s);
    m_panel->workspace.task(u"third"_s, {}, true);

    m_panel->click(part(row(0), u"tick"_s));

    QVERIFY(store().data().tasks.front().done);
    QCOMPARE(shownTitles(), (QStringList{u"second"_s, u"first"_s, u"third"_s}));
}

void TasksViewTest::changeOfOneTask_keepsTheOtherRows()
{
    const auto first = m_panel->workspace.task(u"first"_s);
    m_panel->workspace.task(u"second"_s);
    auto* firstRow = row(0);
    auto* secondRow = row(1);

    store().toggleTask(first);
    store().addTask(u"new"_s, {});

    QCOMPARE(row(1), secondRow);
    QCOMPARE(row(2), firstRow);
}

void TasksViewTest::hoveredRow_showsItsButton()
{
    m_panel->workspace.task(u"first"_s);
    m_panel->workspace.task(u"second"_s);
    auto* remove = part(row(0), u"remove"_s);
    QVERIFY(!remove->isVisible());

    m_panel->move(part(row(0), u"title"_s));
    QTRY_VERIFY(remove->isVisible());
    QCOMPARE(remove->property("symbol").toString(), u"xmark"_s);
    QCOMPARE(remove->property("size").toDouble(), 9.0);
    QCOMPARE(remove->size(), QSizeF(23, 23));
    m_panel->move(row(1));

    QTRY_VERIFY(!remove->isVisible());
}

void TasksViewTest::deleting_takesOneClick()
{
    m_panel->workspace.task(u"first"_s);
    m_panel->workspace.task(u"second"_s);
    m_panel->move(part(row(0), u"title"_s));
    QTRY_VERIFY(part(row(0), u"remove"_s)->isVisible());

    m_panel->click(part(row(0), u"remove"_s));

    QCOMPARE(shownTitles(), QStringList{u"second"_s});
}

void TasksViewTest::clearDone_clearsTheDoneOnes()
{
    m_panel->workspace.task(u"open"_s);
    m_panel->workspace.task(u"done"_s, {}, true);
    const auto* text = item(u"clearDone"_s)->property("contentItem").value<QQuickItem*>();
    QCOMPARE(text->property("text").toString(), u"Clear 1 done"_s);
    QCOMPARE(text->property("size").toDouble(), 10.5);
    QCOMPARE(colorOf(text), Brand::muted2());

    m_panel->click(item(u"clearDone"_s));

    QCOMPARE(shownTitles(), QStringList{u"open"_s});
    QVERIFY(!item(u"clearDone"_s)->isVisible());
}

void TasksViewTest::deletedClient_takesItsTagAway()
{
    const auto cafe = m_panel->workspace.client(u"Café"_s);
    m_panel->workspace.task(u"Call"_s, cafe);
    QVERIFY(part(row(0), u"tag"_s)->isVisible());

    store().deleteClient(cafe);

    QVERIFY(!part(row(0), u"tag"_s)->isVisible());
}

void TasksViewTest::picker_drawsAGoneClientAsNone()
{
    auto* picker = item(u"newClient"_s);
    const auto cafe = m_panel->workspace.client(u"Café"_s, ClientStatus::Build);
    item(u"tasksView"_s)->setProperty("newClient", cafe);
    QCOMPARE(part(picker, u"name"_s)->property("text").toString(), u"Café"_s);
    QCOMPARE(colorOf(part(picker, u"dot"_s)), Brand::purple());

    store().deleteClient(cafe);

    QCOMPARE(part(picker, u"name"_s)->property("text").toString(), u"No client"_s);
    QCOMPARE(colorOf(part(picker, u"dot"_s)), Brand::muted2());
}

void TasksViewTest::pickerMenu_choosesAndTakesBack()
{
    const auto cafe = m_panel->workspace.client(u"Café"_s);
    m_panel->workspace.client(u"Bloom"_s);
    auto* picker = item(u"newClient"_s);
    auto* view = item(u"tasksView"_s);

    m_panel->click(picker);
    QTest::keyClick(m_panel->window.get(), Qt::Key_Down);
    QTest::keyClick(m_panel->window.get(), Qt::Key_Return);
    QTRY_COMPARE(view->property("newClient").toUuid(), cafe);
    m_panel->click(picker);
    QTest::keyClick(m_panel->window.get(), Qt::Key_Home);
    QTest::keyClick(m_panel->window.get(), Qt::Key_Return);

    QTRY_COMPARE(view->property("newClient").toUuid(), QUuid());
}

void TasksViewTest::entryRow_hasItsSizes()
{
    const auto field = m_panel->rect(u"newTitle"_s);
    const auto picker = m_panel->rect(u"newClient"_s);
    const auto area = m_panel->rect(u"tabArea"_s);

    QCOMPARE(field.left(), area.left());
    QCOMPARE(picker.left() - field.right(), 6.0);
    QCOMPARE(picker.width(), 140.0);
    QCOMPARE(picker.right(), area.right());
    QVERIFY(qAbs(picker.center().y() - field.center().y()) <= 0.5); // On whole points.
    QCOMPARE(item(u"newTitle"_s)->property("placeholder").toString(),
             u"Add a task and press Return…"_s);
}

void TasksViewTest::clientPicker_hasItsSizes()
{
    auto* picker = item(u"newClient"_s);
    const auto frame = ShownPanel::inScene(picker);
    const auto dot = ShownPanel::inScene(part(picker, u"dot"_s));
    auto* name = part(picker, u"name"_s);
    auto* arrows = part(picker, u"arrows"_s);
    auto* background = part(picker, u"background"_s);

    QCOMPARE(dot.size(), QSizeF(6, 6));
    QCOMPARE(dot.left(), frame.left() + 9);
    QCOMPARE(name->property("size").toDouble(), 11.5);
    QCOMPARE(name->property("text").toString(), u"No client"_s);
    QCOMPARE(frame.height(), name->height() + 12);
    QCOMPARE(arrows->property("name").toString(), u"chevron.up.chevron.down"_s);
    QCOMPARE(arrows->property("size").toDouble(), 8.0);
    QCOMPARE(ShownPanel::inScene(arrows).right(), frame.right() - 9);
    QCOMPARE(background->property("radius").toDouble(), 8.0);
    QCOMPARE(colorOf(background), Brand::white(0.07));
    QCOMPARE(ShownPanel::inScene(background), frame);
}

void TasksViewTest::chips_haveTheirSizes()
{
    m_panel->workspace.task(u"a"_s, m_panel->workspace.client(u"Café"_s));
    m_panel->workspace.task(u"b"_s, m_panel->workspace.client(u"Bloom"_s));

    const auto all = m_panel->rect(u"allChip"_s);
    const auto first = ShownPanel::inScene(chip(0));
    const auto second = ShownPanel::inScene(chip(1));

    QCOMPARE(first.left() - all.right(), 4.0);
    QCOMPARE(second.left() - first.right(), 4.0);
}

void TasksViewTest::row_hasItsSizes_data()
{
    QTest::addColumn<bool>("done");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QColor>("circle");
    QTest::addColumn<QColor>("title");

    QTest::addRow("open") << false << u"circle"_s << Brand::muted() << QColor(Qt::white);
    QTest::addRow("done") << true << u"checkmark.circle.fill"_s << Brand::live() << Brand::muted2();
}

void TasksViewTest::row_hasItsSizes()
{
    QFETCH(bool, done);
    const auto cafe = m_panel->workspace.client(u"Café"_s, ClientStatus::Review);
    m_panel->workspace.task(u"Call"_s, cafe, done);
    auto* first = row(0);

    const auto* symbol = part(part(first, u"tick"_s), u"symbol"_s);
    QTEST(symbol->property("name").toString(), "symbol");
    QTEST(colorOf(symbol), "circle");
    QCOMPARE(symbol->property("size").toDouble(), 14.0);

    const auto* title = part(first, u"title"_s);
    QTEST(colorOf(title), "title");
    QTEST(title->property("strikeout").toBool(), "done");
    QCOMPARE(title->property("size").toDouble(), 12.5);

    auto* tag = part(first, u"tag"_s);
    const auto* name = part(tag, u"clientName"_s);
    const auto* capsule = part(tag, u"capsule"_s);
    const auto frame = ShownPanel::inScene(tag);
    const auto inner = ShownPanel::inScene(name);
    QCOMPARE(inner, frame.adjusted(7, 2, -7, -2));
    QCOMPARE(name->property("size").toDouble(), 10.0);
    QCOMPARE(name->property("weight").toInt(), int(QFont::Medium));
    QCOMPARE(colorOf(name), Brand::color(u"review"_s));
    QCOMPARE(colorOf(capsule), Brand::color(u"review"_s));
    QCOMPARE(capsule->opacity(), 0.13);
    QCOMPARE(capsule->property("radius").toDouble(), frame.height() / 2);

    m_panel->workspace.task(u"Other"_s, {}, done);
    QCOMPARE(ShownPanel::inScene(row(1)).top() - ShownPanel::inScene(row(0)).bottom(), 2.0);
}

void TasksViewTest::longTitleAndName_leaveRoomForEachOther()
{
    const QString title(300, u'w');
    m_panel->workspace.task(title, m_panel->workspace.client(QString(200, u'm')));
    m_panel->move(row(0));

    const auto remove = ShownPanel::inScene(part(row(0), u"remove"_s));
    const auto tag = ShownPanel::inScene(part(row(0), u"tag"_s));
    const auto text = ShownPanel::inScene(part(row(0), u"title"_s));

    QVERIFY(text.right() < tag.left());
    QVERIFY(tag.right() <= remove.left());
    QVERIFY(text.width() > 300);
}

void TasksViewTest::names_tellWhatPressingDoes()
{
    m_panel->workspace.task(u"Call Ann"_s);
    const auto nameOf = [](QObject* object) {
        auto* interface = QAccessible::queryAccessibleInterface(object);
        return interface ? interface->text(QAccessible::Name) : QString();
    };

    QCOMPARE(nameOf(part(row(0), u"tick"_s)), u"Mark done: Call Ann"_s);
    QCOMPARE(nameOf(part(row(0), u"remove"_s)), u"Delete: Call Ann"_s);
    QCOMPARE(nameOf(item(u"newClient"_s)), u"Client: No client"_s);
    QCOMPARE(nameOf(item(u"pin"_s)), u"Keep open"_s);
    QCOMPARE(nameOf(item(u"date"_s)), item(u"date"_s)->property("text").toString());
    QCOMPARE(nameOf(item(u"tabs"_s)->childItems().front()), u"Home"_s);
    QCOMPARE(nameOf(item(u"list"_s)), u"Tasks"_s);

    store().toggleTask(store().data().tasks.front().id);
    QCOMPARE(nameOf(part(row(0), u"tick"_s)), u"Mark open: Call Ann"_s);
}

QTEST_MAIN(TasksViewTest)
#include "tst_tasksview.moc"
