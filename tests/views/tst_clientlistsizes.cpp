#include "support/clientbook.h"

#include "brand/brand.h"
#include "views/noclient.h"

#include <QFont>

using namespace Qt::StringLiterals;
using quib::Brand;

/// Every number of the list of clients, read from the live items.
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

    void columns_haveTheirPlaces();
    void header_hasItsSizes();
    void row_hasItsSizes();
    void row_isFilledByItsState();
    void timedRow_hasItsMark();
    void badge_hasItsSizes();
    void noClient_isCentred();

private:
    static double sizeOf(const QQuickItem* item) { return numberOf(item, "size"); }

    std::unique_ptr<ClientBook> m_book;
};

void ClientListSizesTest::columns_haveTheirPlaces()
{
    const auto list = m_book->rect(u"clients"_s);
    const auto detail = m_book->rect(u"detailColumn"_s);
    const auto area = m_book->rect(u"tabArea"_s);

    QCOMPARE(list.width(), 220.0);
    QCOMPARE(list.left(), area.left());
    QCOMPARE(list.bottom(), area.bottom());
    QVERIFY(detail.left() > list.right());
    QCOMPARE(detail.right(), area.right());
    QCOMPARE(m_book->rect(u"clientDetail"_s), detail);
    QCOMPARE(numberOf(ShownPanel::find(m_book->item(u"clients"_s), u"surface"_s), "radius"), 14.0);
}

void ClientListSizesTest::header_hasItsSizes()
{
    auto* add = m_book->item(u"addClient"_s);
    const auto* heading = m_book->item(u"heading"_s);

    QCOMPARE(textOf(heading), u"2 clients"_s);
    QCOMPARE(sizeOf(heading), 9.5);
    QVERIFY(heading->property("capitals").toBool());
    QCOMPARE(m_book->rect(u"heading"_s).left(), m_book->rect(u"clientList"_s).left() + 6);
    QCOMPARE(textOf(add, "symbol"), u"plus"_s);
    QCOMPARE(sizeOf(add), 12.0);
    QCOMPARE(add->size(), QSizeF(26, 26));
    QCOMPARE(textOf(add, "help"), u"Add client"_s);
    QCOMPARE(m_book->rect(u"addClient"_s).right(), m_book->rect(u"clientList"_s).right());
    QVERIFY(m_book->rect(u"clientList"_s).top() >= m_book->rect(u"addClient"_s).bottom());
}

void ClientListSizesTest::row_hasItsSizes()
{
    const auto frame = inScene(m_book->row(0));
    auto* dot = m_book->part(0, u"dot"_s);
    auto* name = m_book->part(0, u"name"_s);
    const auto dotFrame = inScene(dot);

    QCOMPARE(dotFrame.size(), QSizeF(8, 8));
    QCOMPARE(numberOf(dot, "radius"), 4.0);
    QCOMPARE(dotFrame.left(), frame.left() + 8);
    QCOMPARE(colorOf(dot), Brand::color(u"build"_s));
    QCOMPARE(sizeOf(name), 12.0);
    QCOMPARE(name->property("weight").toInt(), int(QFont::Medium));
    QCOMPARE(frame.height(), name->implicitHeight() + 12);
    QVERIFY(qAbs(dotFrame.center().y() - frame.center().y()) <= 0.5); // On whole points.
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

void ClientListSizesTest::timedRow_hasItsMark()
{
    m_book->store().startTimer(m_book->cafe, {});
    m_book->settle();

    const auto* mark = m_book->part(0, u"timed"_s);

    QCOMPARE(textOf(mark, "name"), u"stopwatch.fill"_s);
    QCOMPARE(sizeOf(mark), 10.0);
    QCOMPARE(colorOf(mark), Brand::live());
    QCOMPARE(inScene(mark).right(), inScene(m_book->row(0)).right() - 8);
}

void ClientListSizesTest::badge_hasItsSizes()
{
    m_book->workspace.task(u"x"_s, m_book->cafe);
    m_book->settle();

    const auto badge = inScene(m_book->part(0, u"badge"_s));
    const auto* count = m_book->part(0, u"openTasks"_s);
    const auto* capsule = m_book->part(0, u"capsule"_s);
    const auto digits = inScene(count);

    QCOMPARE(textOf(count), u"1"_s);
    QCOMPARE(sizeOf(count), 10.0);
    QCOMPARE(count->property("weight").toInt(), int(QFont::DemiBold));
    QCOMPARE(colorOf(count), Brand::muted());
    QCOMPARE(digits.left(), badge.left() + 5);
    QCOMPARE(digits.right(), badge.right() - 5);
    QCOMPARE(badge.right(), inScene(m_book->row(0)).right() - 8);
    QCOMPARE(inScene(capsule), badge);
    QCOMPARE(colorOf(capsule), Brand::white(0.08));
    QCOMPARE(numberOf(capsule, "radius"), badge.height() / 2);
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
