#include "support/clientbook.h"

#include "brand/brand.h"

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::ClientStatus;

/// What an open client shows, and that it stays in its place.
class ClientDetailTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_book = std::make_unique<ClientBook>();
        m_book->select(m_book->cafe);
        m_book->settle();
    }
    void cleanup() { m_book.reset(); }

    void status_isWrittenInItsColour_data();
    void status_isWrittenInItsColour();
    void folder_isToldOrMissed_data();
    void folder_isToldOrMissed();
    void trackTime_becomesStop();
    void everything_staysInsideTheCard();

private:
    void edit(const std::function<void(quib::Client&)>& change);

    std::unique_ptr<ClientBook> m_book;
};

void ClientDetailTest::edit(const std::function<void(quib::Client&)>& change)
{
    m_book->change(m_book->cafe, change);
    m_book->settle();
}

void ClientDetailTest::status_isWrittenInItsColour_data()
{
    QTest::addColumn<ClientStatus>("status");
    QTest::addColumn<QString>("title");

    for (const auto status : quib::AllClientStatuses) {
        QTest::addRow("%s", qPrintable(rawText(status))) << status << quib::title(status);
    }
}

void ClientDetailTest::status_isWrittenInItsColour()
{
    QFETCH(ClientStatus, status);
    edit([&](quib::Client& client) { client.status = status; });

    const auto* title = ShownPanel::find(m_book->item(u"status"_s), u"title"_s);
    QTEST(textOf(title), "title");
    QCOMPARE(colorOf(title),
             status == ClientStatus::Build ? Brand::glow() : Brand::color(rawText(status)));
    QCOMPARE(colorOf(ShownPanel::find(m_book->item(u"status"_s), u"capsule"_s)),
             Brand::color(rawText(status)));
}

void ClientDetailTest::folder_isToldOrMissed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");

    QTest::addRow("none") << QString() << u"No project folder"_s << Brand::muted2();
    QTest::addRow("one") << u"/work/café"_s << u"/work/café"_s << QColor(Qt::white);
}

void ClientDetailTest::folder_isToldOrMissed()
{
    QFETCH(QString, path);
    edit([&](quib::Client& client) { client.folderPath = path; });

    QTEST(m_book->text(u"folderPath"_s), "text");
    QTEST(colorOf(m_book->item(u"folderPath"_s)), "color");
}

void ClientDetailTest::trackTime_becomesStop()
{
    const auto* track = ShownPanel::find(m_book->item(u"actions"_s), u"track"_s);
    QCOMPARE(textOf(track, "title"), u"Track time"_s);
    QCOMPARE(colorOf(track, "fill"), Brand::purple());

    m_book->store().startTimer(m_book->cafe, {});

    QCOMPARE(textOf(track, "title"), u"Stop"_s);
    auto red = Brand::red();
    red.setAlphaF(0.7F);
    QCOMPARE(colorOf(track, "fill").rgba(), red.rgba());
}

void ClientDetailTest::everything_staysInsideTheCard()
{
    edit([](quib::Client& client) {
        client.name = client.siteURL = client.folderPath = QString(200, u'w');
        client.hourlyRate = 100000.0 / 3;
        client.notes = u"line\n"_s.repeated(100);
    });
    const auto area = m_book->rect(u"tabArea"_s);

    for (const auto& name : {u"nameField"_s, u"status"_s, u"siteURL"_s, u"rate"_s, u"folderPath"_s,
                             u"chooseFolder"_s, u"actions"_s, u"delete"_s, u"notes"_s}) {
        QVERIFY2(area.contains(m_book->rect(name)), qPrintable(name));
    }
    QVERIFY(m_book->rect(u"actions"_s).right() < m_book->rect(u"delete"_s).left());
}

QTEST_MAIN(ClientDetailTest)
#include "tst_clientdetail.moc"
