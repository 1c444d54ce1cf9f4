#include "views/clienteditor.h"

#include "support/fakecommands.h"
#include "support/workspace.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::ClientEditor;
using quib::ClientStatus;

/// What is shown and written of one client.
class ClientEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void client_isShown();
    void noClient_showsNothing();
    void everyField_isWrittenAtOnce();
    void everyStatus_isChosenByItsRow();
    void rowOutside_choosesNothing();
    void rate_isReadAndShownAsTheCountryDoes();
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

    void chooseFolder_startsInThePresentOne();
    void chosenFolder_isWritten_data();
    void chosenFolder_isWritten();
    void cancelledChoice_changesNothing();
    void chosenFolder_goesToTheClientItWasChosenFor();
    void chosenFolder_ofAGoneClient_isPassedOver();
    void choiceAfterTheEditor_isStillWritten();
    void choiceAfterTheStore_doesNothing();

private:
    quib::Client first() const { return m_workspace->store->data().clients.front(); }
    void change(const QUuid& id, const std::function<void(quib::Client&)>& edit);

    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<ClientEditor> m_editor;
    FakeCommands m_commands;
    QUuid m_cafe;
    QUuid m_bloom;
};

void ClientEditorTest::initTestCase()
{
    qputenv("LC_ALL", "de_DE.UTF-8");
}

void ClientEditorTest::init()
{
    m_editor.reset();
    m_workspace = std::make_unique<Workspace>();
    m_cafe = m_workspace->client(u"Café"_s, ClientStatus::Build);
    m_bloom = m_workspace->client(u"Bloom"_s);
    m_commands.asked.clear();
    m_commands.choices.clear();
    m_editor = std::make_unique<ClientEditor>();
    m_editor->setStore(m_workspace->store.get());
    m_editor->setClientID(m_cafe);
}

void ClientEditorTest::change(const QUuid& id, const std::function<void(quib::Client&)>& edit)
{
    auto client = *m_workspace->store->client(id);
    edit(client);
    m_workspace->store->updateClient(client);
}

void ClientEditorTest::client_isShown()
{
    change(m_cafe, [](quib::Client& client) {
        client.siteURL = u"cafe.example"_s;
        client.folderPath = u"/work/café"_s;
        client.hourlyRate = 35.5;
        client.notes = u"Ann\nBo"_s;
    });

    QVERIFY(m_editor->exists());
    QCOMPARE(m_editor->name(), u"Café"_s);
    QCOMPARE(m_editor->status(), u"build"_s);
    QCOMPARE(m_editor->statusTitle(), u"Build"_s);
    QCOMPARE(m_editor->statusRow(), 2);
    QCOMPARE(m_editor->siteURL(), u"cafe.example"_s);
    QCOMPARE(m_editor->folderPath(), u"/work/café"_s);
    QCOMPARE(m_editor->rateText(), u"35,5"_s);
    QCOMPARE(m_editor->notes(), u"Ann\nBo"_s);
}

void ClientEditorTest::noClient_showsNothing()
{
    for (const auto& id : {QUuid(), QUuid::createUuid()}) {
        m_editor->setClientID(id);

        QVERIFY(!m_editor->exists());
        QVERIFY((m_editor->name() + m_editor->status() + m_editor->rateText()).isEmpty());
        QCOMPARE(m_editor->statusRow(), -1);
    }
}

void ClientEditorTest::everyField_isWrittenAtOnce()
{
    m_editor->setName(u"Corner Café"_s);
    m_editor->chooseStatus(5);
    m_editor->setSiteURL(u"cafe.example"_s);
    m_editor->setRateText(u"1.234,5"_s);
    m_editor->setNotes(u"Ann"_s);

    QCOMPARE(first(),
             (quib::Client{.id = m_cafe,
                           .name = u"Corner Café"_s,
                           .status = ClientStatus::Care,
                           .siteURL = u"cafe.example"_s,
                           .hourlyRate = 1234.5,
                           .notes = u"Ann"_s}));
}

