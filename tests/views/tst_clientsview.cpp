#include "support/plaintexts.h"
#include "support/shownpanel.h"

#include <QAccessible>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using quib::ClientStatus;
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
    void arrows_select();
    void selectionFarDown_isBroughtIntoSight();
    void rowsMarks_followTasksAndTimer();
    void typedName_isInTheRowAtOnce();
    void otherRows_keepStandingWhileOneIsEdited();
    void everyField_reachesTheStoreAtEachKey();
    void rate_waitsForANumber();
    void rate_isShownAnewWhenItsFieldIsLeft();
    void cursor_staysWhileTheStoreChanges_data();
    void cursor_staysWhileTheStoreChanges();
    void sameFieldChangedElsewhere_isShownWithTheCursorKept();
    void undo_belongsToOneClient();
    void showing_changesNothing();
    void editing_keepsWhatIsNotTouched();
    void statusMenu_choosesInOrder();
    void siteButton_comesAndGoesWithTheAddress();
    void folderButtons_comeWithTheFolder();
    void folderChosenLate_goesToItsClient();
    void folderChosenWithoutAView_isStillWritten();
    void trackTime_startsAndStops();
    void firstClick_arms();
    void secondClick_deletes();
    void armedButton_restsForAnotherClient();
    void armedButton_restsWhenShownAnew_data();
    void armedButton_restsWhenShownAnew();
    void armedButton_staysWhileTheStoreChanges();
    void deletedElsewhere_closesTheEditor();
    void tabKey_goesThroughEverything();
    void deletedByKey_leavesTheKeysToTheList();
    void texts_arePlain();
    void names_tellWhatPressingDoes();
    void longNames_leaveRoomForTheMarks_data();
    void longNames_leaveRoomForTheMarks();
    void selectionAndTypedText_surviveACollapse();

private:
    QQuickItem* item(const QString& name) { return m_panel->item(name); }
    QQuickItem* input(const QString& field) { return part(item(field), u"input"_s); }
    QQuickItem* part(QQuickItem* of, const QString& name) { return ShownPanel::find(of, name); }
    QQuickItem* row(int number);
    quib::Store& store() { return *m_panel->workspace.store; }
    quib::Client client(const QUuid& id) { return *store().client(id); }
    QUuid selection() { return item(u"clientsView"_s)->property("selection").toUuid(); }
    void select(const QUuid& id) { item(u"clientsView"_s)->setProperty("selection", id); }
    void change(const QUuid& id, const std::function<void(quib::Client&)>& edit);
    void press(Qt::Key key, Qt::KeyboardModifiers with = {});
    void type(const QString& text);
    QString shown(const QString& field) { return item(field)->property("text").toString(); }

    std::unique_ptr<ShownPanel> m_panel;
    QUuid m_cafe;
    QUuid m_bloom;
};

void ClientsViewTest::init()
{
    QTest::failOnWarning(QRegularExpression(u"qml|QQuickItem"_s)); // A fault of a view.
    m_panel = std::make_unique<ShownPanel>();
    m_cafe = m_panel->workspace.client(u"Café"_s, ClientStatus::Build);
    m_bloom = m_panel->workspace.client(u"Bloom"_s, ClientStatus::Live);
    m_panel->open(Tab::Clients);
    m_panel->window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_panel->window.get()));
}

QQuickItem* ClientsViewTest::row(int number)
{
    QQuickItem* found = nullptr;
    auto* list = item(u"clientList"_s);
    QMetaObject::invokeMethod(list, "forceLayout");
    QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found),
                              Q_ARG(int, number));
    return found;
}

void ClientsViewTest::change(const QUuid& id, const std::function<void(quib::Client&)>& edit)
{
    auto changed = client(id);
    edit(changed);
    store().updateClient(changed);
}

void ClientsViewTest::press(Qt::Key key, Qt::KeyboardModifiers with)
{
    QTest::keyClick(m_panel->window.get(), key, with);
}

void ClientsViewTest::type(const QString& text)
{
    for (const auto letter : text) {
        QTest::keyClick(m_panel->window.get(), letter.toLatin1());
    }
}

