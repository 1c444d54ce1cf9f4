#include "desktop/desk/carrying.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Files carried to the notch.
class FilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dragHeldOverTheNotch_opensTheShelf();
    void droppedFiles_lieOnTheShelfAsCopies();
    void addresses_thatAreFilesAreTaken_data();
    void addresses_thatAreFilesAreTaken();
    void whatIsNoFile_isRefused();
    void droppedOnTheOpenCard_leaveTheTab();
};

void FilesTest::dragHeldOverTheNotch_opensTheShelf()
{
    Desk desk;
    const auto quib = desk.startQuib();

    desk.button(u"down"_s);
    desk.moveTo(Desk::Notch);
    QVERIFY(desk.waitForExpanded(true));
    QTRY_COMPARE(desk.selectedTab(), 5);

    desk.moveTo(Desk::FarAway);
    QTest::qWait(300); // Nothing tells that nothing happens: held, it stays open.
    QVERIFY(desk.isExpanded());
    desk.button(u"up"_s);
    QVERIFY(desk.waitForExpanded(false));
}

void FilesTest::droppedFiles_lieOnTheShelfAsCopies()
{
    Desk desk;
    const QStringList paths{desk.folder(u"first.txt"_s), desk.folder(u"a b & ü%20'\"\n.txt"_s)};
    const auto quib = desk.startQuib();
    const auto source = startDragSource(desk, paths);

    carry(desk, DragSourcePlace, Desk::Notch);
    desk.waitForExpanded(true);
    carryOn(desk, {800, 150});
    QVERIFY(waitUntilLit(desk));
    desk.button(u"up"_s);
    const QStringList wanted{paths.at(1), paths.at(0)};
    QVERIFY(
        carryUntil(desk, DragSourcePlace, Desk::Notch, [&] { return shelfOf(desk) == wanted; }));

    Output said(*source);
    QTRY_VERIFY(said.count("ended with action 1") >= 1);
    QCOMPARE(desk.selectedTab(), 5);
}

void FilesTest::addresses_thatAreFilesAreTaken_data()
{
    QTest::addColumn<QString>("addresses");
    QTest::addColumn<QStringList>("shelf");

    QTest::addRow("files among others")
        << u"https://example.org/a\r\nfile:///a%20b\r\nmailto:me@example.org\r\n"_s
        << QStringList{u"/a b"_s};
    QTest::addRow("a name that is no text")
        << u"file:///caf%E9\r\nfile:///caf%C3%A9\r\n"_s << QStringList{u"/café"_s};
    QTest::addRow("the same twice, and a comment")
        << u"# two\r\nfile:///a\r\nfile:///a\r\n"_s << QStringList{u"/a"_s};
    QTest::addRow("a folder, without line ends of the internet")
        << u"file:///tmp/\nfile:///b\n"_s << QStringList{u"/b"_s, u"/tmp"_s};
}

void FilesTest::addresses_thatAreFilesAreTaken()
{
    QFETCH(QString, addresses);
    QFETCH(QStringList, shelf);
    Desk desk;
    const auto quib = desk.startQuib();
    const auto source = startDragSource(desk, {u"--addresses"_s, addresses});

    QVERIFY(carryUntil(desk, DragSourcePlace, Desk::Notch, [&] { return shelfOf(desk) == shelf; }));
}

void FilesTest::whatIsNoFile_isRefused()
{
    Desk desk;
    const auto quib = desk.startQuib();
    const auto source = startDragSource(desk, {u"--addresses"_s, u"https://example.org/a\r\n"_s});

    carry(desk, DragSourcePlace, Desk::Notch);
    desk.waitForExpanded(true);
    carryOn(desk, {800, 150});
    desk.button(u"up"_s);

    Output said(*source);
    QTRY_COMPARE(said.count("ended with action 0"), 1);
    QVERIFY(!isLit(desk));
    QVERIFY(desk.data().isEmpty()); // Nothing has been changed.
}

void FilesTest::droppedOnTheOpenCard_leaveTheTab()
{
    Desk desk;
    const auto quib = desk.startQuib();
    const auto source = startDragSource(desk, {u"/a.txt"_s});
    desk.openWithPointer();
    desk.showTab(3);
    desk.click(Desk::Pin);

    QVERIFY(carryUntil(desk, DragSourcePlace, {800, 200},
                       [&] { return shelfOf(desk) == QStringList{u"/a.txt"_s}; }));
    QCOMPARE(desk.selectedTab(), 3);
}

QTEST_GUILESS_MAIN(FilesTest)
#include "tst_files.moc"
