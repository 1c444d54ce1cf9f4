#include "support/clientbook.h"
#include "support/panel/plaintexts.h"

#include "brand/brand.h"

using namespace Qt::StringLiterals;
using quib::Brand;

/// The list of clients: what it shows, and how one of them is chosen.
class ClientListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<ClientBook>(); }
    void cleanup() { m_book.reset(); }

    void empty_asksForTheFirstClient();
    void withoutASelection_noEditorIsOpen();
    void plus_opensTheNewClientForTyping();
    void plus_bringsTheNewClientIntoSight();
    void click_selects();
    void row_isFilledByItsState();
    void clientWithTheNullId_isAClient();
    void arrows_select();
    void arrows_passRepeatedIds();
    void firstDown_selectsTheFirst();
    void pagesAndEnds_select();
    void selectionFarDown_isBroughtIntoSight();
    void rowsMarks_followTasksAndTimer();
    void otherRows_keepStandingWhileOneIsEdited();
    void longNames_leaveRoomForTheMarks_data();
    void longNames_leaveRoomForTheMarks();

private:
    std::unique_ptr<ClientBook> m_book;
};

void ClientListTest::empty_asksForTheFirstClient()
{
    m_book->store().setData({});

    QCOMPARE(m_book->text(u"heading"_s), u"0 clients"_s);
    QVERIFY(m_book->item(u"noClient"_s)->isVisible());
    QCOMPARE(m_book->text(u"noClient"_s), u"Add your first client with +"_s);
    QVERIFY(!m_book->item(u"clientDetail"_s));
}

void ClientListTest::withoutASelection_noEditorIsOpen()
{
    QCOMPARE(m_book->text(u"heading"_s), u"2 clients"_s);
    QVERIFY(m_book->item(u"noClient"_s)->isVisible());
    QVERIFY(!m_book->item(u"clientDetail"_s));
    QVERIFY(!m_book->row(0)->property("selected").toBool());
}

void ClientListTest::plus_opensTheNewClientForTyping()
{
    m_book->click(m_book->item(u"addClient"_s));

    const auto added = m_book->store().data().clients.front().id;
    QCOMPARE(m_book->selection(), added);
    QCOMPARE(m_book->row(0)->property("clientID").toUuid(), added);
    QVERIFY(m_book->row(0)->property("selected").toBool());
    QCOMPARE(m_book->text(u"heading"_s), u"3 clients"_s);
    QVERIFY(!m_book->item(u"noClient"_s)->isVisible());
    QCOMPARE(m_book->commands.asked, QStringList{u"take keyboard"_s});
    QCOMPARE(textOf(m_book->input(u"nameField"_s), "selectedText"), u"New client"_s);
    m_book->type(u"Ann"_s);

    QCOMPARE(m_book->client(added).name, u"Ann"_s);
}

void ClientListTest::plus_bringsTheNewClientIntoSight()
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

void ClientListTest::click_selects()
{
    m_book->click(m_book->row(1));

    QCOMPARE(m_book->selection(), m_book->bloom);
    QCOMPARE(m_book->text(u"nameField"_s), u"Bloom"_s);
    QVERIFY(m_book->row(1)->property("selected").toBool());
    QVERIFY(!m_book->row(0)->property("selected").toBool());
}

void ClientListTest::row_isFilledByItsState()
{
    m_book->select(m_book->cafe);
    m_book->move(m_book->item(u"heading"_s));
    m_book->settle();

    const auto* selected = m_book->part(0, u"surface"_s);
    QCOMPARE(colorOf(selected), Brand::purple());
    QCOMPARE(selected->opacity(), 0.35);

    const auto* other = m_book->part(1, u"surface"_s);
    QTRY_COMPARE(other->opacity(), 0.0);
    m_book->move(m_book->row(1));
    QTRY_COMPARE(other->opacity(), 0.06);
}

void ClientListTest::clientWithTheNullId_isAClient()
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

void ClientListTest::arrows_select()
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

void ClientListTest::arrows_passRepeatedIds()
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

void ClientListTest::firstDown_selectsTheFirst()
{
    m_book->item(u"addClient"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_book->press(Qt::Key_Tab);

    m_book->press(Qt::Key_Down);

    QCOMPARE(m_book->selection(), m_book->cafe);
}

void ClientListTest::pagesAndEnds_select()
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

void ClientListTest::selectionFarDown_isBroughtIntoSight()
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

void ClientListTest::rowsMarks_followTasksAndTimer()
{
    for (const auto done : {false, true, false, true, false}) {
        m_book->workspace.task(u"x"_s, m_book->bloom, done);
    }
    m_book->store().startTimer(m_book->cafe, {});

    QVERIFY(m_book->part(0, u"timed"_s)->isVisible());
    QVERIFY(!m_book->part(1, u"timed"_s)->isVisible());
    QVERIFY(!m_book->part(0, u"badge"_s)->isVisible());
    QVERIFY(m_book->part(1, u"badge"_s)->isVisible());
    QCOMPARE(textOf(m_book->part(1, u"openTasks"_s)), u"3"_s);
}

void ClientListTest::otherRows_keepStandingWhileOneIsEdited()
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

void ClientListTest::longNames_leaveRoomForTheMarks_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("letters") << QString(200, u'w');
    QTest::addRow("pictures") << u"🎉👩‍👩‍👧"_s.repeated(60);
    QTest::addRow("from right to left") << u"مقهى الزاوية "_s.repeated(20);
    QTest::addRow("lines") << u"Two\nlines\u2028of many"_s.repeated(20);
}

void ClientListTest::longNames_leaveRoomForTheMarks()
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

    const auto text = inScene(m_book->part(0, u"name"_s));
    const auto timed = inScene(m_book->part(0, u"timed"_s));
    const auto badge = inScene(m_book->part(0, u"badge"_s));
    const auto* drawn = textItems(*m_book->part(0, u"name"_s)).front();
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

QTEST_MAIN(ClientListTest)
#include "tst_clientlist.moc"
