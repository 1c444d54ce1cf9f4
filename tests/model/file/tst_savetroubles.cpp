#include "model/file/datafile.h"
#include "model/store.h"
#include "support/bytesof.h"
#include "support/smalldisk.h"
#include "support/writefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <iostream>
#include <memory>
#include <string>
#include <tuple>

#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

// What comes in the way of a program that saves: it goes on, and saves all once that is over. The
// program is this test itself, in a life as another one and as an ordinary user: see main().

namespace {

constexpr auto SaveAsTold = "--save-as-told"_L1;
constexpr auto Limit = "limit "_L1;
constexpr uid_t Nobody = 65534;

/// Of the files that this process may write, in bytes; as a quota it can be lifted.
void limitFiles(rlim_t size)
{
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(size, limit.rlim_max);
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

/// Each line becomes the notes, and is saved. One that begins with Limit limits its files instead.
int saveAsTold()
{
    if (::geteuid() == 0
        && (::setgroups(0, nullptr) != 0 || ::setgid(Nobody) != 0 || ::setuid(Nobody) != 0)) {
        return 1;
    }
    std::signal(SIGXFSZ, SIG_IGN);
    quib::Store store;
    for (std::string line; std::getline(std::cin, line);) {
        const auto text = QString::fromStdString(line);
        if (text.startsWith(Limit)) {
            limitFiles(text.sliced(Limit.size()).toULongLong());
        } else {
            store.setNotes(text);
            store.saveNow();
        }
        std::cout << "done" << std::endl;
    }
    return 0;
}

/// A data folder with something of the user's in it, and a program that saves there.
class Place {
public:
    explicit Place(const QString& folder)
        : m_folder(folder)
    {
        QDir().mkpath(folder);
        writeFile(path(u"mine.txt"_s), "mine");
        if (::geteuid() == 0) {
            std::ignore = ::chown(QFile::encodeName(folder).constData(), Nobody, Nobody);
        }
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QUIB_DATA_DIR"_s, folder);
        m_program.setProcessEnvironment(environment);
        m_program.start(QCoreApplication::applicationFilePath(), {SaveAsTold});
    }

    ~Place()
    {
        m_program.closeWriteChannel();
        m_program.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Place)

    /// Whether it has tried to, and lives.
    bool save(const QByteArray& notes) { return tell(notes); }

    /// In bytes, of any file that the program writes.
    bool setQuota(rlim_t size) { return tell("limit " + QByteArray::number(quint64(size))); }

    /// None where the file is not whole.
    QString notes() const
    {
        const auto data = quib::decodeQuibData(bytesOf(path(u"data.json"_s)));
        return data ? data->notes : u"none"_s;
    }

    QStringList names() const
    {
        return QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QString path(const QString& name) const { return m_folder + u'/' + name; }
    QString folder() const { return m_folder; }

private:
    bool tell(const QByteArray& line)
    {
        m_program.write(line + '\n');
        return m_program.waitForReadyRead() && m_program.readLine() == "done\n";
    }

    QString m_folder;
    QProcess m_program;
};

bool setMode(const QString& path, mode_t mode)
{
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

} // namespace

class SaveTroublesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readOnlyFolder();
    void quota();
    void folderInTheFilesPlace();
    void fileOfAnother();
    void linkToWhereNothingMayBeWritten();
    void fullDisk();
    void readOnlyDisk();

private:
    QString folder() const { return m_dir->filePath(u"data"_s); }
    static bool fill(const QString& path);
    /// Saves before, during and after; the file in the place is not touched in between.
    template <typename Bring, typename Lift>
    static void goThrough(Place& place, Bring bring, Lift lift);

    std::unique_ptr<QTemporaryDir> m_dir;
};

template <typename Bring, typename Lift>
void SaveTroublesTest::goThrough(Place& place, Bring bring, Lift lift)
{
    QVERIFY(place.save("before"));
    QCOMPARE(place.notes(), u"before"_s);

    QVERIFY(bring());
    const auto names = place.names();
    QVERIFY(place.save("lost for now, if it were not kept until it can be saved"));
    QCOMPARE(place.names(), names);
    QVERIFY(place.notes() == u"before"_s || place.notes() == u"none"_s);
    QVERIFY(lift());

    QVERIFY(place.save("after"));
    QCOMPARE(place.notes(), u"after"_s);
    QCOMPARE(place.names(), (QStringList{u"data.json"_s, u"mine.txt"_s}));
    QCOMPARE(bytesOf(place.path(u"mine.txt"_s)), "mine"_ba);
}

void SaveTroublesTest::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(setMode(m_dir->path(), 0755));
}

void SaveTroublesTest::readOnlyFolder()
{
    Place place(folder());

    goThrough(
        place, [&] { return setMode(place.folder(), 0500); },
        [&] { return setMode(place.folder(), 0700); });
}

void SaveTroublesTest::quota()
{
    Place place(folder());

    goThrough(
        place, [&] { return place.setQuota(20); }, [&] { return place.setQuota(RLIM_INFINITY); });
}

void SaveTroublesTest::folderInTheFilesPlace()
{
    Place place(folder());
    const auto file = place.path(u"data.json"_s);

    goThrough(
        place,
        [&] {
            return QFile::remove(file) && QDir().mkpath(file) && setMode(file, 0777)
                && !writeFile(file + u"/inside"_s, "mine too").isEmpty();
        },
        [&] {
            return bytesOf(file + u"/inside"_s) == "mine too" && QDir(file).removeRecursively();
        });
}

void SaveTroublesTest::fileOfAnother()
{
    if (::geteuid() != 0) {
        QSKIP("only root can give a file to another user");
    }
    Place place(folder());
    const auto file = QFile::encodeName(place.path(u"data.json"_s));

    goThrough(
        place, [&] { return ::chown(file.constData(), 0, 0) == 0; },
        [&] { return ::chown(file.constData(), Nobody, Nobody) == 0; });
}

void SaveTroublesTest::linkToWhereNothingMayBeWritten()
{
    Place place(folder());
    const auto elsewhere = m_dir->filePath(u"elsewhere"_s);
    const auto file = place.path(u"data.json"_s);
    QVERIFY(place.save("first"));
    QVERIFY(QDir().mkpath(elsewhere));
    QVERIFY(QFile::rename(file, elsewhere + u"/data.json"_s));
    QVERIFY(QFile::link(elsewhere + u"/data.json"_s, file));
    QVERIFY(setMode(elsewhere, 0777));

    goThrough(
        place, [&] { return setMode(elsewhere, 0555); }, [&] { return setMode(elsewhere, 0777); });

    QVERIFY(QFileInfo(file).isSymLink());
    QCOMPARE(QDir(elsewhere).entryList(QDir::Files | QDir::Hidden), QStringList{u"data.json"_s});
}

void SaveTroublesTest::fullDisk()
{
    const SmallDisk disk;
    if (!disk.isMounted()) {
        QSKIP(disk.hindrance().constData()); // As for a user and in some containers.
    }
    Place place(disk.path(u"data"_s));
    const auto filler = disk.path(u"filler"_s);

    goThrough(
        place, [&] { return fill(filler); }, [&] { return QFile::remove(filler); });
}

bool SaveTroublesTest::fill(const QString& path)
{
    QFile file(path);
    const QByteArray page(4096, 'x');
    const bool isOpen = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    while (isOpen && file.write(page) == page.size()) { }
    return isOpen;
}

void SaveTroublesTest::readOnlyDisk()
{
    const SmallDisk disk;
    if (!disk.isMounted()) {
        QSKIP(disk.hindrance().constData()); // As for a user and in some containers.
    }
    Place place(disk.path(u"data"_s));

    goThrough(
        place, [&] { return disk.setReadOnly(true); }, [&] { return disk.setReadOnly(false); });
}

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(SaveAsTold)) {
        return saveAsTold();
    }
    SaveTroublesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_savetroubles.moc"
