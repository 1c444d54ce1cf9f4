#include "platform/linux/launch/openerdesk.h"

#include <QFile>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/// What opens a path or an address, whatever its name.
class GioOpenerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void openPath_document_opensInItsDefault();
    void openPath_folder_opensInTheFileManager();
    void openPath_desktopEntry_launchesTheApplication();
    void openPath_program_isRun();
    void openPath_whatMayBeExecutedByChance_isADocument_data();
    void openPath_whatMayBeExecutedByChance_isADocument();
    void openPath_whatCanNotBeOpened_doesNothing_data();
    void openPath_whatCanNotBeOpened_doesNothing();
    void openAddress_opensInTheSchemesApplication();
    void openAddress_unknownScheme_doesNothing();
    void anyName_arrivesUnharmed_data();
    void anyName_arrivesUnharmed();
};

void GioOpenerTest::openPath_document_opensInItsDefault()
{
    OpenerDesk desk;
    desk.install(u"another"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    desk.install(u"editor"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    desk.setDefaults(u"text/plain=editor"_s);
    const auto notes = desk.makeFile(u"notes.txt"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, notes}));

    QTRY_COMPARE(desk.started(), (Started{{u"editor"_s, notes}}));
}

void GioOpenerTest::openPath_folder_opensInTheFileManager()
{
    OpenerDesk desk;
    desk.install(u"browser"_s, u"%u"_s, u"MimeType=x-scheme-handler/file;"_s);
    desk.install(u"files"_s, u"%u"_s, u"MimeType=inode/directory;"_s);
    const auto folder = desk.makeFolder(u"a folder.desktop"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, folder}));

    QTRY_COMPARE(desk.started(), (Started{{u"files"_s, folder}}));
}

void GioOpenerTest::openPath_desktopEntry_launchesTheApplication()
{
    OpenerDesk desk;
    const auto entry = desk.install(u"player"_s, u"--start %U"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, entry}));

    QTRY_COMPARE(desk.started(), (Started{{u"player"_s, u"--start"_s}}));
}

void GioOpenerTest::openPath_program_isRun()
{
    OpenerDesk desk;
    const auto program = desk.path(u"Some App.AppImage"_s);
    QVERIFY(QFile::copy(QStringLiteral(RECORD_PROGRAM), program));
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, program}));

    QTRY_COMPARE(desk.started(), Started{{}});
}

void GioOpenerTest::openPath_whatMayBeExecutedByChance_isADocument_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");

    QTest::addRow("picture") << u"cat.png"_s << "\x89PNG"_ba;
    QTest::addRow("script") << u"script.txt"_s << "#!/bin/sh\necho no\n"_ba;
    QTest::addRow("almost empty") << u"short.txt"_s << "\x7f"_ba;
}

void GioOpenerTest::openPath_whatMayBeExecutedByChance_isADocument()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    OpenerDesk desk;
    desk.install(u"viewer"_s, u"%f"_s, u"MimeType=text/plain;image/png;"_s);
    const auto path = desk.makeFile(name, bytes);
    QFile::setPermissions(path, QFile::Permissions(0x7777));
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, path}));

    QTRY_COMPARE(desk.started(), (Started{{u"viewer"_s, path}}));
}

void GioOpenerTest::openPath_whatCanNotBeOpened_doesNothing_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("missing file") << u"missing.txt"_s;
    QTest::addRow("missing folder") << u"missing"_s;
    QTest::addRow("missing entry") << u"missing.desktop"_s;
    QTest::addRow("no application for its type") << u"cat.png"_s;
    QTest::addRow("an entry that is none") << u"garbage.desktop"_s;
    QTest::addRow("an entry whose program is missing") << u"gone.desktop"_s;
    QTest::addRow("an entry that is a link") << u"link.desktop"_s;
    QTest::addRow("nothing") << QString();
}

