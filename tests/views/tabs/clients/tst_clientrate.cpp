#include "support/clientbook.h"

using namespace Qt::StringLiterals;

/// The hourly rate, which may be half-typed.
class ClientRateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<ClientBook>(); }
    void cleanup() { m_book.reset(); }

    void rate_waitsForANumber();
    void rate_isShownAnewWhenItsFieldIsLeft();
    void halfTypedRate_waitsForItsUser_data();
    void halfTypedRate_waitsForItsUser();

private:
    void typeRate(const QString& text)
    {
        m_book->click(m_book->item(u"rate"_s));
        m_book->press(Qt::Key_A, Qt::ControlModifier);
        m_book->type(text);
    }

    std::unique_ptr<ClientBook> m_book;
};

void ClientRateTest::rate_waitsForANumber()
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

void ClientRateTest::rate_isShownAnewWhenItsFieldIsLeft()
{
    m_book->change(m_book->cafe, [](quib::Client& edited) { edited.hourlyRate = 35; });
    m_book->select(m_book->cafe);
    typeRate(u"1,234.50"_s);
    QCOMPARE(m_book->text(u"rate"_s), u"1,234.50"_s);

    m_book->click(m_book->item(u"nameField"_s));
    QCOMPARE(m_book->text(u"rate"_s), u"1234.5"_s);
    typeRate(u"much"_s);
    QCOMPARE(m_book->text(u"rate"_s), u"much"_s);
    m_book->press(Qt::Key_Return);

    QCOMPARE(m_book->text(u"rate"_s), u"1234.5"_s);
    QCOMPARE(m_book->client(m_book->cafe).hourlyRate, 1234.5);
}

void ClientRateTest::halfTypedRate_waitsForItsUser_data()
{
    QTest::addColumn<bool>("byCollapse");

    QTest::addRow("in another window") << false;
    QTest::addRow("while the panel is closed") << true;
}

void ClientRateTest::halfTypedRate_waitsForItsUser()
{
    QFETCH(bool, byCollapse);
    m_book->select(m_book->cafe);
    typeRate(u"4."_s);
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

QTEST_MAIN(ClientRateTest)
#include "tst_clientrate.moc"
