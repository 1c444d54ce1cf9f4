#include "support/clientbook.h"

using namespace Qt::StringLiterals;
using quib::ClientStatus;
using quib::Tab;

/// What typing into a client does, and what it leaves alone.
class ClientEditingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void typedName_isInTheRowAtOnce();
    void everyField_reachesTheStoreAtEachKey();
    void rate_waitsForANumber();
    void rate_isShownAnewWhenItsFieldIsLeft();
    void halfTypedRate_waitsForItsUser_data();
    void halfTypedRate_waitsForItsUser();
    void cursor_staysWhileTheStoreChanges_data();
    void cursor_staysWhileTheStoreChanges();
    void sameFieldChangedElsewhere_isShownWithTheCursorKept();
    void undoAndRedo_reachTheStore_data();
    void undoAndRedo_reachTheStore();
    void undo_belongsToOneClient();
    void showing_changesNothing();
    void editing_keepsWhatIsNotTouched();
    void statusMenu_choosesInOrder();
    void folderChosenLate_goesToItsClient();
    void folderChosenWithoutAView_isStillWritten();
    void deletedElsewhere_closesTheEditor();
    void selectionAndTypedText_surviveACollapse();

private:
    std::unique_ptr<ClientBook> m_book;
};

void ClientEditingTest::init()
{
    m_book = std::make_unique<ClientBook>();
}

void ClientEditingTest::typedName_isInTheRowAtOnce()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"nameField"_s));
    m_book->press(Qt::Key_End);

    m_book->type(u" N"_s);

    QCOMPARE(ShownPanel::find(m_book->row(0), u"name"_s)->property("text").toString(), u"Café N"_s);
    m_book->type(u"o"_s);
    QCOMPARE(ShownPanel::find(m_book->row(0), u"name"_s)->property("text").toString(),
             u"Café No"_s);
}

void ClientEditingTest::everyField_reachesTheStoreAtEachKey()
{
    m_book->select(m_book->cafe);

    m_book->click(m_book->item(u"siteURL"_s));
    m_book->type(u"a"_s);
    QCOMPARE(m_book->client(m_book->cafe).siteURL, u"a"_s);
    m_book->type(u".b"_s);
    QCOMPARE(m_book->client(m_book->cafe).siteURL, u"a.b"_s);
    m_book->click(m_book->item(u"rate"_s));
    m_book->press(Qt::Key_A, Qt::ControlModifier);
    m_book->type(u"4"_s);
    QCOMPARE(m_book->client(m_book->cafe).hourlyRate, 4.0);
    m_book->type(u"2.5"_s);
    QCOMPARE(m_book->client(m_book->cafe).hourlyRate, 42.5);
    m_book->click(m_book->item(u"notes"_s));
    m_book->type(u"x"_s);
    QCOMPARE(m_book->client(m_book->cafe).notes, u"x"_s);
    m_book->press(Qt::Key_Return);
    m_book->type(u"y"_s);

    QCOMPARE(m_book->client(m_book->cafe).notes, u"x\ny"_s);
    QCOMPARE(m_book->client(m_book->bloom).notes, QString());
}

void ClientEditingTest::rate_waitsForANumber()
{
    m_book->change(m_book->cafe, [](quib::Client& edited) { edited.hourlyRate = 35; });
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"rate"_s));
    m_book->press(Qt::Key_A, Qt::ControlModifier);

    m_book->press(Qt::Key_Delete);
    QCOMPARE(m_book->client(m_book->cafe).hourlyRate, 35.0);
    QCOMPARE(m_book->text(u"rate"_s), QString());
    m_book->type(u"-"_s);
    QCOMPARE(m_book->client(m_book->cafe).hourlyRate, 35.0);
    QCOMPARE(m_book->text(u"rate"_s), u"-"_s);
    m_book->press(Qt::Key_Backspace);
    m_book->type(u"1e400"_s);

    QCOMPARE(m_book->client(m_book->cafe).hourlyRate, 1e40);
    QCOMPARE(m_book->text(u"rate"_s), u"1e400"_s);
}

void ClientEditingTest::rate_isShownAnewWhenItsFieldIsLeft()
{
    m_book->change(m_book->cafe, [](quib::Client& edited) { edited.hourlyRate = 35; });
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"rate"_s));
    m_book->press(Qt::Key_A, Qt::ControlModifier);
    m_book->type(u"1,234.50"_s);
    QCOMPARE(m_book->text(u"rate"_s), u"1,234.50"_s);

    m_book->click(m_book->item(u"nameField"_s));
    QCOMPARE(m_book->text(u"rate"_s), u"1234.5"_s);
    m_book->click(m_book->item(u"rate"_s));
    m_book->press(Qt::Key_A, Qt::ControlModifier);
    m_book->type(u"much"_s);
    QCOMPARE(m_book->text(u"rate"_s), u"much"_s);
    m_book->press(Qt::Key_Return);

    QCOMPARE(m_book->text(u"rate"_s), u"1234.5"_s);
    QCOMPARE(m_book->client(m_book->cafe).hourlyRate, 1234.5);
}

