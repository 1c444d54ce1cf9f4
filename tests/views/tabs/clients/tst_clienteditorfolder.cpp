#include "support/editedclient.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// A folder chosen for a client, whenever the choice ends.
class ClientEditorFolderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_edited = std::make_unique<EditedClient>(); }
    void cleanup() { m_edited.reset(); }

    void chooseFolder_startsInThePresentOne();
    void chosenFolder_isWritten_data();
    void chosenFolder_isWritten();
    void cancelledChoice_changesNothing();
    void chosenFolder_goesToTheClientItWasChosenFor();
    void chosenFolder_ofAGoneClient_isPassedOver();
    void choiceAfterTheEditor_isStillWritten();
    void choiceAfterTheStore_doesNothing();

private:
    std::unique_ptr<EditedClient> m_edited;
};

void ClientEditorFolderTest::chooseFolder_startsInThePresentOne()
{
    m_edited->editor->chooseFolder(&m_edited->commands);
    m_edited->change(m_edited->cafe,
                     [](quib::Client& client) { client.folderPath = u"/work/100% café #1"_s; });
    m_edited->editor->chooseFolder(&m_edited->commands);

    QCOMPARE(m_edited->commands.asked,
             (QStringList{u"pick folder in "_s, u"pick folder in /work/100% café #1"_s}));
}

void ClientEditorFolderTest::chosenFolder_isWritten_data()
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

void ClientEditorFolderTest::chosenFolder_isWritten()
{
    QFETCH(QUrl, chosen);
    m_edited->editor->chooseFolder(&m_edited->commands);

    m_edited->commands.choices.front()(chosen);

    QTEST(m_edited->first().folderPath, "path");
    QTEST(m_edited->editor->folderPath(), "path");
}

void ClientEditorFolderTest::cancelledChoice_changesNothing()
{
    m_edited->change(m_edited->cafe, [](quib::Client& client) { client.folderPath = u"/work"_s; });

    m_edited->editor->chooseFolder(&m_edited->commands);
    m_edited->commands.choices.clear();

    QCOMPARE(m_edited->first().folderPath, u"/work"_s);
}

void ClientEditorFolderTest::chosenFolder_goesToTheClientItWasChosenFor()
{
    m_edited->editor->chooseFolder(&m_edited->commands);
    m_edited->editor->setName(u"Corner Café"_s);
    m_edited->editor->setClientID(m_edited->bloom);

    m_edited->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(m_edited->first().folderPath, u"/work/café"_s);
    QCOMPARE(m_edited->first().name, u"Corner Café"_s);
    QCOMPARE(m_edited->editor->folderPath(), QString());
}

void ClientEditorFolderTest::chosenFolder_ofAGoneClient_isPassedOver()
{
    m_edited->editor->chooseFolder(&m_edited->commands);
    m_edited->workspace->store->deleteClient(m_edited->cafe);

    m_edited->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(m_edited->workspace->store->data().clients.size(), 1);
    QCOMPARE(m_edited->first().folderPath, QString());
}

void ClientEditorFolderTest::choiceAfterTheEditor_isStillWritten()
{
    m_edited->editor->chooseFolder(&m_edited->commands);
    m_edited->editor.reset();

    m_edited->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QCOMPARE(m_edited->first().folderPath, u"/work/café"_s);
}

void ClientEditorFolderTest::choiceAfterTheStore_doesNothing()
{
    m_edited->editor->chooseFolder(&m_edited->commands);
    m_edited->workspace.reset();

    m_edited->commands.choices.front()(QUrl::fromLocalFile(u"/work/café"_s));

    QVERIFY(!m_edited->editor->exists() || !m_edited->editor->store());
}

QTEST_GUILESS_MAIN(ClientEditorFolderTest)
#include "tst_clienteditorfolder.moc"
