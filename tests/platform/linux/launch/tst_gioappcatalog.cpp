#include "platform/linux/launch/gioappcatalog.h"
#include "support/writefile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace quib;

class GioAppCatalogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void applicationNamed_data();
    void applicationNamed();
    void applicationNamed_userEntryHidesTheSystems();
    void nameOf_isWhatTheUserReads();
    void nameOf_noEntry_isTheFilesName();
    void applications_areThoseThatTheUserMaySee();
    void applications_areSortedAsTheUserReads();
    void applications_icon_data();
    void applications_icon();

private:
    QString install(const QString& folder, const QString& id, const QString& lines) const;
    static Application application(const QString& name);

    QTemporaryDir m_folder;
};

void GioAppCatalogTest::initTestCase()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.filePath(u"home"_s)));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(m_folder.filePath(u"system"_s)));
    qputenv("XDG_CURRENT_DESKTOP", "KDE");
    qputenv("LANGUAGE", "de");
    install(u"system"_s, u"files"_s, u"Name=Files\nName[de]=Dateien\n"_s);
    install(u"system"_s, u"settings"_s, u"Name=Settings\nNoDisplay=true\n"_s);
    install(u"system"_s, u"gone"_s, u"Name=Gone\nHidden=true\n"_s);
    install(u"system"_s, u"elsewhere"_s, u"Name=Elsewhere\nOnlyShowIn=GNOME;\n"_s);
    install(u"system"_s, u"b.twin"_s, u"Name=Twin\n"_s);
    install(u"system"_s, u"a.twin"_s, u"Name=Twin\n"_s);
    install(u"system"_s, u"missing"_s, u"Name=Missing\nTryExec=/nowhere/at/all\n"_s);
    install(u"system"_s, u"kde/deep"_s, u"Name=Deep\n"_s);
    install(u"system"_s, u"umlaut"_s, u"Name=Büro\n"_s);
    install(u"system"_s, u"mail"_s, u"Name=Mail\n"_s);
    install(u"home"_s, u"mail"_s, u"Name=Mail of mine\n"_s);
    install(u"system"_s, u"masked"_s, u"Name=Masked\n"_s);
    install(u"home"_s, u"masked"_s, u"Name=Masked\nHidden=true\n"_s);
    install(u"system"_s, u"lower"_s, u"Name=lower case\n"_s);
    install(u"system"_s, u"zebra"_s, u"Name=Zebra\nIcon=zebra.png\n"_s);
    install(u"system"_s, u"full"_s, u"Name=F\nX-GNOME-FullName=Full Name\n"_s);
    install(u"system"_s, u"icon.name"_s, u"Name=Icon name\nIcon=org.example.Icon\n"_s);
    install(u"system"_s, u"icon.path"_s, u"Name=Icon path\nIcon=/tmp/a b%20ü.png\n"_s);
}

QString GioAppCatalogTest::install(const QString& folder, const QString& id,
                                   const QString& lines) const
{
    const auto program = lines.contains(u"\nExec="_s) ? QByteArray() : "Exec=true\n"_ba;
    return writeFile(m_folder.filePath(folder + u"/applications/"_s + id + u".desktop"_s),
                     "[Desktop Entry]\nType=Application\n" + program + lines.toUtf8());
}

void GioAppCatalogTest::applicationNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("id"); // Empty for none.

    QTest::addRow("by its unlocalised name") << u"Files"_s << u"files"_s;
    QTest::addRow("not by its translated name") << u"Dateien"_s << QString();
    QTest::addRow("not in other letters") << u"files"_s << QString();
    QTest::addRow("not by part of its name") << u"File"_s << QString();
    QTest::addRow("not displayed") << u"Settings"_s << QString();
    QTest::addRow("removed by the user") << u"Gone"_s << QString();
    QTest::addRow("for another desktop") << u"Elsewhere"_s << QString();
    QTest::addRow("its program is missing") << u"Missing"_s << QString();
    QTest::addRow("two of one name: the first path") << u"Twin"_s << u"a.twin"_s;
    QTest::addRow("in a folder of its own") << u"Deep"_s << u"kde/deep"_s;
    QTest::addRow("beyond ASCII") << u"Büro"_s << u"umlaut"_s;
    QTest::addRow("not installed") << u"Nothing"_s << QString();
    QTest::addRow("no name") << QString() << QString();
}