void ClientEditorTest::everyStatus_isChosenByItsRow()
{
    QStringList titles;
    for (const auto& choice : m_editor->statusChoices()) {
        titles << choice.toMap().value(u"title"_s).toString();
    }
    QCOMPARE(
        titles,
        (QStringList{u"Lead"_s, u"Design"_s, u"Build"_s, u"Review"_s, u"Live"_s, u"Care plan"_s}));

    for (int row = 0; row < 6; ++row) {
        m_editor->chooseStatus(row);

        QCOMPARE(int(first().status), row);
        QCOMPARE(m_editor->statusRow(), row);
        QVERIFY(m_editor->statusChoices().at(row).toMap().value(u"checked"_s).toBool());
    }
}

void ClientEditorTest::rowOutside_choosesNothing()
{
    m_editor->chooseStatus(-1);
    m_editor->chooseStatus(6);

    QCOMPARE(first().status, ClientStatus::Build);
}

void ClientEditorTest::rate_isReadAndShownAsTheCountryDoes()
{
    m_editor->setRateText(u"35,5"_s);
    QCOMPARE(first().hourlyRate, 35.5);
    m_editor->setRateText(u"36.25"_s);
    QCOMPARE(first().hourlyRate, 36.25);

    QCOMPARE(m_editor->rateText(), u"36,25"_s);
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
    m_editor->setRateText(u"35"_s);

    m_editor->setRateText(text);

    QCOMPARE(first().hourlyRate, 35.0);
}

void ClientEditorTest::goneClient_isNotWritten()
{
    m_workspace->store->deleteClient(m_cafe);
    QVERIFY(!m_editor->exists());

    m_editor->setName(u"Ghost"_s);
    m_editor->startTimer();

    QCOMPARE(m_workspace->store->data().clients.size(), 1);
    QCOMPARE(first().name, u"Bloom"_s);
    QVERIFY(!m_workspace->store->hasRunningEntry());
}

void ClientEditorTest::repeatedIds_meanTheFirst()
{
    auto data = m_workspace->store->data();
    data.clients.append({.id = m_cafe, .name = u"Twin"_s});
    m_workspace->store->setData(data);

    m_editor->setName(u"Corner Café"_s);

    QCOMPARE(first().name, u"Corner Café"_s);
    QCOMPARE(m_workspace->store->data().clients.back().name, u"Twin"_s);
}

void ClientEditorTest::sameText_writesNothing()
{
    const QSignalSpy changes(m_workspace->store.get(), &quib::Store::clientsChanged);

    m_editor->setName(u"Café"_s);
    m_editor->setRateText(u"0"_s);

    QCOMPARE(changes.count(), 0);
}

void ClientEditorTest::changeOfAnotherClient_saysNothing()
{
    const QSignalSpy changes(m_editor.get(), &ClientEditor::changed);

    change(m_bloom, [](quib::Client& client) { client.name = u"Bloom Florist"_s; });
    m_workspace->store->startTimer(m_bloom, {});

    QCOMPARE(changes.count(), 0);
}

void ClientEditorTest::typing_leavesTheStatusMenuAlone()
{
    const QSignalSpy changes(m_editor.get(), &ClientEditor::statusChanged);

    m_editor->setName(u"C"_s);
    QCOMPARE(changes.count(), 0);
    m_editor->chooseStatus(0);

    QCOMPARE(changes.count(), 1);
}

void ClientEditorTest::timer_isTheClientsOwn()
{
    const QSignalSpy changes(m_editor.get(), &ClientEditor::isTimedChanged);
    auto& store = *m_workspace->store;

    store.startTimer(m_bloom, {});
    QVERIFY(!m_editor->isTimed());
    store.startTimer(std::nullopt, {});
    QVERIFY(!m_editor->isTimed());
    store.startTimer(m_cafe, {});
    QVERIFY(m_editor->isTimed());
    store.stopTimer();

    QVERIFY(!m_editor->isTimed());
    QCOMPARE(changes.count(), 2);
}

