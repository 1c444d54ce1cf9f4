#include "support/clientbook.h"

using namespace Qt::StringLiterals;

/// What was just typed: its cursor, its selection and the way back.
class ClientUndoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<ClientBook>(); }
    void cleanup() { m_book.reset(); }

    void cursor_staysWhileTheStoreChanges_data();
    void cursor_staysWhileTheStoreChanges();
    void sameFieldChangedElsewhere_isShownWithTheCursorKept();
    void undoAndRedo_reachTheStore_data();
    void undoAndRedo_reachTheStore();
    void undo_belongsToOneClient();

private:
    std::unique_ptr<ClientBook> m_book;
};

void ClientUndoTest::cursor_staysWhileTheStoreChanges_data()
{
    QTest::addColumn<QString>("field");

    QTest::addRow("name") << u"nameField"_s;
    QTest::addRow("address") << u"siteURL"_s;
    QTest::addRow("rate") << u"rate"_s;
    QTest::addRow("notes") << u"notes"_s;
}

void ClientUndoTest::cursor_staysWhileTheStoreChanges()
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
    QCOMPARE(textOf(m_book->input(field), "selectedText"), u"3"_s);
    QVERIFY(m_book->item(field)->property("isEditing").toBool());
    m_book->type(u"9"_s);
    QCOMPARE(m_book->text(field), u"12945"_s);
    m_book->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_book->text(field), u"12345"_s);
}

void ClientUndoTest::sameFieldChangedElsewhere_isShownWithTheCursorKept()
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

void ClientUndoTest::undoAndRedo_reachTheStore_data()
{
    QTest::addColumn<QString>("field");

    QTest::addRow("name") << u"nameField"_s;
    QTest::addRow("address") << u"siteURL"_s;
    QTest::addRow("notes") << u"notes"_s;
}

void ClientUndoTest::undoAndRedo_reachTheStore()
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

void ClientUndoTest::undo_belongsToOneClient()
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

QTEST_MAIN(ClientUndoTest)
#include "tst_clientundo.moc"
