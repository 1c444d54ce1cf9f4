#include "support/clientbook.h"

using namespace Qt::StringLiterals;
using quib::ClientStatus;
using quib::Tab;

/// What typing into a client does, and what it leaves alone.
class ClientEditingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<ClientBook>(); }
    void cleanup() { m_book.reset(); }

    void typedName_isInTheRowAtOnce();
    void everyField_reachesTheStoreAtEachKey();
    void showing_changesNothing();
    void editing_keepsWhatIsNotTouched();
    void statusMenu_choosesInOrder();
    void selectionAndTypedText_surviveACollapse();

private:
    std::unique_ptr<ClientBook> m_book;
};

void ClientEditingTest::typedName_isInTheRowAtOnce()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"nameField"_s));
    m_book->press(Qt::Key_End);

    m_book->type(u" N"_s);

    QCOMPARE(textOf(m_book->part(0, u"name"_s)), u"Café N"_s);
    m_book->type(u"o"_s);
    QCOMPARE(textOf(m_book->part(0, u"name"_s)), u"Café No"_s);
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
    QCOMPARE(textOf(ShownPanel::find(m_book->item(u"status"_s), u"title"_s)), u"Care plan"_s);

    m_book->click(m_book->item(u"status"_s));
    m_book->press(Qt::Key_Up); // From the present one.
    m_book->press(Qt::Key_Return);

    QCOMPARE(m_book->client(m_book->cafe).status, ClientStatus::Live);
    QCOMPARE(textOf(m_book->row(0), "status"), u"live"_s);
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
