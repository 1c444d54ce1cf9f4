#include "support/clientbook.h"
#include "support/plaintexts.h"
#include "views/noclient.h"

#include <QAccessible>

using namespace Qt::StringLiterals;
using quib::Tab;

/// The client book as its user meets it.
class ClientsViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void empty_asksForTheFirstClient();
    void withoutASelection_noEditorIsOpen();
    void plus_opensTheNewClientForTyping();
    void plus_bringsTheNewClientIntoSight();
    void click_selects();
    void clientWithTheNullId_isAClient();
    void arrows_select();
    void arrows_passRepeatedIds();
    void firstDown_selectsTheFirst();
    void pagesAndEnds_select();
    void selectionFarDown_isBroughtIntoSight();
    void rowsMarks_followTasksAndTimer();
    void otherRows_keepStandingWhileOneIsEdited();
    void siteButton_comesAndGoesWithTheAddress();
    void folderButtons_comeWithTheFolder();
    void trackTime_startsAndStops();
    void trackTime_doubleClicked_keepsTheTimer();
    void firstClick_arms();
    void secondClick_deletes();
    void armedButton_restsForAnotherClient();
    void armedButton_restsWhenShownAnew_data();
    void armedButton_restsWhenShownAnew();
    void armedButton_staysWhileTheStoreChanges();
    void armedButton_staysWhileTimePasses();
    void longFolderPath_showsItsEnds();
    void tabKey_goesThroughEverything();
    void deletedByKey_leavesTheKeysToTheList();
    void texts_arePlain();
    void names_tellWhatPressingDoes();
    void rowsDescription_tellsWhatItsMarksDo();
    void longNames_leaveRoomForTheMarks_data();
    void longNames_leaveRoomForTheMarks();

private:
    std::unique_ptr<ClientBook> m_book;
};

void ClientsViewTest::init()
{
    m_book = std::make_unique<ClientBook>();
}

void ClientsViewTest::empty_asksForTheFirstClient()
{
    m_book->store().setData({});

    QCOMPARE(m_book->text(u"heading"_s), u"0 clients"_s);
    QVERIFY(m_book->item(u"noClient"_s)->isVisible());
    QCOMPARE(m_book->text(u"noClient"_s), u"Add your first client with +"_s);
    QVERIFY(!m_book->item(u"clientDetail"_s));
}

void ClientsViewTest::withoutASelection_noEditorIsOpen()
{
    QCOMPARE(m_book->text(u"heading"_s), u"2 clients"_s);
    QVERIFY(m_book->item(u"noClient"_s)->isVisible());
    QVERIFY(!m_book->item(u"clientDetail"_s));
    QVERIFY(!m_book->row(0)->property("selected").toBool());
}

void ClientsViewTest::plus_opensTheNewClientForTyping()
{
    m_book->click(m_book->item(u"addClient"_s));

    const auto added = m_book->store().data().clients.front().id;
    QCOMPARE(m_book->selection(), added);
    QCOMPARE(m_book->row(0)->property("clientID").toUuid(), added);
    QVERIFY(m_book->row(0)->property("selected").toBool());
    QCOMPARE(m_book->text(u"heading"_s), u"3 clients"_s);
    QVERIFY(!m_book->item(u"noClient"_s)->isVisible());
    QCOMPARE(m_book->commands.asked, QStringList{u"take keyboard"_s});
    QCOMPARE(m_book->input(u"nameField"_s)->property("selectedText").toString(), u"New client"_s);
    m_book->type(u"Ann"_s);

    QCOMPARE(m_book->client(added).name, u"Ann"_s);
}

void ClientsViewTest::plus_bringsTheNewClientIntoSight()
{
    for (int number = 0; number < 60; ++number) {
        m_book->store().addClient();
    }
    auto* list = m_book->item(u"clientList"_s);
    list->setProperty("contentY", 500);

    m_book->click(m_book->item(u"addClient"_s));
    m_book->settle();

    const auto place = inScene(m_book->row(0));
    QVERIFY(inScene(list).contains(place));
    QVERIFY(m_book->row(0)->property("selected").toBool());
}