void ClientsViewTest::empty_asksForTheFirstClient()
{
    store().setData({});

    QCOMPARE(shown(u"heading"_s), u"0 clients"_s);
    QVERIFY(item(u"noClient"_s)->isVisible());
    QCOMPARE(shown(u"noClient"_s), u"Add your first client with +"_s);
    QVERIFY(!item(u"clientDetail"_s));
}

void ClientsViewTest::withoutASelection_noEditorIsOpen()
{
    QCOMPARE(shown(u"heading"_s), u"2 clients"_s);
    QVERIFY(item(u"noClient"_s)->isVisible());
    QVERIFY(!item(u"clientDetail"_s));
    QVERIFY(!row(0)->property("selected").toBool());
}

void ClientsViewTest::plus_opensTheNewClientForTyping()
{
    m_panel->click(item(u"addClient"_s));

    const auto added = store().data().clients.front().id;
    QCOMPARE(selection(), added);
    QCOMPARE(row(0)->property("clientID").toUuid(), added);
    QVERIFY(row(0)->property("selected").toBool());
    QCOMPARE(shown(u"heading"_s), u"3 clients"_s);
    QVERIFY(!item(u"noClient"_s)->isVisible());
    QCOMPARE(m_panel->commands.asked, QStringList{u"take keyboard"_s});
    QCOMPARE(input(u"nameField"_s)->property("selectedText").toString(), u"New client"_s);
    type(u"Ann"_s);

    QCOMPARE(client(added).name, u"Ann"_s);
}

void ClientsViewTest::plus_bringsTheNewClientIntoSight()
{
    for (int number = 0; number < 60; ++number) {
        store().addClient();
    }
    auto* list = item(u"clientList"_s);
    list->setProperty("contentY", 500);

    m_panel->click(item(u"addClient"_s));
    m_panel->settle();

    const auto place = ShownPanel::inScene(row(0));
    QVERIFY(ShownPanel::inScene(list).contains(place));
    QVERIFY(row(0)->property("selected").toBool());
}

void ClientsViewTest::click_selects()
{
    m_panel->click(row(1));

    QCOMPARE(selection(), m_bloom);
    QCOMPARE(shown(u"nameField"_s), u"Bloom"_s);
    QVERIFY(row(1)->property("selected").toBool());
    QVERIFY(!row(0)->property("selected").toBool());
}

void ClientsViewTest::arrows_select()
{
    m_panel->click(row(0));

    press(Qt::Key_Down);
    QCOMPARE(selection(), m_bloom);
    QVERIFY(row(1)->property("visualFocus").toBool());
    press(Qt::Key_Down);
    QCOMPARE(selection(), m_bloom);
    press(Qt::Key_Up);

    QCOMPARE(selection(), m_cafe);
    QCOMPARE(shown(u"nameField"_s), u"Café"_s);
}

void ClientsViewTest::selectionFarDown_isBroughtIntoSight()
{
    for (int number = 0; number < 60; ++number) {
        store().addClient();
    }
    m_panel->click(row(0));

    for (int number = 0; number < 61; ++number) {
        press(Qt::Key_Down);
    }
    m_panel->settle();

    QCOMPARE(selection(), m_bloom);
    QVERIFY(ShownPanel::inScene(item(u"clientList"_s)).contains(ShownPanel::inScene(row(61))));
    QVERIFY(!row(0)); // Only what is seen is made.
}

void ClientsViewTest::rowsMarks_followTasksAndTimer()
{
    for (const auto done : {false, true, false, true, false}) {
        m_panel->workspace.task(u"x"_s, m_bloom, done);
    }
    store().startTimer(m_cafe, {});

    QVERIFY(part(row(0), u"timed"_s)->isVisible());
    QVERIFY(!part(row(1), u"timed"_s)->isVisible());
    QVERIFY(!part(row(0), u"badge"_s)->isVisible());
    QVERIFY(part(row(1), u"badge"_s)->isVisible());
    QCOMPARE(part(row(1), u"openTasks"_s)->property("text").toString(), u"3"_s);
}

