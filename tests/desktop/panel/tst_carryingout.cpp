#include "desktop/desk/carrying.h"
#include "support/writefile.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

/// Files carried from the shelf to other programs, and between the shelf and a file manager.
class CarryingOutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void file_isTakenAsACopy();
    void missingFile_canNotBeTaken();
    void ownFile_isNotTakenAgain();
    void fileManager_givesAFile();
    void fileManager_takesAFile();
};

namespace {

constexpr QPoint FirstTile{800 - 350 + 22 + 56, 140};
constexpr QPoint SecondTile{800 - 350 + 22 + 56 + 120, 140};

/// Quib with files on its shelf, open on that tab.
Program startWithShelf(Desk& desk, const QStringList& paths)
{
    desk.writeData(workspaceWithShelf(paths));
    auto quib = desk.startQuib();
    desk.openWithPointer();
    desk.showTab(5);
    return quib;
}

Program startDropTarget(Desk& desk)
{
    auto target = desk.start(QStringLiteral(DROP_TARGET));
    [[maybe_unused]] const bool isSeen = QTest::qWaitFor(
        [&] {
            return desk.pixel(DropTargetPlace) != desk.pixel({20, 20});
        },
        10'000);
    return target;
}

/// By an icon theme of the desk's own.
void drawTextFilesIn(const Desk& desk, const QColor& color)
{
    writeFile(desk.folder(u".config/gtk-3.0/settings.ini"_s),
              "[Settings]\ngtk-icon-theme-name=Ours\n");
    writeFile(desk.folder(u".icons/Ours/index.theme"_s),
              "[Icon Theme]\nName=Ours\nDirectories=64x64\n[64x64]\nSize=64\n");
    QImage square(64, 64, QImage::Format_RGB32);
    square.fill(color);
    for (const auto* name : {"text-plain", "text-x-generic"}) {
        const auto icon = u".icons/Ours/64x64/%1.png"_s.arg(QLatin1String(name));
        square.save(writeFile(desk.folder(icon), {}));
    }
}

/// Null where there is none.
QPoint firstPixel(const QImage& picture, const QColor& color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                return {x, y};
            }
        }
    }
    return {};
}

/// A window of the file manager at the lower right that shows a folder.
struct FileManager {
    Desk& desk;
    Program program;

    FileManager(Desk& manager, const QString& folder)
        : desk(manager)
        , program(desk.start(u"thunar"_s, {folder}))
    {
        desk.start(u"xdotool"_s,
                   {u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--name"_s, u" - Thunar$"_s,
                    u"windowsize"_s, u"--sync"_s, u"500"_s, u"400"_s, u"windowmove"_s, u"--sync"_s,
                    u"1000"_s, u"450"_s})
            ->waitForFinished();
    }

    static constexpr QPoint FreePlace{1450, 790};

    /// Within what is of that colour.
    QPoint placeOf(const QColor& color) const
    {
        QPoint place;
        [[maybe_unused]] const bool isSeen = QTest::qWaitFor(
            [&] {
                place = firstPixel(desk.picture(), color);
                return !place.isNull();
            },
            20'000);
        return place + QPoint(10, 10);
    }
};

} // namespace

void CarryingOutTest::file_isTakenAsACopy()
{
    Desk desk;
    const auto file = writeFile(desk.folder(u"a b%20ü.txt"_s), "x");
    const auto quib = startWithShelf(desk, {file});
    const auto target = startDropTarget(desk);
    desk.click(Desk::Pin);

    for (int round = 1; round <= 2; ++round) {
        Output said(*target);
        QVERIFY(carryUntil(desk, FirstTile, DropTargetPlace, [&] {
            return said.count("took with action 1 " + file.toUtf8() + '\n') == 1;
        }));
    }
    QVERIFY(QFile::exists(file));
}

void CarryingOutTest::missingFile_canNotBeTaken()
{
    Desk desk;
    const auto file = writeFile(desk.folder(u"there.txt"_s), "x");
    const auto quib = startWithShelf(desk, {desk.folder(u"gone.txt"_s), file});
    const auto target = startDropTarget(desk);
    Output said(*target);

    desk.click(Desk::Pin);

    carry(desk, FirstTile, DropTargetPlace);
    carryOn(desk, DropTargetPlace);
    desk.button(u"up"_s);
    QVERIFY(carryUntil(desk, SecondTile, DropTargetPlace,
                       [&] { return said.count("there.txt") == 1; }));
    QCOMPARE(said.count("took"), 1);
}

void CarryingOutTest::ownFile_isNotTakenAgain()
{
    Desk desk;
    const auto file = writeFile(desk.folder(u"there.txt"_s), "x");
    const auto quib = startWithShelf(desk, {file});

    carry(desk, FirstTile, {800, 250});
    carryOn(desk, {700, 250});
    QVERIFY(!isLit(desk));
    desk.button(u"up"_s);
    desk.moveTo(Desk::FarAway);
    QVERIFY(desk.waitForExpanded(false));

    QCOMPARE(shelfOf(desk), QStringList{file});
}

void CarryingOutTest::fileManager_givesAFile()
{
    Desk desk;
    drawTextFilesIn(desk, Qt::green);
    const auto file = writeFile(desk.folder(u"files/a b.txt"_s), "x");
    const auto quib = desk.startQuib();
    const FileManager manager(desk, desk.folder(u"files"_s));

    QVERIFY(carryUntil(desk, manager.placeOf(Qt::green), Desk::Notch,
                       [&] { return shelfOf(desk) == QStringList{file}; }));
    QVERIFY(QFile::exists(file));
}

void CarryingOutTest::fileManager_takesAFile()
{
    Desk desk;
    const auto file = writeFile(desk.folder(u"a b.txt"_s), "what it holds");
    QDir().mkpath(desk.folder(u"files"_s));
    const FileManager manager(desk, desk.folder(u"files"_s));
    const auto quib = startWithShelf(desk, {file});

    desk.click(Desk::Pin);

    QFile copy(desk.folder(u"files/a b.txt"_s));
    QVERIFY(carryUntil(desk, FirstTile, FileManager::FreePlace, [&] { return copy.size() == 13; }));
    QVERIFY(QFile::exists(file));
}

QTEST_GUILESS_MAIN(CarryingOutTest)
#include "tst_carryingout.moc"