void ClientsViewTest::click_selects()
{
    m_book->click(m_book->row(1));

    QCOMPARE(m_book->selection(), m_book->bloom);
    QCOMPARE(m_book->text(u"nameField"_s), u"Bloom"_s);
    QVERIFY(m_book->row(1)->property("selected").toBool());
    QVERIFY(!m_book->row(0)->property("selected").toBool());
}

void ClientsViewTest::clientWithTheNullId_isAClient()
{
    auto data = m_book->store().data();
    data.clients.append({.name = u"Nil"_s});
    m_book->store().setData(data);
    m_book->settle();
    QVERIFY(!m_book->row(2)->property("selected").toBool());

    m_book->click(m_book->row(2));

    QVERIFY(m_book->row(2)->property("selected").toBool());
    QCOMPARE(m_book->text(u"nameField"_s), u"Nil"_s);
    m_book->press(Qt::Key_Up);
    QCOMPARE(m_book->selection(), m_book->bloom);
}

void ClientsViewTest::arrows_select()
{
    m_book->click(m_book->row(0));

    m_book->press(Qt::Key_Down);
    QCOMPARE(m_book->selection(), m_book->bloom);
    QVERIFY(m_book->row(1)->property("visualFocus").toBool());
    m_book->press(Qt::Key_Down);
    QCOMPARE(m_book->selection(), m_book->bloom);
    m_book->press(Qt::Key_Up);

    QCOMPARE(m_book->selection(), m_book->cafe);
    QCOMPARE(m_book->text(u"nameField"_s), u"Café"_s);
}

void ClientsViewTest::arrows_passRepeatedIds()
{
    auto data = m_book->store().data();
    data.clients.insert(1, {.id = m_book->cafe, .name = u"Twin"_s});
    m_book->store().setData(data);
    m_book->click(m_book->row(0));

    m_book->press(Qt::Key_Down);
    QCOMPARE(m_book->selection(), m_book->bloom);
    m_book->press(Qt::Key_Up);

    QCOMPARE(m_book->selection(), m_book->cafe);
}

