#include "support/clientbook.h"

#include "brand/brand.h"
#include "views/core/noclient.h"

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::Tab;

/// How a client goes: by two clicks, or from elsewhere.
class ClientDeletionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<ClientBook>(); }
    void cleanup() { m_book.reset(); }

    void firstClick_arms();
    void armedButton_isRedUnderThePointer();
    void secondClick_deletes();
    void armedButton_restsForAnotherClient();
    void armedButton_restsWhenShownAnew_data();
    void armedButton_restsWhenShownAnew();
    void armedButton_staysWhileTheStoreChanges();
    void armedButton_staysWhileTimePasses();
    void deletedElsewhere_closesTheEditor();

private:
    void armDelete()
    {
        m_book->select(m_book->cafe);
        m_book->click(m_book->item(u"delete"_s));
    }
    QString symbol() { return textOf(m_book->item(u"delete"_s), "symbol"); }

    std::unique_ptr<ClientBook> m_book;
};

void ClientDeletionTest::firstClick_arms()
{
    m_book->select(m_book->cafe);
    auto* remove = m_book->item(u"delete"_s);
    QCOMPARE(textOf(remove, "symbol"), u"trash"_s);
    QCOMPARE(textOf(remove, "help"), u"Delete client"_s);

    m_book->click(remove);

    QCOMPARE(textOf(remove, "symbol"), u"trash.fill"_s);
    QCOMPARE(textOf(remove, "help"), u"Click again to delete"_s);
    QCOMPARE(m_book->store().data().clients.size(), 2);
}

void ClientDeletionTest::armedButton_isRedUnderThePointer()
{
    const auto shownColor
        = [this] { return colorOf(ShownPanel::find(m_book->item(u"delete"_s), u"symbol"_s)); };
    m_book->select(m_book->cafe);
    m_book->settle();
    m_book->move(m_book->item(u"status"_s)); // The first move only brings the pointer.
    m_book->move(m_book->item(u"delete"_s));
    QTRY_COMPARE(shownColor(), QColor(Qt::white));

    m_book->click(m_book->item(u"delete"_s));

    QVERIFY(m_book->item(u"delete"_s)->property("hovered").toBool());
    QCOMPARE(shownColor(), Brand::red());
}

void ClientDeletionTest::secondClick_deletes()
{
    m_book->workspace.task(u"Call"_s, m_book->cafe);
    armDelete();

    m_book->click(m_book->item(u"delete"_s));

    QVERIFY(!m_book->store().client(m_book->cafe));
    QCOMPARE(m_book->store().data().tasks.size(), 1);
    QCOMPARE(m_book->selection(), quib::NoClient::id());
    QVERIFY(m_book->item(u"noClient"_s)->isVisible());
    QCOMPARE(m_book->row(0)->property("clientID").toUuid(), m_book->bloom);
    QTRY_VERIFY(!m_book->item(u"clientDetail"_s));
}

void ClientDeletionTest::armedButton_restsForAnotherClient()
{
    armDelete();

    m_book->click(m_book->row(1));
    QCOMPARE(symbol(), u"trash"_s);
    m_book->click(m_book->item(u"delete"_s));

    QCOMPARE(m_book->store().data().clients.size(), 2);
}

void ClientDeletionTest::armedButton_restsWhenShownAnew_data()
{
    QTest::addColumn<bool>("byCollapse");

    QTest::addRow("after a collapse") << true;
    QTest::addRow("after another tab") << false;
}

void ClientDeletionTest::armedButton_restsWhenShownAnew()
{
    QFETCH(bool, byCollapse);
    armDelete();

    if (byCollapse) {
        m_book->model.setExpanded(false);
        m_book->model.setExpanded(true);
    } else {
        m_book->model.setTab(Tab::Tasks);
        m_book->model.setTab(Tab::Clients);
    }

    QCOMPARE(symbol(), u"trash"_s);
    QCOMPARE(m_book->selection(), m_book->cafe);
}

void ClientDeletionTest::armedButton_staysWhileTheStoreChanges()
{
    armDelete();

    m_book->store().startTimer(m_book->cafe, {});
    m_book->change(m_book->cafe, [](quib::Client& edited) { edited.name = u"Corner Café"_s; });
    m_book->store().addClient();

    QCOMPARE(symbol(), u"trash.fill"_s);
}

void ClientDeletionTest::armedButton_staysWhileTimePasses()
{
    armDelete();

    m_book->hands.advance(std::chrono::hours(24));
    m_book->settle();
    QCOMPARE(symbol(), u"trash.fill"_s);
    m_book->click(m_book->item(u"delete"_s));

    QVERIFY(!m_book->store().client(m_book->cafe));
}

void ClientDeletionTest::deletedElsewhere_closesTheEditor()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"nameField"_s));

    m_book->store().deleteClient(m_book->cafe);

    QVERIFY(m_book->item(u"noClient"_s)->isVisible());
    QTRY_VERIFY(!m_book->item(u"clientDetail"_s));
    QCOMPARE(m_book->store().data().clients.size(), 1);
    QCOMPARE(m_book->client(m_book->bloom).name, u"Bloom"_s);
}

QTEST_MAIN(ClientDeletionTest)
#include "tst_clientdeletion.moc"
