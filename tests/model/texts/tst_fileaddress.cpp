#include "model/texts/fileaddress.h"

#include <QSysInfo>
#include <QTest>

using namespace Qt::StringLiterals;

/// Which file an address means, as other programs write addresses.
class FileAddressTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void path_ofAFile_data();
    void path_ofAFile();
    void path_ofWhatIsNoFile_data();
    void path_ofWhatIsNoFile();
};

void FileAddressTest::path_ofAFile_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<QString>("path");

    QTest::addRow("plain") << "file:///home/me/a.txt"_ba << u"/home/me/a.txt"_s;
    QTest::addRow("blanks, percent signs, quotes")
        << "file:///a%20b%25%22'%23%3F"_ba << u"/a b%\"'#?"_s;
    QTest::addRow("a line break") << "file:///a%0Ab"_ba << u"/a\nb"_s;
    QTest::addRow("a percent sign that means itself") << "file:///100%25.txt"_ba << u"/100%.txt"_s;
    QTest::addRow("letters beyond ASCII, encoded") << "file:///%C3%BC"_ba << u"/ü"_s;
    QTest::addRow("letters beyond ASCII, as they are") << "file:///ü"_ba << u"/ü"_s;
    QTest::addRow("a character that stands for lost ones")
        << "file:///%EF%BF%BD"_ba << u"/\uFFFD"_s;
    QTest::addRow("a byte order mark in a name") << "file:///%EF%BB%BFa"_ba << u"/\uFEFFa"_s;
    QTest::addRow("a folder") << "file:///folder/"_ba << u"/folder"_s;
    QTest::addRow("the root") << "file:///"_ba << u"/"_s;
    QTest::addRow("by the name of every host") << "file://localhost/a"_ba << u"/a"_s;
    QTest::addRow("by the name of this host")
        << "file://" + QSysInfo::machineHostName().toLatin1() + "/a" << u"/a"_s;
    QTest::addRow("one slash") << "file:/a"_ba << u"/a"_s;
}

void FileAddressTest::path_ofAFile()
{
    QFETCH(QByteArray, address);

    QTEST(quib::pathOfFile(QUrl::fromEncoded(address)), "path");
}

void FileAddressTest::path_ofWhatIsNoFile_data()
{
    QTest::addColumn<QByteArray>("address");

    QTest::addRow("nothing") << QByteArray();
    QTest::addRow("an address of the web") << "https://example.org/a"_ba;
    QTest::addRow("a file of another host") << "file://example.org/a"_ba;
    QTest::addRow("a name in an old encoding") << "file:///caf%E9.txt"_ba;
    QTest::addRow("half a character") << "file:///a%C3"_ba;
    QTest::addRow("a NUL") << "file:///a%00b"_ba;
    QTest::addRow("no full path") << "file:a"_ba;
}

void FileAddressTest::path_ofWhatIsNoFile()
{
    QFETCH(QByteArray, address);

    QCOMPARE(quib::pathOfFile(QUrl::fromEncoded(address)), QString());
}

QTEST_GUILESS_MAIN(FileAddressTest)
#include "tst_fileaddress.moc"
