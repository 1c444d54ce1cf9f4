#include "desktop/desk/desk.h"
#include "desktop/desk/places.h"
#include "desktop/desk/recorder.h"

#include <QFile>
#include <QTest>

#include <filesystem>
#include <fstream>

using namespace Qt::StringLiterals;

namespace {

// Where a line of the menu is, once it has been opened at MenuCorner.
constexpr QPoint MenuCorner = places::MenuCorner;
constexpr int ShortcutsLine = 139;
constexpr int DataLine = 163;
constexpr QColor Popup{30, 27, 38};

/// The words before the program's name that give it this data folder: the home and bytes that are
/// no text.
QStringList inOddFolder()
{
    return {u"sh"_s, u"-c"_s, u"QUIB_DATA_DIR=\"$HOME/$(printf 'caf\\351')\" exec \"$0\" \"$@\""_s};
}

/// That folder, which only those who know bytes can take away in the end.
class OddFolder {
public:
    explicit OddFolder(const Desk& desk)
        : path(QFile::encodeName(desk.folder(u"caf"_s)).toStdString() + "\xe9")
    {
    }
    ~OddFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(path, error);
    }
    Q_DISABLE_COPY_MOVE(OddFolder)

    bool has(const char* name) const { return std::filesystem::exists(path / name); }
    QByteArray bytes() const { return QByteArray::fromStdString(path.native()); }

    const std::filesystem::path path;
};

/// Everything in the home whose name begins like the folder's.
std::size_t foldersLikeIt(const Desk& desk)
{
    std::size_t count = 0;
    const std::filesystem::path home(QFile::encodeName(desk.folder({})).toStdString());
    for (const auto& entry : std::filesystem::directory_iterator(home)) {
        count += entry.path().filename().native().starts_with("caf") ? 1U : 0U;
    }
    return count;
}

/// What the programs of the desktop were given, as bytes, whether as addresses or as paths.
QByteArrayList openedPaths(const Desk& desk)
{
    QFile file(desk.folder(u"record"_s));
    QByteArrayList paths;
    if (file.open(QIODevice::ReadOnly)) {
        for (const auto& line : file.readAll().trimmed().split('\n')) {
            paths << (line.startsWith("file://") ? QByteArray::fromPercentEncoding(line.mid(7))
                                                 : line);
        }
    }
    return paths;
}

void chooseInMenu(const Desk& desk, int line)
{
    desk.rightClick(MenuCorner);
    QTRY_COMPARE(desk.pixel({MenuCorner.x() + 180, line}), Popup);
    desk.click({MenuCorner.x() + 100, line});
}

} // namespace

/// The data folder's name is what the system has, also where it is no text.
class FolderNameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dataAndShortcuts_areInThatFolderAlone();
    void leftover_isRemovedThere();
    void secondStart_opensTheFirst();
    void menu_opensThatFolderAndItsFile();
};

void FolderNameTest::dataAndShortcuts_areInThatFolderAlone()
{
    Desk desk;
    const OddFolder folder(desk);
    const auto quib = desk.startQuib(inOddFolder());
    desk.openWithPointer();
    desk.showTab(3);
    desk.click(Desk::TaskField);
    desk.type(u"Au lait"_s);
    desk.key(u"Return"_s);

    QTRY_VERIFY(folder.has("data.json"));
    QVERIFY(folder.has("shortcuts.json"));
    QCOMPARE(foldersLikeIt(desk), 1U);
}

void FolderNameTest::leftover_isRemovedThere()
{
    constexpr auto Leftover = ".korvel-quib-2147483647-0123456789abcdef";
    Desk desk;
    const OddFolder folder(desk);
    std::filesystem::create_directory(folder.path);
    std::ofstream(folder.path / Leftover) << "half of it";
    QVERIFY(folder.has(Leftover));

    const auto quib = desk.startQuib(inOddFolder());

    QTRY_VERIFY(!folder.has(Leftover));
}

void FolderNameTest::secondStart_opensTheFirst()
{
    Desk desk;
    const OddFolder folder(desk);
    const auto first = desk.startQuib(inOddFolder());

    auto again = inOddFolder() << Desk::quib();
    const auto second = desk.start(again.takeFirst(), again);

    QVERIFY(second->waitForFinished());
    QVERIFY(desk.waitForExpanded(true));
}

void FolderNameTest::menu_opensThatFolderAndItsFile()
{
    Desk desk;
    const Recorder recorder(desk, {u"inode/directory"_s, u"text/plain"_s});
    const OddFolder folder(desk);
    const auto quib = desk.startQuib(inOddFolder());
    desk.openWithPointer();

    chooseInMenu(desk, DataLine);
    QTRY_COMPARE(openedPaths(desk), QByteArrayList{folder.bytes()});

    desk.openWithPointer();
    chooseInMenu(desk, ShortcutsLine);
    QTRY_COMPARE(openedPaths(desk),
                 (QByteArrayList{folder.bytes(), folder.bytes() + "/shortcuts.json"}));
}

QTEST_GUILESS_MAIN(FolderNameTest)
#include "tst_foldername.moc"
