#include "support/editedclient.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::ClientEditor;
using quib::ClientStatus;

/// What is shown and written of one client.
class ClientEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("LC_ALL", "de_DE.UTF-8"); }
    void init() { m_edited = std::make_unique<EditedClient>(); }
    void cleanup() { m_edited.reset(); }

    void client_isShown();
    void noClient_showsNothing();
    void everyField_isWrittenAtOnce();
    void everyStatus_isChosenByItsRow();
    void rowOutside_choosesNothing();
    void rate_isReadAndShownAsTheCountryDoes();
    void rate_isOfTheStoresCountry();
    void textThatIsNoNumber_leavesTheRate_data();
    void textThatIsNoNumber_leavesTheRate();
    void goneClient_isNotWritten();
    void repeatedIds_meanTheFirst();
    void sameText_writesNothing();
    void changeOfAnotherClient_saysNothing();
    void typing_leavesTheStatusMenuAlone();
    void timer_isTheClientsOwn();
    void startTimer_startsWithoutANote();
    void storeGone_leavesNothing();

private:
    std::unique_ptr<EditedClient> m_edited;
};

void ClientEditorTest::client_isShown()
{
    m_edited->change(m_edited->cafe, [](quib::Client& client) {
        client.siteURL = u"cafe.example"_s;
        client.folderPath = u"/work/café"_s;
        client.hourlyRate = 35.5;
        client.notes = u"Ann\nBo"_s;
    });

    QVERIFY(m_edited->editor->exists());
    QCOMPARE(m_edited->editor->name(), u"Café"_s);
    QCOMPARE(m_edited->editor->status(), u"build"_s);
    QCOMPARE(m_edited->editor->statusTitle(), u"Build"_s);
    QCOMPARE(m_edited->editor->statusRow(), 2);
    QCOMPARE(m_edited->editor->siteURL(), u"cafe.example"_s);
    QCOMPARE(m_edited->editor->folderPath(), u"/work/café"_s);
    QCOMPARE(m_edited->editor->rateText(), u"35,5"_s);
    QCOMPARE(m_edited->editor->notes(), u"Ann\nBo"_s);
}

void ClientEditorTest::noClient_showsNothing()
{
    for (const auto& id : {quib::NoClient::id(), QUuid(), QUuid::createUuid()}) {
        m_edited->editor->setClientID(id);

        QVERIFY(!m_edited->editor->exists());
        QVERIFY(
            (m_edited->editor->name() + m_edited->editor->status() + m_edited->editor->rateText())
                .isEmpty());
        QCOMPARE(m_edited->editor->statusRow(), -1);
    }
}

void ClientEditorTest::everyField_isWrittenAtOnce()
{
    m_edited->editor->setName(u"Corner Café"_s);
    m_edited->editor->chooseStatus(5);
    m_edited->editor->setSiteURL(u"cafe.example"_s);
    m_edited->editor->setRateText(u"1.234,5"_s);
    m_edited->editor->setNotes(u"Ann"_s);

    QCOMPARE(m_edited->first(),
             (quib::Client{.id = m_edited->cafe,
                           .name = u"Corner Café"_s,
                           .status = ClientStatus::Care,
                           .siteURL = u"cafe.example"_s,
                           .hourlyRate = 1234.5,
                           .notes = u"Ann"_s}));
}

void ClientEditorTest::everyStatus_isChosenByItsRow()
{
    QStringList titles;
    for (const auto& choice : m_edited->editor->statusChoices()) {
        titles << choice.toMap().value(u"title"_s).toString();
    }
    QCOMPARE(
        titles,
        (QStringList{u"Lead"_s, u"Design"_s, u"Build"_s, u"Review"_s, u"Live"_s, u"Care plan"_s}));

    for (int row = 0; row < 6; ++row) {
        m_edited->editor->chooseStatus(row);

        QCOMPARE(int(m_edited->first().status), row);
        QCOMPARE(m_edited->editor->statusRow(), row);
        QVERIFY(m_edited->editor->statusChoices().at(row).toMap().value(u"checked"_s).toBool());
    }
}

void ClientEditorTest::rowOutside_choosesNothing()
{
    m_edited->editor->chooseStatus(-1);
    m_edited->editor->chooseStatus(6);

    QCOMPARE(m_edited->first().status, ClientStatus::Build);
}

void ClientEditorTest::rate_isReadAndShownAsTheCountryDoes()
{
    m_edited->editor->setRateText(u"35,5"_s);
    QCOMPARE(m_edited->first().hourlyRate, 35.5);
    m_edited->editor->setRateText(u"36.25"_s);
    QCOMPARE(m_edited->first().hourlyRate, 36.25);

    QCOMPARE(m_edited->editor->rateText(), u"36,25"_s);
}