void ClientEditingTest::halfTypedRate_waitsForItsUser_data()
{
    QTest::addColumn<bool>("byCollapse");

    QTest::addRow("in another window") << false;
    QTest::addRow("while the panel is closed") << true;
}

void ClientEditingTest::halfTypedRate_waitsForItsUser()
{
    QFETCH(bool, byCollapse);
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"rate"_s));
    m_book->press(Qt::Key_A, Qt::ControlModifier);
    m_book->type(u"4."_s);
    QWindow other;

    if (byCollapse) {
        m_book->model.setExpanded(false);
        QTRY_VERIFY(!m_book->item(u"clientsView"_s)->isVisible());
        m_book->model.setExpanded(true);
    } else {
        other.show();
        other.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(!m_book->item(u"rate"_s)->property("isEditing").toBool());
        m_book->window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_book->window.get()));
    }

    QCOMPARE(m_book->text(u"rate"_s), u"4."_s);
    m_book->click(m_book->item(u"rate"_s));
    m_book->click(m_book->item(u"nameField"_s));
    QCOMPARE(m_book->text(u"rate"_s), u"4"_s);
}

void ClientEditingTest::cursor_staysWhileTheStoreChanges_data()
{
    QTest::addColumn<QString>("field");

    QTest::addRow("name") << u"nameField"_s;
    QTest::addRow("address") << u"siteURL"_s;
    QTest::addRow("rate") << u"rate"_s;
    QTest::addRow("notes") << u"notes"_s;
}

void ClientEditingTest::cursor_staysWhileTheStoreChanges()
{
    QFETCH(QString, field);
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(field));
    m_book->press(Qt::Key_A, Qt::ControlModifier);
    m_book->type(u"12345"_s);
    m_book->press(Qt::Key_Left);
    m_book->press(Qt::Key_Left);
    m_book->press(Qt::Key_Left, Qt::ShiftModifier);

    m_book->store().startTimer(m_book->cafe, {});
    m_book->workspace.task(u"x"_s, m_book->cafe);
    m_book->change(m_book->bloom, [](quib::Client& edited) { edited.name = u"Bloom Florist"_s; });
    m_book->change(m_book->cafe, [](quib::Client& edited) { edited.folderPath = u"/work"_s; });

    QCOMPARE(m_book->input(field)->property("cursorPosition").toInt(), 2);
    QCOMPARE(m_book->input(field)->property("selectedText").toString(), u"3"_s);
    QVERIFY(m_book->item(field)->property("isEditing").toBool());
    m_book->type(u"9"_s);
    QCOMPARE(m_book->text(field), u"12945"_s);
    m_book->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_book->text(field), u"12345"_s);
}

void ClientEditingTest::sameFieldChangedElsewhere_isShownWithTheCursorKept()
{
    m_book->select(m_book->cafe);
    for (const auto& field : {u"nameField"_s, u"notes"_s}) {
        m_book->change(m_book->cafe,
                       [](quib::Client& edited) { edited.name = edited.notes = u"Corner"_s; });
        m_book->click(m_book->item(field));
        m_book->press(Qt::Key_Home);
        m_book->press(Qt::Key_Right);

        m_book->change(m_book->cafe,
                       [](quib::Client& edited) { edited.name = edited.notes = u"Cafeteria"_s; });

        QCOMPARE(m_book->text(field), u"Cafeteria"_s);
        QCOMPARE(m_book->input(field)->property("cursorPosition").toInt(), 1);
    }
}

void ClientEditingTest::undoAndRedo_reachTheStore_data()
{
    QTest::addColumn<QString>("field");

    QTest::addRow("name") << u"nameField"_s;
    QTest::addRow("address") << u"siteURL"_s;
    QTest::addRow("notes") << u"notes"_s;
}

void ClientEditingTest::undoAndRedo_reachTheStore()
{
    QFETCH(QString, field);
    m_book->change(m_book->cafe, [](quib::Client& edited) {
        edited.name = edited.siteURL = edited.notes = u"Corner"_s;
    });
    m_book->select(m_book->cafe);
    const auto stored = [&] {
        const auto client = m_book->client(m_book->cafe);
        return field == u"notes"_s  ? client.notes
            : field == u"siteURL"_s ? client.siteURL
                                    : client.name;
    };
    m_book->click(m_book->item(field));
    m_book->press(Qt::Key_End);
    m_book->type(u"x"_s);
    QCOMPARE(stored(), u"Cornerx"_s);

    m_book->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(stored(), u"Corner"_s);
    m_book->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);

    QCOMPARE(stored(), u"Cornerx"_s);
    QCOMPARE(m_book->text(field), u"Cornerx"_s);
}

void ClientEditingTest::undo_belongsToOneClient()
{
    for (const auto& field : {u"nameField"_s, u"siteURL"_s, u"notes"_s}) {
        m_book->select(m_book->cafe);
        const auto before = m_book->text(field);
        m_book->click(m_book->item(field));
        m_book->type(u"x"_s);
        QVERIFY(m_book->text(field) != before);
        m_book->press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_book->text(field), before);
        m_book->type(u"y"_s);

        m_book->click(m_book->row(1));
        const auto ofAnother = m_book->text(field);
        m_book->click(m_book->item(field));
        m_book->press(Qt::Key_Z, Qt::ControlModifier);

        QCOMPARE(m_book->text(field), ofAnother);
    }
    QCOMPARE(m_book->client(m_book->bloom).name, u"Bloom"_s);
    QCOMPARE(m_book->client(m_book->bloom).notes, QString());
}