void ClientsViewTest::typedName_isInTheRowAtOnce()
{
    select(m_cafe);
    m_panel->click(item(u"nameField"_s));
    press(Qt::Key_End);

    type(u" N"_s);

    QCOMPARE(part(row(0), u"name"_s)->property("text").toString(), u"Café N"_s);
    type(u"o"_s);
    QCOMPARE(part(row(0), u"name"_s)->property("text").toString(), u"Café No"_s);
}

void ClientsViewTest::otherRows_keepStandingWhileOneIsEdited()
{
    auto* first = row(0);
    auto* second = row(1);
    select(m_cafe);
    auto* editor = item(u"clientDetail"_s);

    change(m_cafe, [](quib::Client& edited) { edited.name = u"Corner Café"_s; });
    store().startTimer(m_bloom, {});
    m_panel->workspace.task(u"x"_s, m_bloom);

    QCOMPARE(row(0), first);
    QCOMPARE(row(1), second);
    QCOMPARE(item(u"clientDetail"_s), editor);
}

void ClientsViewTest::everyField_reachesTheStoreAtEachKey()
{
    select(m_cafe);

    m_panel->click(item(u"siteURL"_s));
    type(u"a"_s);
    QCOMPARE(client(m_cafe).siteURL, u"a"_s);
    type(u".b"_s);
    QCOMPARE(client(m_cafe).siteURL, u"a.b"_s);
    m_panel->click(item(u"rate"_s));
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"4"_s);
    QCOMPARE(client(m_cafe).hourlyRate, 4.0);
    type(u"2.5"_s);
    QCOMPARE(client(m_cafe).hourlyRate, 42.5);
    m_panel->click(item(u"notes"_s));
    type(u"x"_s);
    QCOMPARE(client(m_cafe).notes, u"x"_s);
    press(Qt::Key_Return);
    type(u"y"_s);

    QCOMPARE(client(m_cafe).notes, u"x\ny"_s);
    QCOMPARE(client(m_bloom).notes, QString());
}

void ClientsViewTest::rate_waitsForANumber()
{
    change(m_cafe, [](quib::Client& edited) { edited.hourlyRate = 35; });
    select(m_cafe);
    m_panel->click(item(u"rate"_s));
    press(Qt::Key_A, Qt::ControlModifier);

    press(Qt::Key_Delete);
    QCOMPARE(client(m_cafe).hourlyRate, 35.0);
    QCOMPARE(shown(u"rate"_s), QString());
    type(u"-"_s);
    QCOMPARE(client(m_cafe).hourlyRate, 35.0);
    QCOMPARE(shown(u"rate"_s), u"-"_s);
    press(Qt::Key_Backspace);
    type(u"1e400"_s);

    QCOMPARE(client(m_cafe).hourlyRate, 1e40);
    QCOMPARE(shown(u"rate"_s), u"1e400"_s);
}

void ClientsViewTest::rate_isShownAnewWhenItsFieldIsLeft()
{
    change(m_cafe, [](quib::Client& edited) { edited.hourlyRate = 35; });
    select(m_cafe);
    m_panel->click(item(u"rate"_s));
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"1,234.50"_s);
    QCOMPARE(shown(u"rate"_s), u"1,234.50"_s);

    m_panel->click(item(u"nameField"_s));
    QCOMPARE(shown(u"rate"_s), u"1234.5"_s);
    m_panel->click(item(u"rate"_s));
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"much"_s);
    QCOMPARE(shown(u"rate"_s), u"much"_s);
    press(Qt::Key_Return);

    QCOMPARE(shown(u"rate"_s), u"1234.5"_s);
    QCOMPARE(client(m_cafe).hourlyRate, 1234.5);
}

void ClientsViewTest::cursor_staysWhileTheStoreChanges_data()
{
    QTest::addColumn<QString>("field");

    QTest::addRow("name") << u"nameField"_s;
    QTest::addRow("address") << u"siteURL"_s;
    QTest::addRow("rate") << u"rate"_s;
    QTest::addRow("notes") << u"notes"_s;
}

