#include "support/clientbook.h"
#include "support/panel/plaintexts.h"

using namespace Qt::StringLiterals;

/// What an open client offers: its site, its folder and its time.
class ClientActionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<ClientBook>(); }
    void cleanup() { m_book.reset(); }

    void siteButton_comesAndGoesWithTheAddress();
    void folderButtons_comeWithTheFolder();
    void longFolderPath_showsItsEnds();
    void folderChosenLate_goesToItsClient();
    void folderChosenWithoutAView_isStillWritten();
    void trackTime_startsAndStops();
    void trackTime_doubleClicked_keepsTheTimer();

private:
    std::unique_ptr<ClientBook> m_book;
};

void ClientActionsTest::siteButton_comesAndGoesWithTheAddress()
{
    m_book->select(m_book->cafe);
    auto* site = ShownPanel::find(m_book->item(u"actions"_s), u"site"_s);
    QVERIFY(!site->isVisible());

    m_book->click(m_book->item(u"siteURL"_s));
    m_book->type(u"cafe.example"_s);
    QVERIFY(site->isVisible());
    m_book->settle();
    m_book->click(site);
    QCOMPARE(m_book->opener.asked, QStringList{u"browse https://cafe.example"_s});
    m_book->click(m_book->item(u"siteURL"_s));
    m_book->press(Qt::Key_A, Qt::ControlModifier);
    m_book->press(Qt::Key_Delete);

    QVERIFY(!site->isVisible());
}

void ClientActionsTest::folderButtons_comeWithTheFolder()
{
    m_book->select(m_book->cafe);
    auto* folder = ShownPanel::find(m_book->item(u"actions"_s), u"folder"_s);
    auto* code = ShownPanel::find(m_book->item(u"actions"_s), u"code"_s);
    QVERIFY(!folder->isVisible() && !code->isVisible());
    QCOMPARE(m_book->text(u"folderPath"_s), u"No project folder"_s);

    m_book->click(m_book->item(u"chooseFolder"_s));
    QCOMPARE(m_book->commands.asked, QStringList{u"pick folder in "_s});
    m_book->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));
    QCOMPARE(m_book->client(m_book->cafe).folderPath, u"/work/café"_s);
    QCOMPARE(m_book->text(u"folderPath"_s), u"/work/café"_s);
    QVERIFY(folder->isVisible() && code->isVisible());
    m_book->settle();
    m_book->click(folder);
    m_book->click(code);

    QCOMPARE(m_book->opener.asked.front(), u"reveal /work/café"_s);
    QCOMPARE(m_book->opener.asked.size(), 2);
}

void ClientActionsTest::longFolderPath_showsItsEnds()
{
    const auto folder = u"/home/ann/"_s + u"deep/"_s.repeated(200) + u"café"_s;
    m_book->change(m_book->cafe, [&](quib::Client& edited) { edited.folderPath = folder; });

    m_book->select(m_book->cafe);
    m_book->settle();

    const auto line = textOf(m_book->item(u"folderPath"_s), "line");
    QVERIFY(line.startsWith(u"/home/ann/deep/"_s));
    QVERIFY(line.endsWith(u"deep/café"_s));
    const auto* drawn = textItems(*m_book->item(u"folderPath"_s)).front();
    QVERIFY(drawn->property("truncated").toBool());
    QCOMPARE(drawn->property("elide").toInt(), int(Qt::ElideMiddle));
}

void ClientActionsTest::folderChosenLate_goesToItsClient()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"chooseFolder"_s));
    m_book->click(m_book->row(1));

    m_book->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(m_book->client(m_book->cafe).folderPath, u"/work/café"_s);
    QCOMPARE(m_book->client(m_book->bloom).folderPath, QString());
    QCOMPARE(m_book->text(u"folderPath"_s), u"No project folder"_s);
}

void ClientActionsTest::folderChosenWithoutAView_isStillWritten()
{
    m_book->select(m_book->cafe);
    m_book->click(m_book->item(u"chooseFolder"_s));

    m_book->window.reset();
    m_book->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(m_book->client(m_book->cafe).folderPath, u"/work/café"_s);
}

void ClientActionsTest::trackTime_startsAndStops()
{
    m_book->store().startTimer(m_book->bloom, {});
    m_book->select(m_book->cafe);
    auto* track = ShownPanel::find(m_book->item(u"actions"_s), u"track"_s);
    QCOMPARE(textOf(track, "title"), u"Track time"_s);

    m_book->click(track);
    QCOMPARE(m_book->store().runningEntry()->clientID, m_book->cafe);
    QCOMPARE(m_book->store().runningEntry()->note, QString());
    QCOMPARE(textOf(track, "title"), u"Stop"_s);
    QVERIFY(m_book->part(0, u"timed"_s)->isVisible());
    m_book->settle();
    m_book->click(track);

    QVERIFY(!m_book->store().hasRunningEntry());
    QCOMPARE(textOf(track, "title"), u"Track time"_s);
}

void ClientActionsTest::trackTime_doubleClicked_keepsTheTimer()
{
    m_book->select(m_book->cafe);
    m_book->settle();

    m_book->doubleClick(m_book->item(u"track"_s));

    QVERIFY(m_book->store().hasRunningEntry());
    QCOMPARE(m_book->store().runningEntry()->clientID, m_book->cafe);
}

QTEST_MAIN(ClientActionsTest)
#include "tst_clientactions.moc"
