#include "platform/linux/launch/openerdesk.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

/// Which of the editors opens a folder, and which opens a file of text.
class GioEditorsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void openWithFirst_folder_opensInTheApplication();
    void openWithFirst_usesTheFirstInstalled_data();
    void openWithFirst_usesTheFirstInstalled();
    void openWithFirst_installedAndRemovedMeanwhile_isSeen();
    void openInTextEditor_choosesAWindow_data();
    void openInTextEditor_choosesAWindow();
    void openInTextEditor_onlyATerminal_opensInIt();
};

void GioEditorsTest::openWithFirst_folder_opensInTheApplication()
{
    OpenerDesk desk;
    desk.install(u"files"_s, u"%f"_s, u"MimeType=inode/directory;"_s);
    desk.install(u"code"_s, u"--new-window %F"_s);
    const auto folder = desk.makeFolder(u"site"_s);
    desk.start();

    QVERIFY(desk.ask({u"openWithFirst"_s, folder, u"code.desktop"_s}));

    QTRY_COMPARE(desk.started(), (Started{{u"code"_s, u"--new-window"_s, folder}}));
}

void GioEditorsTest::openWithFirst_usesTheFirstInstalled_data()
{
    QTest::addColumn<QStringList>("candidates");
    QTest::addColumn<QString>("used"); // Empty for a program, which is told only the folder.
    const auto files = u"files"_s; // As if no editor had been asked for.

    QTest::addRow("the first of two")
        << QStringList{u"zed.desktop"_s, u"code.desktop"_s} << u"zed"_s;
    QTest::addRow("the first that is installed")
        << QStringList{u"/Applications/None.app"_s, u"none.desktop"_s, u"none"_s, u"code.desktop"_s}
        << u"code"_s;
    QTest::addRow("a command") << QStringList{u"none.desktop"_s, u"quibtest-editor"_s} << QString();
    QTest::addRow("a program file") << QStringList{QStringLiteral(RECORD_PROGRAM)} << QString();
    QTest::addRow("not displayed in menus")
        << QStringList{u"settings.desktop"_s, u"code.desktop"_s} << u"settings"_s;
    QTest::addRow("in a folder of its own")
        << QStringList{u"kde-deep.desktop"_s, u"code.desktop"_s} << u"kde/deep"_s;
    QTest::addRow("removed by the user") << QStringList{u"masked.desktop"_s} << files;
    QTest::addRow("its program is missing") << QStringList{u"gone.desktop"_s} << files;
    QTest::addRow("what it tries is missing") << QStringList{u"tries.desktop"_s} << files;
    QTest::addRow("garbage") << QStringList{u"garbage.desktop"_s} << files;
    QTest::addRow("without its ending") << QStringList{u"code"_s} << files;
    QTest::addRow("a folder") << QStringList{QDir::tempPath()} << files;
    QTest::addRow("no name") << QStringList{QString()} << files;
    QTest::addRow("none") << QStringList() << files;
}

void GioEditorsTest::openWithFirst_usesTheFirstInstalled()
{
    QFETCH(const QStringList, candidates);
    QFETCH(const QString, used);
    OpenerDesk desk;
    desk.install(u"files"_s, u"%f"_s, u"MimeType=inode/directory;"_s);
    desk.install(u"code"_s);
    desk.install(u"zed"_s);
    desk.install(u"settings"_s, u"%f"_s, u"NoDisplay=true"_s);
    desk.install(u"kde/deep"_s);
    desk.install(u"masked"_s, u"%f"_s, u"Hidden=true"_s);
    desk.install(u"tries"_s, u"%f"_s, u"TryExec=/not/here"_s);
    desk.makeFile(u"data/applications/garbage.desktop"_s, "[[[[\0\xff"_ba);
    desk.makeFile(u"data/applications/gone.desktop"_s,
                  "[Desktop Entry]\nType=Application\nName=G\nExec=/not/here\n");
    QVERIFY(QFile::link(QStringLiteral(RECORD_PROGRAM),
                        desk.makeFolder(u"bin"_s) + u"/quibtest-editor"_s));
    desk.environment.insert(u"PATH"_s, desk.path(u"bin"_s));
    const auto folder = desk.makeFolder(u"my site"_s);
    desk.start();

    QVERIFY(desk.ask(QStringList{u"openWithFirst"_s, folder} + candidates));

    const auto arguments = used.isEmpty() ? QStringList{folder} : QStringList{used, folder};
    QTRY_COMPARE(desk.started(), Started{arguments});
}

void GioEditorsTest::openWithFirst_installedAndRemovedMeanwhile_isSeen()
{
    OpenerDesk desk;
    desk.install(u"files"_s, u"%f"_s, u"MimeType=inode/directory;"_s);
    const auto folder = desk.makeFolder(u"site"_s);
    const QStringList inFiles{u"files"_s, folder};
    desk.start();
    const QStringList command{u"openWithFirst"_s, folder, u"code.desktop"_s};
    QVERIFY(desk.ask(command));
    QTRY_COMPARE(desk.started(), Started{inFiles});

    const auto entry = desk.install(u"code"_s); // The desktop's reader may take a while to see it.
    QTRY_VERIFY(desk.ask(command) && desk.started().contains(QStringList{u"code"_s, folder}));

    QVERIFY(QFile::remove(entry));
    const auto before = desk.started().count(inFiles);
    QTRY_VERIFY(desk.ask(command) && desk.started().count(inFiles) > before);
}

void GioEditorsTest::openInTextEditor_choosesAWindow_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("used");

    QTest::addRow("the default") << u"window"_s << u"window"_s;
    QTest::addRow("the default needs a terminal") << u"terminal"_s << u"window"_s;
}

void GioEditorsTest::openInTextEditor_choosesAWindow()
{
    QFETCH(const QString, chosen);
    QFETCH(const QString, used);
    OpenerDesk desk;
    desk.install(u"terminal"_s, u"%f"_s, u"MimeType=text/plain;\nTerminal=true"_s);
    desk.install(u"tree"_s, u"%f"_s, u"MimeType=application/json;"_s);
    desk.install(u"window"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    desk.setDefaults(u"application/json=tree\ntext/plain=%1"_s.arg(chosen));
    const auto file = desk.makeFile(u"shortcuts.json"_s, "{}");
    desk.start();

    QVERIFY(desk.ask({u"openInTextEditor"_s, file}));

    QTRY_COMPARE(desk.started(), (Started{{used, file}}));
}

void GioEditorsTest::openInTextEditor_onlyATerminal_opensInIt()
{
    OpenerDesk desk;
    desk.install(u"vi"_s, u"%f"_s, u"MimeType=text/plain;\nTerminal=true"_s);
    const auto file = desk.makeFile(u"shortcuts.json"_s, "{}");
    QVERIFY(QFile::link(QStringLiteral(RECORD_PROGRAM), desk.makeFolder(u"bin"_s) + u"/xterm"_s));
    desk.environment.insert(u"PATH"_s, desk.path(u"bin"_s));
    desk.start();

    QVERIFY(desk.ask({u"openInTextEditor"_s, file}));

    QTRY_COMPARE(desk.started(),
                 (Started{{u"-e"_s, QStringLiteral(RECORD_PROGRAM), u"vi"_s, file}}));
}

QTEST_GUILESS_MAIN(GioEditorsTest)
#include "tst_gioeditors.moc"