void ClientsViewTest::firstDown_selectsTheFirst()
{
    m_book->item(u"addClient"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_book->press(Qt::Key_Tab);

    m_book->press(Qt::Key_Down);

    QCOMPARE(m_book->selection(), m_book->cafe);
}

void ClientsViewTest::pagesAndEnds_select()
{
    for (int number = 0; number < 60; ++number) {
        m_book->store().addClient();
    }
    m_book->settle();
    const auto rowOfSelection = [&] {
        return std::ranges::find(m_book->store().data().clients, m_book->selection(),
                                 &quib::Client::id)
            - m_book->store().data().clients.begin();
    };
    m_book->click(m_book->row(0));

    m_book->press(Qt::Key_PageDown);
    const auto page = rowOfSelection();
    QVERIFY(page > 2 && page < 30);
    m_book->press(Qt::Key_PageDown);
    QCOMPARE(rowOfSelection(), 2 * page);
    m_book->press(Qt::Key_PageUp);
    QCOMPARE(rowOfSelection(), page);
    m_book->press(Qt::Key_End);
    QCOMPARE(m_book->selection(), m_book->bloom);
    m_book->settle();
    QVERIFY(inScene(m_book->item(u"clientList"_s)).contains(inScene(m_book->row(61))));
    m_book->press(Qt::Key_Home);

    QCOMPARE(rowOfSelection(), 0);
}

void ClientsViewTest::selectionFarDown_isBroughtIntoSight()
{
    for (int number = 0; number < 60; ++number) {
        m_book->store().addClient();
    }
    m_book->click(m_book->row(0));

    for (int number = 0; number < 61; ++number) {
        m_book->press(Qt::Key_Down);
    }
    m_book->settle();

    QCOMPARE(m_book->selection(), m_book->bloom);
    QVERIFY(inScene(m_book->item(u"clientList"_s)).contains(inScene(m_book->row(61))));
    QVERIFY(!m_book->row(0)); // Only what is seen is made.
}

void ClientsViewTest::rowsMarks_followTasksAndTimer()
{
    for (const auto done : {false, true, false, true, false}) {
        m_book->workspace.task(u"x"_s, m_book->bloom, done);
    }
    m_book->store().startTimer(m_book->cafe, {});

    QVERIFY(ShownPanel::find(m_book->row(0), u"timed"_s)->isVisible());
    QVERIFY(!ShownPanel::find(m_book->row(1), u"timed"_s)->isVisible());
    QVERIFY(!ShownPanel::find(m_book->row(0), u"badge"_s)->isVisible());
    QVERIFY(ShownPanel::find(m_book->row(1), u"badge"_s)->isVisible());
    QCOMPARE(ShownPanel::find(m_book->row(1), u"openTasks"_s)->property("text").toString(), u"3"_s);
}

void ClientsViewTest::otherRows_keepStandingWhileOneIsEdited()
{
    auto* first = m_book->row(0);
    auto* second = m_book->row(1);
    m_book->select(m_book->cafe);
    auto* editor = m_book->item(u"clientDetail"_s);

    m_book->change(m_book->cafe, [](quib::Client& edited) { edited.name = u"Corner Café"_s; });
    m_book->store().startTimer(m_book->bloom, {});
    m_book->workspace.task(u"x"_s, m_book->bloom);

    QCOMPARE(m_book->row(0), first);
    QCOMPARE(m_book->row(1), second);
    QCOMPARE(m_book->item(u"clientDetail"_s), editor);
}

void ClientsViewTest::siteButton_comesAndGoesWithTheAddress()
{
    m_book->select(m_book->cafe);
    auto* site = ShownPanel::find(m_book->item(u"actions"_s), u"site"_s);
    QVERIFY(!site->isVisible());

    m_book->click(m_book->item(u"siteURL"_s));
    m_book->type(u"cafe.example"_s);
    QVERIFY(site->isVisible());
    m_book->settle();
    m_book->click(site);
    QCOMPARE(m_book->opener.asked, QStringList{u"browse https://cafe.example"_s});
    m_book->click(m_book->item(u"siteURL"_s));
    m_book->press(Qt::Key_A, Qt::ControlModifier);
    m_book->press(Qt::Key_Delete);

    QVERIFY(!site->isVisible());
}

void ClientsViewTest::folderButtons_comeWithTheFolder()
{
    m_book->select(m_book->cafe);
    auto* folder = ShownPanel::find(m_book->item(u"actions"_s), u"folder"_s);
    auto* code = ShownPanel::find(m_book->item(u"actions"_s), u"code"_s);
    QVERIFY(!folder->isVisible() && !code->isVisible());
    QCOMPARE(m_book->text(u"folderPath"_s), u"No project folder"_s);

    m_book->click(m_book->item(u"chooseFolder"_s));
    QCOMPARE(m_book->commands.asked, QStringList{u"pick folder in "_s});
    m_book->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));
    QCOMPARE(m_book->client(m_book->cafe).folderPath, u"/work/café"_s);
    QCOMPARE(m_book->text(u"folderPath"_s), u"/work/café"_s);
    QVERIFY(folder->isVisible() && code->isVisible());
    m_book->settle();
    m_book->click(folder);
    m_book->click(code);

    QCOMPARE(m_book->opener.asked.front(), u"reveal /work/café"_s);
    QCOMPARE(m_book->opener.asked.size(), 2);
}

