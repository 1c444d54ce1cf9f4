#include "support/clientbook.h"
#include "support/toldtext.h"

using namespace Qt::StringLiterals;

/// The client book for those who use no pointer.
class ClientsKeyboardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<ClientBook>(); }
    void cleanup() { m_book.reset(); }

    void tabKey_goesThroughEverything();
    void deletedByKey_leavesTheKeysToTheList();
    void names_tellWhatPressingDoes();
    void rowsDescription_tellsWhatItsMarksDo();

private:
    std::unique_ptr<ClientBook> m_book;
};

void ClientsKeyboardTest::tabKey_goesThroughEverything()
{
    m_book->change(m_book->cafe, [](quib::Client& edited) {
        edited.siteURL = u"cafe.example"_s;
        edited.folderPath = u"/work"_s;
    });
    m_book->select(m_book->cafe);
    m_book->item(u"addClient"_s)->forceActiveFocus(Qt::TabFocusReason);

    QStringList passed;
    m_book->press(Qt::Key_Tab);
    QVERIFY(m_book->row(0)->property("visualFocus").toBool());
    for (int number = 0; number < 10; ++number) {
        m_book->press(Qt::Key_Tab);
        passed << m_book->focused();
    }
    m_book->press(Qt::Key_Tab);

    QCOMPARE(passed,
             (QStringList{u"nameField"_s, u"status"_s, u"siteURL"_s, u"rate"_s, u"chooseFolder"_s,
                          u"site"_s, u"folder"_s, u"code"_s, u"track"_s, u"delete"_s}));
    QVERIFY(m_book->input(u"notes"_s)->hasActiveFocus());
    m_book->press(Qt::Key_Backtab);
    QCOMPARE(m_book->focused(), u"delete"_s);
    QCOMPARE(m_book->client(m_book->cafe).notes, QString());
}

void ClientsKeyboardTest::deletedByKey_leavesTheKeysToTheList()
{
    m_book->select(m_book->cafe);
    m_book->item(u"delete"_s)->forceActiveFocus(Qt::TabFocusReason);

    m_book->press(Qt::Key_Space);
    m_book->press(Qt::Key_Return);
    QVERIFY(!m_book->store().client(m_book->cafe));
    m_book->press(Qt::Key_Space);

    QCOMPARE(m_book->selection(), m_book->bloom);
}

void ClientsKeyboardTest::names_tellWhatPressingDoes()
{
    m_book->select(m_book->cafe);

    QCOMPARE(toldOf(m_book->item(u"clientList"_s)), u"Clients"_s);
    QCOMPARE(toldOf(m_book->row(0)), u"Café"_s);
    QCOMPARE(toldOf(m_book->item(u"addClient"_s)), u"Add client"_s);
    QCOMPARE(toldOf(m_book->input(u"nameField"_s)), u"Client name"_s);
    QCOMPARE(toldOf(m_book->item(u"status"_s)), u"Status: Build"_s);
    QCOMPARE(toldOf(m_book->input(u"siteURL"_s)), u"Website URL"_s);
    QCOMPARE(toldOf(m_book->input(u"rate"_s)), u"Rate"_s);
    QCOMPARE(toldOf(m_book->item(u"chooseFolder"_s)), u"Choose folder"_s);
    QCOMPARE(toldOf(m_book->item(u"track"_s)), u"Track time"_s);
    QCOMPARE(toldOf(m_book->item(u"delete"_s)), u"Delete client"_s);
    QCOMPARE(toldOf(m_book->input(u"notes"_s)), u"Notes — contact, package, next step…"_s);
    const auto* rowInterface = QAccessible::queryAccessibleInterface(m_book->row(0));
    QVERIFY(rowInterface->state().selected);
    const auto* notesInterface = QAccessible::queryAccessibleInterface(m_book->input(u"notes"_s));
    QCOMPARE(notesInterface->role(), QAccessible::EditableText);
    QVERIFY(notesInterface->state().multiLine);
}

void ClientsKeyboardTest::rowsDescription_tellsWhatItsMarksDo()
{
    const auto description = [&] { return toldOf(m_book->row(0), QAccessible::Description); };
    QCOMPARE(description(), u"Build"_s);

    m_book->workspace.task(u"x"_s, m_book->cafe);
    QCOMPARE(description(), u"Build, 1 open task"_s);
    m_book->workspace.task(u"y"_s, m_book->cafe);
    m_book->store().startTimer(m_book->cafe, {});

    QCOMPARE(description(), u"Build, timer running, 2 open tasks"_s);
}

QTEST_MAIN(ClientsKeyboardTest)
#include "tst_clientskeyboard.moc"