void ClientsViewTest::cursor_staysWhileTheStoreChanges()
{
    QFETCH(QString, field);
    select(m_cafe);
    m_panel->click(item(field));
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"12345"_s);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Left, Qt::ShiftModifier);

    store().startTimer(m_cafe, {});
    m_panel->workspace.task(u"x"_s, m_cafe);
    change(m_bloom, [](quib::Client& edited) { edited.name = u"Bloom Florist"_s; });
    change(m_cafe, [](quib::Client& edited) { edited.folderPath = u"/work"_s; });

    QCOMPARE(input(field)->property("cursorPosition").toInt(), 2);
    QCOMPARE(input(field)->property("selectedText").toString(), u"3"_s);
    QVERIFY(item(field)->property("isEditing").toBool());
    type(u"9"_s);
    QCOMPARE(shown(field), u"12945"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown(field), u"12345"_s);
}

void ClientsViewTest::sameFieldChangedElsewhere_isShownWithTheCursorKept()
{
    select(m_cafe);
    for (const auto& field : {u"nameField"_s, u"notes"_s}) {
        change(m_cafe, [](quib::Client& edited) { edited.name = edited.notes = u"Corner"_s; });
        m_panel->click(item(field));
        press(Qt::Key_Home);
        press(Qt::Key_Right);

        change(m_cafe, [](quib::Client& edited) { edited.name = edited.notes = u"Cafeteria"_s; });

        QCOMPARE(shown(field), u"Cafeteria"_s);
        QCOMPARE(input(field)->property("cursorPosition").toInt(), 1);
    }
}

void ClientsViewTest::undo_belongsToOneClient()
{
    for (const auto& field : {u"nameField"_s, u"siteURL"_s, u"notes"_s}) {
        select(m_cafe);
        const auto before = shown(field);
        m_panel->click(item(field));
        type(u"x"_s);
        QVERIFY(shown(field) != before);
        press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown(field), before);
        type(u"y"_s);

        m_panel->click(row(1));
        const auto ofAnother = shown(field);
        m_panel->click(item(field));
        press(Qt::Key_Z, Qt::ControlModifier);

        QCOMPARE(shown(field), ofAnother);
    }
    QCOMPARE(client(m_bloom).name, u"Bloom"_s);
    QCOMPARE(client(m_bloom).notes, QString());
}

void ClientsViewTest::showing_changesNothing()
{
    const QString odd = u"a\rb\r\nc"_s + QChar::Null + u"\u2028d\u2029e\u00a0f\tg\n"_s;
    change(m_cafe, [&](quib::Client& edited) {
        edited.name = edited.siteURL = edited.folderPath = edited.notes = odd;
        edited.hourlyRate = 100.0 / 3;
    });
    const auto before = client(m_cafe);
    const QSignalSpy changes(&store(), &quib::Store::clientsChanged);

    select(m_cafe);
    m_panel->settle();
    for (const auto& field : {u"nameField"_s, u"siteURL"_s, u"rate"_s, u"notes"_s}) {
        m_panel->click(item(field));
        press(Qt::Key_Right);
    }
    m_panel->model.setTab(Tab::Tasks);
    m_panel->model.setTab(Tab::Clients);
    select(m_bloom);

    QCOMPARE(changes.count(), 0);
    QCOMPARE(client(m_cafe), before);
}

void ClientsViewTest::editing_keepsWhatIsNotTouched()
{
    const QString odd = u"a\rb"_s + QChar::Null + u"\u2028c\u00a0d"_s;
    change(m_cafe,
           [&](quib::Client& edited) { edited.name = edited.siteURL = edited.notes = odd; });
    select(m_cafe);

    m_panel->click(item(u"nameField"_s));
    press(Qt::Key_End);
    type(u"x"_s);
    QCOMPARE(client(m_cafe).name, odd + u'x');
    QCOMPARE(client(m_cafe).notes, odd);
    m_panel->click(item(u"notes"_s));
    press(Qt::Key_End, Qt::ControlModifier);
    type(u"x"_s);

    // A line end of another system is one of ours once its text was edited.
    QCOMPARE(client(m_cafe).notes, QString(odd).replace(u'\r', u'\n') + u'x');
    QCOMPARE(client(m_cafe).siteURL, odd);
}