void ClientsViewTest::trackTime_startsAndStops()
{
    m_book->store().startTimer(m_book->bloom, {});
    m_book->select(m_book->cafe);
    auto* track = ShownPanel::find(m_book->item(u"actions"_s), u"track"_s);
    QCOMPARE(track->property("title").toString(), u"Track time"_s);

    m_book->click(track);
    QCOMPARE(m_book->store().runningEntry()->clientID, m_book->cafe);
    QCOMPARE(m_book->store().runningEntry()->note, QString());
    QCOMPARE(track->property("title").toString(), u"Stop"_s);
    QVERIFY(ShownPanel::find(m_book->row(0), u"timed"_s)->isVisible());
    m_book->settle();
    m_book->click(track);

    QVERIFY(!m_book->store().hasRunningEntry());
    QCOMPARE(track->property("title").toString(), u"Track time"_s);
}

void ClientsViewTest::trackTime_doubleClicked_keepsTheTimer()
{
    m_book->select(m_book->cafe);
    m_book->settle();

    m_book->doubleClick(m_book->item(u"track"_s));

    QVERIFY(m_book->store().hasRunningEntry());
    QCOMPARE(m_book->store().runningEntry()->clientID, m_book->cafe);
}

void ClientsViewTest::firstClick_arms()
{
    m_book->select(m_book->cafe);
    auto* remove = m_book->item(u"delete"_s);
    QCOMPARE(remove->property("symbol").toString(), u"trash"_s);
    QCOMPARE(remove->property("help").toString(), u"Delete client"_s);

    m_book->click(remove);

    QCOMPARE(remove->property("symbol").toString(), u"trash.fill"_s);
    QCOMPARE(remove->property("help").toString(), u"Click again to delete"_s);
    QCOMPARE(m_book->store().data().clients.size(), 2);
}

void ClientsViewTest::secondClick_deletes()
{
    m_book->workspace.task(u"Call"_s, m_book->cafe);
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"delete"_s));

    m_book->click(m_book->item(u"delete"_s));

    QVERIFY(!m_book->store().client(m_book->cafe));
    QCOMPARE(m_book->store().data().tasks.size(), 1);
    QCOMPARE(m_book->selection(), quib::NoClient::id());
    QVERIFY(m_book->item(u"noClient"_s)->isVisible());
    QCOMPARE(m_book->row(0)->property("clientID").toUuid(), m_book->bloom);
    QTRY_VERIFY(!m_book->item(u"clientDetail"_s));
}

void ClientsViewTest::armedButton_restsForAnotherClient()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"delete"_s));

    m_book->click(m_book->row(1));
    QCOMPARE(m_book->item(u"delete"_s)->property("symbol").toString(), u"trash"_s);
    m_book->click(m_book->item(u"delete"_s));

    QCOMPARE(m_book->store().data().clients.size(), 2);
}

void ClientsViewTest::armedButton_restsWhenShownAnew_data()
{
    QTest::addColumn<bool>("byCollapse");

    QTest::addRow("after a collapse") << true;
    QTest::addRow("after another tab") << false;
}

void ClientsViewTest::armedButton_restsWhenShownAnew()
{
    QFETCH(bool, byCollapse);
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"delete"_s));

    if (byCollapse) {
        m_book->model.setExpanded(false);
        m_book->model.setExpanded(true);
    } else {
        m_book->model.setTab(Tab::Tasks);
        m_book->model.setTab(Tab::Clients);
    }

    QCOMPARE(m_book->item(u"delete"_s)->property("symbol").toString(), u"trash"_s);
    QCOMPARE(m_book->selection(), m_book->cafe);
}

void ClientsViewTest::armedButton_staysWhileTheStoreChanges()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"delete"_s));

    m_book->store().startTimer(m_book->cafe, {});
    m_book->change(m_book->cafe, [](quib::Client& edited) { edited.name = u"Corner Café"_s; });
    m_book->store().addClient();

    QCOMPARE(m_book->item(u"delete"_s)->property("symbol").toString(), u"trash.fill"_s);
}

void ClientsViewTest::armedButton_staysWhileTimePasses()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"delete"_s));

    m_book->hands.advance(std::chrono::hours(24));
    m_book->settle();
    QCOMPARE(m_book->item(u"delete"_s)->property("symbol").toString(), u"trash.fill"_s);
    m_book->click(m_book->item(u"delete"_s));

    QVERIFY(!m_book->store().client(m_book->cafe));
}