void GioAppCatalogTest::applicationNamed()
{
    QFETCH(const QString, name);
    QFETCH(const QString, id);
    const GioAppCatalog catalog;

    const auto path = catalog.applicationNamed(name);

    QCOMPARE(path.has_value(), !id.isEmpty());
    if (path) {
        QCOMPARE(*path, m_folder.filePath(u"system/applications/"_s + id + u".desktop"_s));
    }
}

void GioAppCatalogTest::applicationNamed_userEntryHidesTheSystems()
{
    const GioAppCatalog catalog;

    QVERIFY(!catalog.applicationNamed(u"Mail"_s));
    QCOMPARE(catalog.applicationNamed(u"Mail of mine"_s),
             m_folder.filePath(u"home/applications/mail.desktop"_s));
}

void GioAppCatalogTest::nameOf_isWhatTheUserReads()
{
    QCOMPARE(GioAppCatalog().nameOf(m_folder.filePath(u"system/applications/files.desktop"_s)),
             u"Dateien"_s);
}

void GioAppCatalogTest::nameOf_noEntry_isTheFilesName()
{
    const auto path = writeFile(m_folder.filePath(u"My Tool 2.5.desktop"_s), "no entry at all");

    QCOMPARE(GioAppCatalog().nameOf(path), u"My Tool 2.5"_s);
    QCOMPARE(GioAppCatalog().nameOf(u"/nowhere/Gone.app"_s), u"Gone"_s);
}

void GioAppCatalogTest::applications_areThoseThatTheUserMaySee()
{
    QStringList paths;
    const auto list = GioAppCatalog().applications();
    for (const auto& application : list) {
        paths << QDir(m_folder.path()).relativeFilePath(application.path);
    }
    paths.sort();

    QCOMPARE(paths,
             (QStringList{
                 u"home/applications/mail.desktop"_s, u"system/applications/a.twin.desktop"_s,
                 u"system/applications/b.twin.desktop"_s, u"system/applications/files.desktop"_s,
                 u"system/applications/full.desktop"_s, u"system/applications/icon.name.desktop"_s,
                 u"system/applications/icon.path.desktop"_s,
                 u"system/applications/kde/deep.desktop"_s, u"system/applications/lower.desktop"_s,
                 u"system/applications/umlaut.desktop"_s, u"system/applications/zebra.desktop"_s}));
}

void GioAppCatalogTest::applications_areSortedAsTheUserReads()
{
    QStringList names;
    const auto list = GioAppCatalog().applications();
    for (const auto& application : list) {
        names << application.name;
    }

    QCOMPARE(names,
             (QStringList{u"Büro"_s, u"Dateien"_s, u"Deep"_s, u"Full Name"_s, u"Icon name"_s,
                          u"Icon path"_s, u"lower case"_s, u"Mail of mine"_s, u"Twin"_s, u"Twin"_s,
                          u"Zebra"_s}));
    QVERIFY(list.at(8).path < list.at(9).path);
}

void GioAppCatalogTest::applications_icon_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("icon");

    QTest::addRow("a name in the theme") << u"Icon name"_s << u"org.example.Icon"_s;
    QTest::addRow("a name with an ending") << u"Zebra"_s << u"zebra"_s;
    QTest::addRow("a path") << u"Icon path"_s << u"/tmp/a b%20ü.png"_s;
    QTest::addRow("none") << u"Deep"_s << QString();
}

void GioAppCatalogTest::applications_icon()
{
    QFETCH(const QString, name);

    const auto found = application(name);

    QTEST(found.icon, "icon");
}

Application GioAppCatalogTest::application(const QString& name)
{
    const auto list = GioAppCatalog().applications();
    const auto found = std::ranges::find(list, name, &Application::name);
    return found == list.cend() ? Application{.name = u"not found"_s, .icon = u"not found"_s}
                                : *found;
}

QTEST_GUILESS_MAIN(GioAppCatalogTest)
#include "tst_gioappcatalog.moc"