void ClientsViewTest::statusMenu_choosesInOrder()
{
    select(m_cafe);
    m_panel->click(item(u"status"_s));
    press(Qt::Key_End);
    press(Qt::Key_Return);
    QCOMPARE(client(m_cafe).status, ClientStatus::Care);
    QCOMPARE(part(item(u"status"_s), u"title"_s)->property("text").toString(), u"Care plan"_s);

    m_panel->click(item(u"status"_s));
    press(Qt::Key_Up); // From the present one.
    press(Qt::Key_Return);

    QCOMPARE(client(m_cafe).status, ClientStatus::Live);
    QCOMPARE(row(0)->property("status").toString(), u"live"_s);
}

void ClientsViewTest::siteButton_comesAndGoesWithTheAddress()
{
    select(m_cafe);
    auto* site = part(item(u"actions"_s), u"site"_s);
    QVERIFY(!site->isVisible());

    m_panel->click(item(u"siteURL"_s));
    type(u"cafe.example"_s);
    QVERIFY(site->isVisible());
    m_panel->settle();
    m_panel->click(site);
    QCOMPARE(m_panel->opener.asked, QStringList{u"browse https://cafe.example"_s});
    m_panel->click(item(u"siteURL"_s));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);

    QVERIFY(!site->isVisible());
}

void ClientsViewTest::folderButtons_comeWithTheFolder()
{
    select(m_cafe);
    auto* folder = part(item(u"actions"_s), u"folder"_s);
    auto* code = part(item(u"actions"_s), u"code"_s);
    QVERIFY(!folder->isVisible() && !code->isVisible());
    QCOMPARE(shown(u"folderPath"_s), u"No project folder"_s);

    m_panel->click(item(u"chooseFolder"_s));
    QCOMPARE(m_panel->commands.asked, QStringList{u"pick folder in "_s});
    m_panel->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));
    QCOMPARE(client(m_cafe).folderPath, u"/work/café"_s);
    QCOMPARE(shown(u"folderPath"_s), u"/work/café"_s);
    QVERIFY(folder->isVisible() && code->isVisible());
    m_panel->settle();
    m_panel->click(folder);
    m_panel->click(code);

    QCOMPARE(m_panel->opener.asked.front(), u"reveal /work/café"_s);
    QCOMPARE(m_panel->opener.asked.size(), 2);
}

void ClientsViewTest::folderChosenLate_goesToItsClient()
{
    select(m_cafe);
    m_panel->click(item(u"chooseFolder"_s));
    m_panel->click(row(1));

    m_panel->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(client(m_cafe).folderPath, u"/work/café"_s);
    QCOMPARE(client(m_bloom).folderPath, QString());
    QCOMPARE(shown(u"folderPath"_s), u"No project folder"_s);
}

void ClientsViewTest::folderChosenWithoutAView_isStillWritten()
{
    select(m_cafe);
    m_panel->click(item(u"chooseFolder"_s));

    m_panel->window.reset();
    m_panel->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(client(m_cafe).folderPath, u"/work/café"_s);
}

void ClientsViewTest::trackTime_startsAndStops()
{
    store().startTimer(m_bloom, {});
    select(m_cafe);
    auto* track = part(item(u"actions"_s), u"track"_s);
    QCOMPARE(track->property("title").toString(), u"Track time"_s);

    m_panel->click(track);
    QCOMPARE(store().runningEntry()->clientID, m_cafe);
    QCOMPARE(store().runningEntry()->note, QString());
    QCOMPARE(track->property("title").toString(), u"Stop"_s);
    QVERIFY(part(row(0), u"timed"_s)->isVisible());
    m_panel->settle();
    m_panel->click(track);

    QVERIFY(!store().hasRunningEntry());
    QCOMPARE(track->property("title").toString(), u"Track time"_s);
}

void ClientsViewTest::firstClick_arms()
{
    select(m_cafe);
    auto* remove = item(u"delete"_s);
    QCOMPARE(remove->property("symbol").toString(), u"trash"_s);
    QCOMPARE(remove->property("help").toString(), u"Delete client"_s);

    m_panel->click(remove);

    QCOMPARE(remove->property("symbol").toString(), u"trash.fill"_s);
    QCOMPARE(remove->property("help").toString(), u"Click again to delete"_s);
    QCOMPARE(store().data().clients.size(), 2);
}