void ClientsViewTest::longFolderPath_showsItsEnds()
{
    const auto folder = u"/home/ann/"_s + u"deep/"_s.repeated(200) + u"café"_s;
    m_book->change(m_book->cafe, [&](quib::Client& edited) { edited.folderPath = folder; });

    m_book->select(m_book->cafe);
    m_book->settle();

    const auto line = m_book->item(u"folderPath"_s)->property("line").toString();
    QVERIFY(line.startsWith(u"/home/ann/deep/"_s));
    QVERIFY(line.endsWith(u"deep/café"_s));
    const auto* drawn = textItems(*m_book->item(u"folderPath"_s)).front();
    QVERIFY(drawn->property("truncated").toBool());
    QCOMPARE(drawn->property("elide").toInt(), int(Qt::ElideMiddle));
}

void ClientsViewTest::tabKey_goesThroughEverything()
{
    m_book->change(m_book->cafe, [](quib::Client& edited) {
        edited.siteURL = u"cafe.example"_s;
        edited.folderPath = u"/work"_s;
    });
    m_book->select(m_book->cafe);
    m_book->item(u"addClient"_s)->forceActiveFocus(Qt::TabFocusReason);
    const auto focused = [&] { return m_book->window->activeFocusItem()->objectName(); };

    QStringList passed;
    QList<const QQuickItem*> items;
    m_book->press(Qt::Key_Tab);
    QVERIFY(m_book->row(0)->property("visualFocus").toBool());
    for (int number = 0; number < 11; ++number) {
        m_book->press(Qt::Key_Tab);
        items << m_book->window->activeFocusItem();
        passed << focused();
    }

    QCOMPARE(items.at(0), m_book->input(u"nameField"_s));
    QCOMPARE(passed.at(1), u"status"_s);
    QCOMPARE(items.at(2), m_book->input(u"siteURL"_s));
    QCOMPARE(items.at(3), m_book->input(u"rate"_s));
    QCOMPARE(passed.mid(4, 6),
             (QStringList{u"chooseFolder"_s, u"site"_s, u"folder"_s, u"code"_s, u"track"_s,
                          u"delete"_s}));
    QCOMPARE(items.back(), m_book->input(u"notes"_s));
    m_book->press(Qt::Key_Backtab);
    QCOMPARE(focused(), u"delete"_s);
    QCOMPARE(m_book->client(m_book->cafe).notes, QString());
}