void ClientEditorTest::startTimer_startsWithoutANote()
{
    m_editor->startTimer();

    const auto running = m_workspace->store->runningEntry();
    QVERIFY(running);
    QCOMPARE(running->clientID, m_cafe);
    QCOMPARE(running->note, QString());
}

void ClientEditorTest::storeGone_leavesNothing()
{
    m_workspace->store->startTimer(m_cafe, {});

    m_editor->setStore(nullptr);

    QVERIFY(!m_editor->exists());
    QVERIFY(!m_editor->isTimed());
    m_editor->setName(u"Ghost"_s);
    m_editor->chooseFolder(&m_commands);
    QVERIFY(m_commands.asked.isEmpty());
}

void ClientEditorTest::chooseFolder_startsInThePresentOne()
{
    m_editor->chooseFolder(&m_commands);
    change(m_cafe, [](quib::Client& client) { client.folderPath = u"/work/100% café #1"_s; });
    m_editor->chooseFolder(&m_commands);

    QCOMPARE(m_commands.asked,
             (QStringList{u"pick folder in "_s, u"pick folder in /work/100% café #1"_s}));
}

void ClientEditorTest::chosenFolder_isWritten_data()
{
    QTest::addColumn<QUrl>("chosen");
    QTest::addColumn<QString>("path");

    QTest::addRow("a folder") << QUrl::fromLocalFile(u"/work/café"_s) << u"/work/café"_s;
    QTest::addRow("with the slash that some end folders with")
        << QUrl::fromLocalFile(u"/work/café/"_s) << u"/work/café"_s;
    QTest::addRow("all of it") << QUrl(u"file:///"_s) << u"/"_s;
    QTest::addRow("with signs that addresses write otherwise")
        << QUrl::fromLocalFile(u"/work/100% #1?"_s) << u"/work/100% #1?"_s;
    QTest::addRow("one that is no file") << QUrl(u"sftp://host/work"_s) << QString();
}

void ClientEditorTest::chosenFolder_isWritten()
{
    QFETCH(QUrl, chosen);
    m_editor->chooseFolder(&m_commands);

    m_commands.choices.front()(chosen);

    QTEST(first().folderPath, "path");
    QTEST(m_editor->folderPath(), "path");
}

void ClientEditorTest::cancelledChoice_changesNothing()
{
    change(m_cafe, [](quib::Client& client) { client.folderPath = u"/work"_s; });

    m_editor->chooseFolder(&m_commands);
    m_commands.choices.clear();

    QCOMPARE(first().folderPath, u"/work"_s);
}

void ClientEditorTest::chosenFolder_goesToTheClientItWasChosenFor()
{
    m_editor->chooseFolder(&m_commands);
    m_editor->setName(u"Corner Café"_s);
    m_editor->setClientID(m_bloom);

    m_commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(first().folderPath, u"/work/café"_s);
    QCOMPARE(first().name, u"Corner Café"_s);
    QCOMPARE(m_editor->folderPath(), QString());
}

void ClientEditorTest::chosenFolder_ofAGoneClient_isPassedOver()
{
    m_editor->chooseFolder(&m_commands);
    m_workspace->store->deleteClient(m_cafe);

    m_commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(m_workspace->store->data().clients.size(), 1);
    QCOMPARE(first().folderPath, QString());
}

void ClientEditorTest::choiceAfterTheEditor_isStillWritten()
{
    m_editor->chooseFolder(&m_commands);
    m_editor.reset();

    m_commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(first().folderPath, u"/work/café"_s);
}

void ClientEditorTest::choiceAfterTheStore_doesNothing()
{
    m_editor->chooseFolder(&m_commands);
    m_workspace.reset();

    m_commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QVERIFY(!m_editor->exists() || !m_editor->store());
}

QTEST_GUILESS_MAIN(ClientEditorTest)
#include "tst_clienteditor.moc"