void ClientsViewTest::secondClick_deletes()
{
    m_panel->workspace.task(u"Call"_s, m_cafe);
    select(m_cafe);
    m_panel->click(item(u"delete"_s));

    m_panel->click(item(u"delete"_s));

    QVERIFY(!store().client(m_cafe));
    QCOMPARE(store().data().tasks.size(), 1);
    QCOMPARE(selection(), QUuid());
    QVERIFY(item(u"noClient"_s)->isVisible());
    QCOMPARE(row(0)->property("clientID").toUuid(), m_bloom);
    QTRY_VERIFY(!item(u"clientDetail"_s));
}

void ClientsViewTest::armedButton_restsForAnotherClient()
{
    select(m_cafe);
    m_panel->click(item(u"delete"_s));

    m_panel->click(row(1));
    QCOMPARE(item(u"delete"_s)->property("symbol").toString(), u"trash"_s);
    m_panel->click(item(u"delete"_s));

    QCOMPARE(store().data().clients.size(), 2);
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
    select(m_cafe);
    m_panel->click(item(u"delete"_s));

    if (byCollapse) {
        m_panel->model.setExpanded(false);
        m_panel->model.setExpanded(true);
    } else {
        m_panel->model.setTab(Tab::Tasks);
        m_panel->model.setTab(Tab::Clients);
    }

    QCOMPARE(item(u"delete"_s)->property("symbol").toString(), u"trash"_s);
    QCOMPARE(selection(), m_cafe);
}

void ClientsViewTest::armedButton_staysWhileTheStoreChanges()
{
    select(m_cafe);
    m_panel->click(item(u"delete"_s));

    store().startTimer(m_cafe, {});
    change(m_cafe, [](quib::Client& edited) { edited.name = u"Corner Café"_s; });
    store().addClient();

    QCOMPARE(item(u"delete"_s)->property("symbol").toString(), u"trash.fill"_s);
}

void ClientsViewTest::deletedElsewhere_closesTheEditor()
{
    select(m_cafe);
    m_panel->click(item(u"nameField"_s));

    store().deleteClient(m_cafe);

    QVERIFY(item(u"noClient"_s)->isVisible());
    QTRY_VERIFY(!item(u"clientDetail"_s));
    QCOMPARE(store().data().clients.size(), 1);
    QCOMPARE(client(m_bloom).name, u"Bloom"_s);
}

void ClientsViewTest::tabKey_goesThroughEverything()
{
    change(m_cafe, [](quib::Client& edited) {
        edited.siteURL = u"cafe.example"_s;
        edited.folderPath = u"/work"_s;
    });
    select(m_cafe);
    item(u"addClient"_s)->forceActiveFocus(Qt::TabFocusReason);
    const auto focused = [&] { return m_panel->window->activeFocusItem()->objectName(); };

    QStringList passed;
    QList<const QQuickItem*> items;
    press(Qt::Key_Tab);
    QVERIFY(row(0)->property("visualFocus").toBool());
    for (int number = 0; number < 11; ++number) {
        press(Qt::Key_Tab);
        items << m_panel->window->activeFocusItem();
        passed << focused();
    }

    QCOMPARE(items.at(0), input(u"nameField"_s));
    QCOMPARE(passed.at(1), u"status"_s);
    QCOMPARE(items.at(2), input(u"siteURL"_s));
    QCOMPARE(items.at(3), input(u"rate"_s));
    QCOMPARE(passed.mid(4, 6),
             (QStringList{u"chooseFolder"_s, u"site"_s, u"folder"_s, u"code"_s, u"track"_s,
                          u"delete"_s}));
    QCOMPARE(items.back(), input(u"notes"_s));
    press(Qt::Key_Backtab);
    QCOMPARE(focused(), u"delete"_s);
    QCOMPARE(client(m_cafe).notes, QString());
}

void ClientsViewTest::deletedByKey_leavesTheKeysToTheList()
{
    select(m_cafe);
    item(u"delete"_s)->forceActiveFocus(Qt::TabFocusReason);

    press(Qt::Key_Space);
    press(Qt::Key_Return);
    QVERIFY(!store().client(m_cafe));
    press(Qt::Key_Space);

    QCOMPARE(selection(), m_bloom);
}

