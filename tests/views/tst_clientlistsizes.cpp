#include "support/clientbook.h"

#include "brand/brand.h"
#include "views/noclient.h"

using namespace Qt::StringLiterals;
using quib::Brand;

/// What of the looks of the list of clients no kept picture shows.
class ClientListSizesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_book = std::make_unique<ClientBook>();
        m_book->select(m_book->cafe);
        m_book->settle();
    }
    void cleanup() { m_book.reset(); }

    void plus_tellsWhatItDoes();
    void row_isFilledByItsState();
    void noClient_isCentred();

private:
    std::unique_ptr<ClientBook> m_book;
};

void ClientListSizesTest::plus_tellsWhatItDoes()
{
    QCOMPARE(textOf(m_book->item(u"addClient"_s), "help"), u"Add client"_s);
}

void ClientListSizesTest::row_isFilledByItsState()
{
    const auto* selected = m_book->part(0, u"surface"_s);
    QCOMPARE(numberOf(selected, "radius"), 8.0);
    QCOMPARE(inScene(selected), inScene(m_book->row(0)));
    QCOMPARE(colorOf(selected), Brand::purple());
    QCOMPARE(selected->opacity(), 0.35);

    const auto* other = m_book->part(1, u"surface"_s);
    QCOMPARE(other->opacity(), 0.0);
    m_book->move(m_book->row(1));
    QTRY_COMPARE(other->opacity(), 0.06);
    QCOMPARE(colorOf(other), QColor(Qt::white));
}

void ClientListSizesTest::noClient_isCentred()
{
    m_book->select(quib::NoClient::id());

    const auto text = m_book->rect(u"noClient"_s).center();
    const auto column = m_book->rect(u"detailColumn"_s).center();

    QCOMPARE(colorOf(m_book->item(u"noClient"_s)), Brand::muted());
    QVERIFY(qAbs(text.x() - column.x()) <= 0.5 && qAbs(text.y() - column.y()) <= 0.5);
}

QTEST_MAIN(ClientListSizesTest)
#include "tst_clientlistsizes.moc"
