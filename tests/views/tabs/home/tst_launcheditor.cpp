#include "views/tabs/home/launcheditor.h"

#include "support/fakes/fakecommands.h"
#include "support/workspace.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::LaunchEditor;

class LaunchEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void link_goesToTheEnd();
    void link_withoutAddress_isNone();
    void application_isNamedByTheShell();
    void application_storeGoneMeanwhile_isDropped();
};

void LaunchEditorTest::link_goesToTheEnd()
{
    Workspace workspace;
    LaunchEditor::addLink(workspace.store.get(), u"Mail"_s, u"mail.example"_s);

    QVERIFY(LaunchEditor::addLink(workspace.store.get(), {}, u"Shop.Example.COM/admin"_s));

    const auto& launch = workspace.store->data().launch;
    QCOMPARE(launch.size(), 2);
    QCOMPARE(launch.front().name, u"Mail"_s);
    QCOMPARE(launch.back().name, u"Shop.Example.COM"_s);
    QCOMPARE(launch.back().target, u"Shop.Example.COM/admin"_s);
}

void LaunchEditorTest::link_withoutAddress_isNone()
{
    Workspace workspace;

    QVERIFY(!LaunchEditor::addLink(workspace.store.get(), u"A name"_s, {}));

    QVERIFY(workspace.store->data().launch.isEmpty());
}

void LaunchEditorTest::application_isNamedByTheShell()
{
    Workspace workspace;
    FakeCommands commands;
    LaunchEditor::addApplication(workspace.store.get(), &commands);
    QCOMPARE(commands.asked, QStringList{u"pick application in "_s});

    commands.choices.front()(QUrl::fromLocalFile(u"/usr/share/applications/a.desktop"_s));

    const auto& launch = workspace.store->data().launch;
    QCOMPARE(launch.size(), 1);
    QCOMPARE(launch.front().name, u"the application at /usr/share/applications/a.desktop"_s);
    QCOMPARE(launch.front().target, u"/usr/share/applications/a.desktop"_s);
}

void LaunchEditorTest::application_storeGoneMeanwhile_isDropped()
{
    Workspace workspace;
    FakeCommands commands;
    LaunchEditor::addApplication(workspace.store.get(), &commands);

    workspace.store.reset();
    commands.choices.front()(QUrl::fromLocalFile(u"/a.desktop"_s));

    QCOMPARE(commands.named, QStringList());
}

QTEST_GUILESS_MAIN(LaunchEditorTest)
#include "tst_launcheditor.moc"