void ClientsViewTest::texts_arePlain()
{
    change(m_cafe, [](quib::Client& edited) {
        edited.name = edited.siteURL = edited.folderPath = edited.notes = u"<img src='x'>"_s;
    });
    select(m_cafe);

    const auto texts = textItems(*item(u"clientsView"_s));

    QVERIFY(texts.size() > 10);
    for (const auto* text : texts) {
        QVERIFY2(isPlain(*text), qPrintable(text->property("text").toString()));
    }
}

void ClientsViewTest::names_tellWhatPressingDoes()
{
    select(m_cafe);
    const auto nameOf = [](QObject* object) {
        auto* interface = QAccessible::queryAccessibleInterface(object);
        return interface ? interface->text(QAccessible::Name) : QString();
    };

    QCOMPARE(nameOf(item(u"clientList"_s)), u"Clients"_s);
    QCOMPARE(nameOf(row(0)), u"Café"_s);
    QCOMPARE(nameOf(item(u"addClient"_s)), u"Add client"_s);
    QCOMPARE(nameOf(input(u"nameField"_s)), u"Client name"_s);
    QCOMPARE(nameOf(item(u"status"_s)), u"Status: Build"_s);
    QCOMPARE(nameOf(input(u"siteURL"_s)), u"Website URL"_s);
    QCOMPARE(nameOf(input(u"rate"_s)), u"Rate"_s);
    QCOMPARE(nameOf(item(u"chooseFolder"_s)), u"Choose folder"_s);
    QCOMPARE(nameOf(item(u"track"_s)), u"Track time"_s);
    QCOMPARE(nameOf(item(u"delete"_s)), u"Delete client"_s);
    QCOMPARE(nameOf(input(u"notes"_s)), u"Notes — contact, package, next step…"_s);
    const auto* rowInterface = QAccessible::queryAccessibleInterface(row(0));
    QVERIFY(rowInterface->state().checked);
    const auto* notesInterface = QAccessible::queryAccessibleInterface(input(u"notes"_s));
    QCOMPARE(notesInterface->role(), QAccessible::EditableText);
    QVERIFY(notesInterface->state().multiLine);
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
    change(m_cafe, [&](quib::Client& edited) { edited.name = edited.folderPath = name; });
    const auto height = row(1)->height();
    for (int number = 0; number < 1234; ++number) {
        store().addTask(u"x"_s, m_cafe);
    }
    store().startTimer(m_cafe, {});
    select(m_cafe);
    m_panel->settle();

    const auto text = ShownPanel::inScene(part(row(0), u"name"_s));
    const auto timed = ShownPanel::inScene(part(row(0), u"timed"_s));
    const auto badge = ShownPanel::inScene(part(row(0), u"badge"_s));
    QVERIFY(text.width() > 60);
    QVERIFY(text.right() < timed.left());
    QVERIFY(timed.right() < badge.left());
    QVERIFY(badge.right() <= ShownPanel::inScene(row(0)).right() - 8);
    QCOMPARE(row(0)->height(), height);
    const auto path = m_panel->rect(u"folderPath"_s);
    const auto choose = m_panel->rect(u"chooseFolder"_s);
    QVERIFY(path.right() <= choose.left());
    QVERIFY(choose.right() <= m_panel->rect(u"tabArea"_s).right());
}

void ClientsViewTest::selectionAndTypedText_surviveACollapse()
{
    select(m_cafe);
    m_panel->click(item(u"nameField"_s));
    press(Qt::Key_End);
    type(u"x"_s);
    auto* editor = item(u"clientDetail"_s);

    m_panel->model.setExpanded(false);
    m_panel->settle();
    m_panel->model.setExpanded(true);

    QCOMPARE(item(u"clientDetail"_s), editor);
    QCOMPARE(shown(u"nameField"_s), u"Caféx"_s);
    QCOMPARE(input(u"nameField"_s)->property("cursorPosition").toInt(), 5);
}

QTEST_MAIN(ClientsViewTest)
#include "tst_clientsview.moc"