void ClientEditingTest::showing_changesNothing()
{
    const QString odd = u"a\rb\r\nc"_s + QChar::Null + u"\u2028d\u2029e\u00a0f\tg\n"_s;
    m_book->change(m_book->cafe, [&](quib::Client& edited) {
        edited.name = edited.siteURL = edited.folderPath = edited.notes = odd;
        edited.hourlyRate = 100.0 / 3;
    });
    const auto before = m_book->client(m_book->cafe);
    const QSignalSpy changes(&m_book->store(), &quib::Store::clientsChanged);

    m_book->select(m_book->cafe);
    m_book->settle();
    for (const auto& field : {u"nameField"_s, u"siteURL"_s, u"rate"_s, u"notes"_s}) {
        m_book->click(m_book->item(field));
        m_book->press(Qt::Key_Right);
    }
    m_book->model.setTab(Tab::Tasks);
    m_book->model.setTab(Tab::Clients);
    m_book->select(m_book->bloom);

    QCOMPARE(changes.count(), 0);
    QCOMPARE(m_book->client(m_book->cafe), before);
}

void ClientEditingTest::editing_keepsWhatIsNotTouched()
{
    const QString odd = u"a\rb"_s + QChar::Null + u"\u2028c\u00a0d"_s;
    m_book->change(m_book->cafe, [&](quib::Client& edited) {
        edited.name = edited.siteURL = edited.notes = odd;
    });
    m_book->select(m_book->cafe);

    m_book->click(m_book->item(u"nameField"_s));
    m_book->press(Qt::Key_End);
    m_book->type(u"x"_s);
    QCOMPARE(m_book->client(m_book->cafe).name, odd + u'x');
    QCOMPARE(m_book->client(m_book->cafe).notes, odd);
    m_book->click(m_book->item(u"notes"_s));
    m_book->press(Qt::Key_End, Qt::ControlModifier);
    m_book->type(u"x"_s);

    // A line end of another system is one of ours once its text was edited.
    QCOMPARE(m_book->client(m_book->cafe).notes, QString(odd).replace(u'\r', u'\n') + u'x');
    QCOMPARE(m_book->client(m_book->cafe).siteURL, odd);
}

void ClientEditingTest::statusMenu_choosesInOrder()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"status"_s));
    m_book->press(Qt::Key_End);
    m_book->press(Qt::Key_Return);
    QCOMPARE(m_book->client(m_book->cafe).status, ClientStatus::Care);
    QCOMPARE(ShownPanel::find(m_book->item(u"status"_s), u"title"_s)->property("text").toString(),
             u"Care plan"_s);

    m_book->click(m_book->item(u"status"_s));
    m_book->press(Qt::Key_Up); // From the present one.
    m_book->press(Qt::Key_Return);

    QCOMPARE(m_book->client(m_book->cafe).status, ClientStatus::Live);
    QCOMPARE(m_book->row(0)->property("status").toString(), u"live"_s);
}

void ClientEditingTest::folderChosenLate_goesToItsClient()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"chooseFolder"_s));
    m_book->click(m_book->row(1));

    m_book->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(m_book->client(m_book->cafe).folderPath, u"/work/café"_s);
    QCOMPARE(m_book->client(m_book->bloom).folderPath, QString());
    QCOMPARE(m_book->text(u"folderPath"_s), u"No project folder"_s);
}

void ClientEditingTest::folderChosenWithoutAView_isStillWritten()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"chooseFolder"_s));

    m_book->window.reset();
    m_book->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(m_book->client(m_book->cafe).folderPath, u"/work/café"_s);
}

void ClientEditingTest::deletedElsewhere_closesTheEditor()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"nameField"_s));

    m_book->store().deleteClient(m_book->cafe);

    QVERIFY(m_book->item(u"noClient"_s)->isVisible());
    QTRY_VERIFY(!m_book->item(u"clientDetail"_s));
    QCOMPARE(m_book->store().data().clients.size(), 1);
    QCOMPARE(m_book->client(m_book->bloom).name, u"Bloom"_s);
}

void ClientEditingTest::selectionAndTypedText_surviveACollapse()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"nameField"_s));
    m_book->press(Qt::Key_End);
    m_book->type(u"x"_s);
    auto* editor = m_book->item(u"clientDetail"_s);

    m_book->model.setExpanded(false);
    m_book->settle();
    m_book->model.setExpanded(true);

    QCOMPARE(m_book->item(u"clientDetail"_s), editor);
    QCOMPARE(m_book->text(u"nameField"_s), u"Caféx"_s);
    QCOMPARE(m_book->input(u"nameField"_s)->property("cursorPosition").toInt(), 5);
}

QTEST_MAIN(ClientEditingTest)
#include "tst_clientediting.moc"