void GioOpenerTest::openPath_whatCanNotBeOpened_doesNothing()
{
    QFETCH(const QString, name);
    OpenerDesk desk;
    desk.install(u"editor"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    const auto notes = desk.makeFile(u"notes.txt"_s);
    desk.makeFile(u"cat.png"_s);
    desk.makeFile(u"garbage.desktop"_s, "[[[[\0\xff"_ba);
    desk.makeFile(u"gone.desktop"_s, "[Desktop Entry]\nType=Application\nName=G\nExec=/not/here\n");
    desk.makeFile(u"link.desktop"_s, "[Desktop Entry]\nType=Link\nName=L\nURL=file:///\n");
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, name.isEmpty() ? name : desk.path(name)}));

    QVERIFY(desk.ask({u"openPath"_s, notes}));
    QTRY_COMPARE(desk.started(), (Started{{u"editor"_s, notes}}));
    QVERIFY(desk.quit());
    QCOMPARE(desk.complaints(), QByteArray());
}

void GioOpenerTest::openAddress_opensInTheSchemesApplication()
{
    OpenerDesk desk;
    desk.install(u"browser"_s, u"%u"_s, u"MimeType=x-scheme-handler/https;"_s);
    const auto address = u"https://example.org/a%20b?c=%C3%A9&d=$(id)'#e"_s;
    desk.start();

    QVERIFY(desk.ask({u"openAddress"_s, address}));

    QTRY_COMPARE(desk.started(), (Started{{u"browser"_s, address}}));
}

void GioOpenerTest::openAddress_unknownScheme_doesNothing()
{
    OpenerDesk desk;
    desk.install(u"browser"_s, u"%u"_s, u"MimeType=x-scheme-handler/https;"_s);
    desk.start();

    QVERIFY(desk.ask({u"openAddress"_s, u"unheard-of://x/y"_s}));

    QVERIFY(desk.ask({u"openAddress"_s, u"https://x.org/"_s}));
    QTRY_COMPARE(desk.started(), (Started{{u"browser"_s, u"https://x.org/"_s}}));
}

void GioOpenerTest::anyName_arrivesUnharmed_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("blanks") << u" a  b "_s;
    QTest::addRow("quotes") << u"a \"b\" 'c'"_s;
    QTest::addRow("percent signs") << u"100% %f%U%%20"_s;
    QTest::addRow("line breaks") << u"a\nb\rc\td"_s;
    QTest::addRow("leading dash") << u"--help"_s;
    QTest::addRow("leading dot") << u".hidden"_s;
    QTest::addRow("what a shell reads") << u"$HOME `id` $(id) ;&|<>*?!#~"_s;
    QTest::addRow("backslashes") << u"a\\b\\"_s;
    QTest::addRow("what addresses escape") << u"a#b?c&d=e+f@g:h[i]"_s;
    QTest::addRow("beyond ASCII") << u"été 漢字 🦊 a\u0301"_s;
}

void GioOpenerTest::anyName_arrivesUnharmed()
{
    QFETCH(const QString, name);
    OpenerDesk desk;
    desk.install(u"editor"_s, u"%f"_s, u"MimeType=text/plain;"_s);
    desk.install(u"files"_s, u"-- %u"_s, u"MimeType=inode/directory;"_s);
    desk.install(u"code"_s, u"%F"_s);
    const auto folder = desk.makeFolder(name);
    const auto file = desk.makeFile(name + u"/f.txt"_s);
    desk.start();

    QVERIFY(desk.ask({u"openPath"_s, file}));
    QVERIFY(desk.ask({u"openPath"_s, folder}));
    QVERIFY(desk.ask({u"openWithFirst"_s, folder, u"code.desktop"_s}));
    QVERIFY(desk.ask({u"openWithFirst"_s, folder, QStringLiteral(RECORD_PROGRAM)}));
    QVERIFY(desk.ask({u"openInTextEditor"_s, folder}));

    QTRY_COMPARE(desk.started().size(), 5);
    Started expected{{u"editor"_s, file},
                     {u"files"_s, u"--"_s, folder},
                     {u"code"_s, folder},
                     {folder},
                     {u"editor"_s, folder}};
    std::ranges::sort(expected);
    QCOMPARE(desk.started(), expected);
}

QTEST_GUILESS_MAIN(GioOpenerTest)
#include "tst_gioopener.moc"
