#include "model/file/datafolder.h"
#include "model/store.h"
#include "model/texts/nativepath.h"
#include "support/modeof.h"
#include "support/umask.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using quib::dataFile;
using quib::dataFolder;
using quib::nativePath;

namespace {

/// Environment and current folder of a test, put back when it ends.
class World {
public:
    World()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        qunsetenv("QUIB_DATA_DIR");
        QDir::setCurrent(home.path());
    }
    ~World()
    {
        QDir::setCurrent(m_before);
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("QUIB_DATA_DIR");
    }
    Q_DISABLE_COPY_MOVE(World)

    QTemporaryDir home;

private:
    QString m_before = QDir::currentPath();
};

} // namespace

class DataFolderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutChoice_isInTheDataHome();
    void chosenFolder_isMadeWithItsParents();
    void chosenFolder_leavesTheDataHomeAlone();
    void chosenFolder_isTakenAsItStands_data();
    void chosenFolder_isTakenAsItStands();
    void bytesThatAreNoText_areAName();
    void newFolders_areTheUsersAlone_data();
    void newFolders_areTheUsersAlone();
    void folderThatIsThere_keepsItsMode();
    void folder_isMadeAgainWhenAskedFor();
    void fileInTheWay_isNoReasonToFail();
    void storesFolder_isTheSame();
};

void DataFolderTest::withoutChoice_isInTheDataHome()
{
    const World world;

    QCOMPARE(dataFolder(), nativePath(world.home.filePath(u"KorvelQuib"_s)));
    QVERIFY(QDir(world.home.filePath(u"KorvelQuib"_s)).exists());
    QCOMPARE(dataFile(), nativePath(world.home.filePath(u"KorvelQuib/data.json"_s)));
}

void DataFolderTest::chosenFolder_isMadeWithItsParents()
{
    const World world;
    const auto path = world.home.filePath(u"a/b ü/c"_s);
    qputenv("QUIB_DATA_DIR", QFile::encodeName(path));

    QCOMPARE(dataFolder(), nativePath(path));
    QVERIFY(QDir(path).exists());
}

void DataFolderTest::chosenFolder_leavesTheDataHomeAlone()
{
    const World world;
    const QTemporaryDir chosen;
    qputenv("QUIB_DATA_DIR", QFile::encodeName(chosen.path()));

    dataFolder();

    QVERIFY(QDir(world.home.path()).isEmpty());
}

void DataFolderTest::chosenFolder_isTakenAsItStands_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("file"); // Below the current folder.

    QTest::addRow("relative") << "some/where"_ba << u"some/where"_s << u"some/where/data.json"_s;
    QTest::addRow("with a slash behind") << "some/"_ba << u"some/"_s << u"some/data.json"_s;
    QTest::addRow("a tilde is a name") << "~"_ba << u"~"_s << u"~/data.json"_s;
    QTest::addRow("a blank is a name") << " "_ba << u" "_s << u" /data.json"_s;
    QTest::addRow("empty") << ""_ba << u"."_s << u"data.json"_s;
}

void DataFolderTest::chosenFolder_isTakenAsItStands()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, folder);
    QFETCH(QString, file);
    const World world;
    qputenv("QUIB_DATA_DIR", value);

    QCOMPARE(dataFolder(), nativePath(folder));
    QCOMPARE(QDir::cleanPath(QDir().absoluteFilePath(QFile::decodeName(dataFile().c_str()))),
             QDir().absoluteFilePath(file));
    QVERIFY(std::filesystem::is_directory(dataFolder()));
}

void DataFolderTest::bytesThatAreNoText_areAName()
{
    const World world;
    const auto name = "caf\xe9 \xff\xfe"_ba;
    qputenv("QUIB_DATA_DIR", name);

    QCOMPARE(dataFolder().native(), name.toStdString());
    QCOMPARE(dataFile().native(), (name + "/data.json").toStdString());

    struct stat facts { };
    QCOMPARE(::stat(name.constData(), &facts), 0);
    QVERIFY(S_ISDIR(facts.st_mode));
    const std::filesystem::directory_iterator found(".");
    QCOMPARE(std::distance(begin(found), end(found)), 1);
    QCOMPARE(::rmdir(name.constData()), 0); // Which Qt could not.
}

void DataFolderTest::newFolders_areTheUsersAlone_data()
{
    QTest::addColumn<int>("umask");

    for (const auto umask : {0, 022, 077, 0777}) {
        QTest::addRow("umask %o", static_cast<unsigned>(umask)) << umask;
    }
}

void DataFolderTest::newFolders_areTheUsersAlone()
{
    QFETCH(int, umask);
    const World world;
    qputenv("QUIB_DATA_DIR", "some/where");
    {
        const Umask any(static_cast<mode_t>(umask));
        dataFolder();
    }

    QCOMPARE(modeOf(u"some"_s), "0700"_ba);
    QCOMPARE(modeOf(u"some/where"_s), "0700"_ba);
}

void DataFolderTest::folderThatIsThere_keepsItsMode()
{
    const World world;
    QCOMPARE(::mkdir("shared", 0700), 0);
    QCOMPARE(::chmod("shared", 0775), 0);
    qputenv("QUIB_DATA_DIR", "shared");

    dataFolder();

    QCOMPARE(modeOf(u"shared"_s), "0775"_ba);
}

void DataFolderTest::folder_isMadeAgainWhenAskedFor()
{
    const World world;
    QVERIFY(std::filesystem::remove_all(dataFolder()) > 0);

    QVERIFY(std::filesystem::is_directory(dataFolder()));
}

void DataFolderTest::fileInTheWay_isNoReasonToFail()
{
    const World world;
    const auto path = world.home.filePath(u"KorvelQuib"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));

    QCOMPARE(dataFolder(), nativePath(path));
    QVERIFY(file.exists());
}

void DataFolderTest::storesFolder_isTheSame()
{
    const World world;

    QCOMPARE(quib::Store::folder(), dataFolder());
}

QTEST_GUILESS_MAIN(DataFolderTest)
#include "tst_datafolder.moc"
