#include "desk.h"

#include <QFile>
#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;

/// Files carried to the notch.
class FilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dragHeldOverTheNotch_opensTheShelf();
    void droppedFiles_lieOnTheShelfAsCopies();
};

namespace {

/// Carries what the drag source offers to the notch, in steps as a hand would.
void carryToTheNotch(const Desk& desk)
{
    desk.moveTo({200, 650});
    desk.button(u"down"_s);
    desk.moveTo({230, 600});
    desk.moveTo({500, 300});
    desk.moveTo(Desk::Notch);
    desk.waitForExpanded(true);
}

} // namespace

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
    const QStringList paths{desk.folder(u"first.txt"_s), desk.folder(u"a b & ü.txt"_s)};
    const auto quib = desk.startQuib();
    const auto source = desk.start(Desk::dragSource(), paths);
    QTRY_VERIFY(desk.pixel({200, 650}) != desk.pixel({20, 20}));

    carryToTheNotch(desk);
    desk.moveTo({800, 150});
    desk.moveTo({802, 152});
    QTRY_COMPARE(desk.pixel({800, 289}).blue() > 60, true); // The line lights up.
    desk.button(u"up"_s);

    QTRY_COMPARE(desk.data().value("shelf"_L1).toArray().size(), 2);
    QStringList shelf;
    for (const auto& item : desk.data().value("shelf"_L1).toArray()) {
        shelf << item["path"_L1].toString();
    }
    QCOMPARE(shelf, (QStringList{paths.at(1), paths.at(0)}));
    Output said(*source);
    QTRY_COMPARE(said.count("ended with action 1"), 1);
}

QTEST_GUILESS_MAIN(FilesTest)
#include "tst_files.moc"