void ClientsViewTest::deletedByKey_leavesTheKeysToTheList()
{
    m_book->select(m_book->cafe);
    m_book->item(u"delete"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_book->press(Qt::Key_Space);
    m_book->press(Qt::Key_Return);
    QVERIFY(!m_book->store().client(m_book->cafe));
    m_book->press(Qt::Key_Space);

    QCOMPARE(m_book->selection(), m_book->bloom);
}

void ClientsViewTest::texts_arePlain()
{
    m_book->change(m_book->cafe, [](quib::Client& edited) {
        edited.name = edited.siteURL = edited.folderPath = edited.notes = u"<img src='x'>"_s;
    });
    m_book->select(m_book->cafe);

    const auto texts = textItems(*m_book->item(u"clientsView"_s));

    QVERIFY(texts.size() > 10);
    for (const auto* text : texts) {
        QVERIFY2(isPlain(*text), qPrintable(text->property("text").toString()));
    }
}

void ClientsViewTest::names_tellWhatPressingDoes()
{
    m_book->select(m_book->cafe);
    const auto nameOf = [](QObject* object) {
        auto* interface = QAccessible::queryAccessibleInterface(object);
        return interface ? interface->text(QAccessible::Name) : QString();
    };

    QCOMPARE(nameOf(m_book->item(u"clientList"_s)), u"Clients"_s);
    QCOMPARE(nameOf(m_book->row(0)), u"Café"_s);
    QCOMPARE(nameOf(m_book->item(u"addClient"_s)), u"Add client"_s);
    QCOMPARE(nameOf(m_book->input(u"nameField"_s)), u"Client name"_s);
    QCOMPARE(nameOf(m_book->item(u"status"_s)), u"Status: Build"_s);
    QCOMPARE(nameOf(m_book->input(u"siteURL"_s)), u"Website URL"_s);
    QCOMPARE(nameOf(m_book->input(u"rate"_s)), u"Rate"_s);
    QCOMPARE(nameOf(m_book->item(u"chooseFolder"_s)), u"Choose folder"_s);
    QCOMPARE(nameOf(m_book->item(u"track"_s)), u"Track time"_s);
    QCOMPARE(nameOf(m_book->item(u"delete"_s)), u"Delete client"_s);
    QCOMPARE(nameOf(m_book->input(u"notes"_s)), u"Notes — contact, package, next step…"_s);
    const auto* rowInterface = QAccessible::queryAccessibleInterface(m_book->row(0));
    QVERIFY(rowInterface->state().checked);
    const auto* notesInterface = QAccessible::queryAccessibleInterface(m_book->input(u"notes"_s));
    QCOMPARE(notesInterface->role(), QAccessible::EditableText);
    QVERIFY(notesInterface->state().multiLine);
}

void ClientsViewTest::rowsDescription_tellsWhatItsMarksDo()
{
    const auto description = [&] {
        return QAccessible::queryAccessibleInterface(m_book->row(0))
            ->text(QAccessible::Description);
    };
    QCOMPARE(description(), u"Build"_s);

    m_book->workspace.task(u"x"_s, m_book->cafe);
    QCOMPARE(description(), u"Build, 1 open task"_s);
    m_book->workspace.task(u"y"_s, m_book->cafe);
    m_book->store().startTimer(m_book->cafe, {});

    QCOMPARE(description(), u"Build, timer running, 2 open tasks"_s);
}

void ClientsViewTest::longNames_leaveRoomForTheMarks_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("letters") << QString(200, u'w');
    QTest::addRow("pictures") << u"🎉👩‍👩‍👧"_s.repeated(60);
    QTest::addRow("from right to left") << u"مقهى الزاوية "_s.repeated(20);
    QTest::addRow("lines") << u"Two\nlines\u2028of many"_s.repeated(20);
}

void ClientsViewTest::longNames_leaveRoomForTheMarks()
{
    QFETCH(QString, name);
    m_book->change(m_book->cafe,
                   [&](quib::Client& edited) { edited.name = edited.folderPath = name; });
    const auto height = m_book->row(1)->height();
    for (int number = 0; number < 1234; ++number) {
        m_book->store().addTask(u"x"_s, m_book->cafe);
    }
    m_book->store().startTimer(m_book->cafe, {});
    m_book->select(m_book->cafe);
    m_book->settle();

    const auto text = inScene(ShownPanel::find(m_book->row(0), u"name"_s));
    const auto timed = inScene(ShownPanel::find(m_book->row(0), u"timed"_s));
    const auto badge = inScene(ShownPanel::find(m_book->row(0), u"badge"_s));
    const auto* drawn = textItems(*ShownPanel::find(m_book->row(0), u"name"_s)).front();
    QVERIFY(drawn->property("truncated").toBool());
    QVERIFY(text.width() > 60);
    QVERIFY(text.right() < timed.left());
    QVERIFY(timed.right() < badge.left());
    QVERIFY(badge.right() <= inScene(m_book->row(0)).right() - 8);
    QCOMPARE(m_book->row(0)->height(), height);
    const auto path = m_book->rect(u"folderPath"_s);
    const auto choose = m_book->rect(u"chooseFolder"_s);
    QVERIFY(path.right() <= choose.left());
    QVERIFY(choose.right() <= m_book->rect(u"tabArea"_s).right());
}

QTEST_MAIN(ClientsViewTest)
#include "tst_clientsview.moc"