void ClientEditorTest::rate_isOfTheStoresCountry()
{
    Workspace abroad({}, {.locale = {.money = "en_GB", .numbers = "en_GB"}});
    const auto id = abroad.client(u"Café"_s);
    ClientEditor editor;
    editor.setStore(abroad.store.get());
    editor.setClientID(id);

    editor.setRateText(u"£1,234.5"_s);

    QCOMPARE(abroad.store->client(id)->hourlyRate, 1234.5);
    QCOMPARE(editor.rateText(), u"1234.5"_s);
}

void ClientEditorTest::textThatIsNoNumber_leavesTheRate_data()
{
    QTest::addColumn<QString>("text");

    QTest::addRow("nothing") << QString();
    QTest::addRow("a word") << u"much"_s;
    QTest::addRow("no number") << u"nan"_s;
    QTest::addRow("infinity") << u"inf"_s;
    QTest::addRow("too large") << u"1e400"_s;
}

void ClientEditorTest::textThatIsNoNumber_leavesTheRate()
{
    QFETCH(QString, text);
    m_edited->editor->setRateText(u"35"_s);

    m_edited->editor->setRateText(text);

    QCOMPARE(m_edited->first().hourlyRate, 35.0);
}

void ClientEditorTest::goneClient_isNotWritten()
{
    m_edited->workspace->store->deleteClient(m_edited->cafe);
    QVERIFY(!m_edited->editor->exists());

    m_edited->editor->setName(u"Ghost"_s);
    m_edited->editor->startTimer();

    QCOMPARE(m_edited->workspace->store->data().clients.size(), 1);
    QCOMPARE(m_edited->first().name, u"Bloom"_s);
    QVERIFY(!m_edited->workspace->store->hasRunningEntry());
}

void ClientEditorTest::repeatedIds_meanTheFirst()
{
    auto data = m_edited->workspace->store->data();
    data.clients.append({.id = m_edited->cafe, .name = u"Twin"_s});
    m_edited->workspace->store->setData(data);

    m_edited->editor->setName(u"Corner Café"_s);

    QCOMPARE(m_edited->first().name, u"Corner Café"_s);
    QCOMPARE(m_edited->workspace->store->data().clients.back().name, u"Twin"_s);
}

void ClientEditorTest::sameText_writesNothing()
{
    const QSignalSpy changes(m_edited->workspace->store.get(), &quib::Store::clientsChanged);

    m_edited->editor->setName(u"Café"_s);
    m_edited->editor->setRateText(u"0"_s);

    QCOMPARE(changes.count(), 0);
}

void ClientEditorTest::changeOfAnotherClient_saysNothing()
{
    const QSignalSpy changes(m_edited->editor.get(), &ClientEditor::changed);

    m_edited->change(m_edited->bloom,
                     [](quib::Client& client) { client.name = u"Bloom Florist"_s; });
    m_edited->workspace->store->startTimer(m_edited->bloom, {});

    QCOMPARE(changes.count(), 0);
}

void ClientEditorTest::typing_leavesTheStatusMenuAlone()
{
    const QSignalSpy changes(m_edited->editor.get(), &ClientEditor::statusChanged);

    m_edited->editor->setName(u"C"_s);
    QCOMPARE(changes.count(), 0);
    m_edited->editor->chooseStatus(0);

    QCOMPARE(changes.count(), 1);
}

void ClientEditorTest::timer_isTheClientsOwn()
{
    const QSignalSpy changes(m_edited->editor.get(), &ClientEditor::isTimedChanged);
    auto& store = *m_edited->workspace->store;

    store.startTimer(m_edited->bloom, {});
    QVERIFY(!m_edited->editor->isTimed());
    store.startTimer(std::nullopt, {});
    QVERIFY(!m_edited->editor->isTimed());
    store.startTimer(m_edited->cafe, {});
    QVERIFY(m_edited->editor->isTimed());
    store.stopTimer();

    QVERIFY(!m_edited->editor->isTimed());
    QCOMPARE(changes.count(), 2);
}

void ClientEditorTest::startTimer_startsWithoutANote()
{
    m_edited->editor->startTimer();

    const auto running = m_edited->workspace->store->runningEntry();
    QVERIFY(running);
    QCOMPARE(running->clientID, m_edited->cafe);
    QCOMPARE(running->note, QString());
}

void ClientEditorTest::storeGone_leavesNothing()
{
    m_edited->workspace->store->startTimer(m_edited->cafe, {});

    m_edited->editor->setStore(nullptr);

    QVERIFY(!m_edited->editor->exists());
    QVERIFY(!m_edited->editor->isTimed());
    m_edited->editor->setName(u"Ghost"_s);
    m_edited->editor->chooseFolder(&m_edited->commands);
    QVERIFY(m_edited->commands.asked.isEmpty());
}

QTEST_GUILESS_MAIN(ClientEditorTest)
#include "tst_clienteditor.moc"
