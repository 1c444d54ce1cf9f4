#include "support/panel/shownpanel.h"

#include "views/files/filedrag.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using quib::Tab;

/// What the panel makes of a drag over it, as the window system tells it.
class DroppingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void droppedFiles_areAddedOneCallEach();
    void dropOnTheCollapsedNotch_opensTheShelf();
    void dropOnTheOpenCard_leavesTheTab();
    void everyStep_isAnsweredWithACopy_data();
    void everyStep_isAnsweredWithACopy();
    void whatIsNoFile_isRefused_data();
    void whatIsNoFile_isRefused();
    void whatMayOnlyBeMoved_isRefused();
    void ownFile_isRefused();
    void drag_lightsTheNotchUpWhileItIsThere();
    void manyFiles_areAllAdded();
};

namespace {

/// Something that is carried over the panel.
struct Drag {
    ShownPanel& panel;
    QMimeData contents;
    Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    QPoint place{380, 10};

    Drag(ShownPanel& over, const QByteArray& addresses)
        : panel(over)
    {
        contents.setData(u"text/uri-list"_s, addresses);
    }

    /// The action that the source is told; none where it is refused.
    template <typename Step>
    Qt::DropAction take()
    {
        Step step(place, offered, &contents, Qt::LeftButton, {});
        step.ignore();
        QCoreApplication::sendEvent(panel.window.get(), &step);
        return step.isAccepted() ? step.dropAction() : Qt::IgnoreAction;
    }
    Qt::DropAction enter() { return take<QDragEnterEvent>(); }
    Qt::DropAction move() { return take<QDragMoveEvent>(); }
    Qt::DropAction drop() { return take<QDropEvent>(); }
    void leave() const
    {
        QDragLeaveEvent left;
        QCoreApplication::sendEvent(panel.window.get(), &left);
    }
};

QStringList shelfOf(const ShownPanel& panel)
{
    QStringList paths;
    for (const auto& item : panel.store().data().shelf) {
        paths << item.path;
    }
    return paths;
}

} // namespace

void DroppingTest::droppedFiles_areAddedOneCallEach()
{
    ShownPanel panel;
    const QSignalSpy changes(&panel.store(), &quib::Store::shelfChanged);
    Drag drag(panel, "file:///tmp/first\r\nhttps://ex.org\r\nfile:///tmp/second\r\n");

    drag.enter();
    drag.drop();

    QCOMPARE(changes.count(), 2);
    QCOMPARE(shelfOf(panel), (QStringList{u"/tmp/second"_s, u"/tmp/first"_s}));
}

void DroppingTest::dropOnTheCollapsedNotch_opensTheShelf()
{
    ShownPanel panel;
    Drag drag(panel, "file:///a");

    drag.enter();
    drag.drop();

    QCOMPARE(shelfOf(panel), QStringList{u"/a"_s});
    QCOMPARE(panel.commands.asked, QStringList{u"expand to the shelf"_s});
}

void DroppingTest::dropOnTheOpenCard_leavesTheTab()
{
    ShownPanel panel;
    panel.open(Tab::Tasks);
    Drag drag(panel, "file:///a");

    drag.enter();
    drag.drop();

    QCOMPARE(shelfOf(panel), QStringList{u"/a"_s});
    QCOMPARE(panel.commands.asked, QStringList());
    QCOMPARE(panel.model.tab(), Tab::Tasks);
}

void DroppingTest::everyStep_isAnsweredWithACopy_data()
{
    QTest::addColumn<Qt::DropActions>("offered");

    QTest::addRow("anything") << Qt::DropActions(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction);
    QTest::addRow("rather moved") << Qt::DropActions(Qt::MoveAction | Qt::CopyAction);
}

void DroppingTest::everyStep_isAnsweredWithACopy()
{
    QFETCH(Qt::DropActions, offered);
    ShownPanel panel;
    Drag drag(panel, "file:///a");
    drag.offered = offered;

    QCOMPARE(drag.enter(), Qt::CopyAction);
    drag.place = {385, 12};
    QCOMPARE(drag.move(), Qt::CopyAction);
    QCOMPARE(drag.move(), Qt::CopyAction);
    QCOMPARE(drag.drop(), Qt::CopyAction);
}

void DroppingTest::whatIsNoFile_isRefused_data()
{
    QTest::addColumn<QByteArray>("addresses");

    QTest::addRow("an address of the web") << "https://example.org/a"_ba;
    QTest::addRow("nothing") << ""_ba;
    QTest::addRow("no address") << "\0\0\xff\xfe"_ba;
}

void DroppingTest::whatIsNoFile_isRefused()
{
    QFETCH(QByteArray, addresses);
    ShownPanel panel;
    Drag drag(panel, addresses);

    QCOMPARE(drag.enter(), Qt::IgnoreAction);
    QVERIFY(!panel.model.isDropTargeted());
    drag.drop();

    QCOMPARE(shelfOf(panel), QStringList());
    QCOMPARE(panel.commands.asked, QStringList());
}

void DroppingTest::whatMayOnlyBeMoved_isRefused()
{
    ShownPanel panel;
    Drag drag(panel, "file:///a");
    drag.offered = Qt::MoveAction; // Its source would delete it.

    QCOMPARE(drag.enter(), Qt::IgnoreAction);
    QVERIFY(!panel.model.isDropTargeted());
}

void DroppingTest::ownFile_isRefused()
{
    ShownPanel panel;
    Drag drag(panel, "file:///a");
    drag.contents.setData(quib::FileDrag::ownFormat(), {});

    QCOMPARE(drag.enter(), Qt::IgnoreAction);
    QVERIFY(!panel.model.isDropTargeted());
}

void DroppingTest::drag_lightsTheNotchUpWhileItIsThere()
{
    ShownPanel panel;
    Drag drag(panel, "file:///a");

    drag.enter();
    QVERIFY(panel.model.isDropTargeted());
    drag.leave();
    QVERIFY(!panel.model.isDropTargeted());

    drag.enter();
    drag.drop();
    QVERIFY(!panel.model.isDropTargeted());
}

void DroppingTest::manyFiles_areAllAdded()
{
    ShownPanel panel;
    panel.open(Tab::Shelf);
    QByteArray addresses;
    for (int number = 0; number < 2000; ++number) {
        addresses += "file:///picture%20" + QByteArray::number(number) + "\r\n";
    }
    Drag drag(panel, addresses);

    drag.enter();
    drag.drop();

    QCOMPARE(shelfOf(panel).size(), 2000);
    QCOMPARE(shelfOf(panel).front(), u"/picture 1999"_s);
}

QTEST_MAIN(DroppingTest)
#include "tst_dropping.moc"
