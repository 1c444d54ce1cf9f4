#include "platform/linux/gioappcatalog.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quib;

class GioAppCatalogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void applicationNamed_data();
    void applicationNamed();
    void applicationNamed_userEntryHidesTheSystems();

private:
    QString install(const QString& folder, const QString& id, const QString& lines);

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
}

QString GioAppCatalogTest::install(const QString& folder, const QString& id, const QString& lines)
{
    auto path = m_folder.filePath(folder + u"/applications/"_s + id + u".desktop"_s);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write("[Desktop Entry]\nType=Application\nExec=true\n" + lines.toUtf8());
    }
    return path;
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

QTEST_GUILESS_MAIN(GioAppCatalogTest)
#include "tst_gioappcatalog.moc"
