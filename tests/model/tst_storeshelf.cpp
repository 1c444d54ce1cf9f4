#include "support/storefixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QList<QUrl> files(const QStringList& paths)
{
    QList<QUrl> urls;
    for (const auto& path : paths) {
        urls << QUrl::fromLocalFile(path);
    }
    return urls;
}

QStringList pathsOf(const QList<quib::ShelfItem>& shelf)
{
    QStringList paths;
    for (const auto& item : shelf) {
        paths << item.path;
    }
    return paths;
}

} // namespace

class StoreShelfTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addToShelf_severalFiles_leavesTheLastInFront();
    void addToShelf_sameFileTwice_addsItOnce();
    void addToShelf_fileThatIsThere_saysNothing();
    void addToShelf_otherLetterCase_isAnotherFile();
    void addToShelf_folderWithSlash_isTheFolder();
    void addToShelf_noFiles_saysNothing_data();
    void addToShelf_noFiles_saysNothing();
    void removeFromShelf_leavesTheFileItself();
    void removeFromShelf_unknownId_saysNothing();
    void clearShelf_leavesTheFilesThemselves();
    void clearShelf_nothingOnIt_saysNothing();
};

void StoreShelfTest::addToShelf_severalFiles_leavesTheLastInFront()
{
    StoreFixture f;
    f.startWith({.shelf = {{.id = idOf(1), .path = u"/old"_s}}});

    f.store.addToShelf(files({u"/a"_s, u"/b"_s, u"/c"_s}));

    QCOMPARE(pathsOf(f.store.data().shelf), (QStringList{u"/c"_s, u"/b"_s, u"/a"_s, u"/old"_s}));
    QCOMPARE(f.announced(), u"shelf"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreShelfTest::addToShelf_sameFileTwice_addsItOnce()
{
    StoreFixture f;

    f.store.addToShelf(files({u"/a b%20#?.png"_s, u"/a b%20#?.png"_s}));

    QCOMPARE(pathsOf(f.store.data().shelf), QStringList{u"/a b%20#?.png"_s});
}

void StoreShelfTest::addToShelf_fileThatIsThere_saysNothing()
{
    StoreFixture f;
    f.startWith({.shelf = {{.id = idOf(1), .path = u"/a"_s}}});

    f.store.addToShelf(files({u"/a"_s}));

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreShelfTest::addToShelf_otherLetterCase_isAnotherFile()
{
    StoreFixture f;

    f.store.addToShelf(files({u"/a"_s, u"/A"_s}));

    QCOMPARE(pathsOf(f.store.data().shelf), (QStringList{u"/A"_s, u"/a"_s}));
}

void StoreShelfTest::addToShelf_folderWithSlash_isTheFolder()
{
    StoreFixture f;

    f.store.addToShelf(files({u"/folder/"_s, u"/folder"_s}));

    QCOMPARE(pathsOf(f.store.data().shelf), QStringList{u"/folder"_s});
}

void StoreShelfTest::addToShelf_noFiles_saysNothing_data()
{
    QTest::addColumn<QList<QUrl>>("urls");

    QTest::addRow("nothing") << QList<QUrl>{};
    QTest::addRow("an empty address") << QList{QUrl()};
    QTest::addRow("a name that is no text") << QList{QUrl::fromEncoded("file:///caf%E9")};
    QTest::addRow("an address of the web") << QList{QUrl(u"https://example.org/a"_s)};
}

void StoreShelfTest::addToShelf_noFiles_saysNothing()
{
    QFETCH(QList<QUrl>, urls);
    StoreFixture f;

    f.store.addToShelf(urls);

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreShelfTest::removeFromShelf_leavesTheFileItself()
{
    StoreFixture f;
    f.folder.put("still here");
    f.store.addToShelf(files({f.folder.file()}));

    f.store.removeFromShelf(f.store.data().shelf.front().id);

    QVERIFY(f.store.data().shelf.isEmpty());
    QVERIFY(QFile::exists(f.folder.file()));
    QCOMPARE(f.announced(), u"shelf shelf"_s);
    QCOMPARE(f.hands.scheduled, 2);
}

void StoreShelfTest::removeFromShelf_unknownId_saysNothing()
{
    StoreFixture f;
    f.startWith({.shelf = {{.id = idOf(1), .path = u"/a"_s}}});

    f.store.removeFromShelf(idOf(2));

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreShelfTest::clearShelf_leavesTheFilesThemselves()
{
    StoreFixture f;
    f.folder.put("still here");
    f.store.addToShelf(files({f.folder.file(), u"/a"_s}));

    f.store.clearShelf();

    QVERIFY(f.store.data().shelf.isEmpty());
    QVERIFY(QFile::exists(f.folder.file()));
    QCOMPARE(f.announced(), u"shelf shelf"_s);
    QCOMPARE(f.hands.scheduled, 2);
}

void StoreShelfTest::clearShelf_nothingOnIt_saysNothing()
{
    StoreFixture f;

    f.store.clearShelf();

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

QTEST_GUILESS_MAIN(StoreShelfTest)
#include "tst_storeshelf.moc"
