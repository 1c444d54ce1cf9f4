#include "model/file/leftovers.h"
#include "model/file/temporaryfile.h"
#include "model/file/temporaryname.h"
#include "model/texts/nativepath.h"
#include "support/writefile.h"

#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using quib::nativePath;

namespace {

constexpr auto Gone = "2147483647"_L1; // No system has processes of so high a number.
constexpr auto Letters = "0123456789abcdef"_L1;

QString leftoverOf(const QString& process)
{
    return ".korvel-quib-"_L1 + process + u'-' + Letters;
}

/// A folder around a data file that need not exist.
class Folder {
public:
    QString path(const QString& name) const { return m_dir.filePath(name); }

    QString put(const QString& name) const { return writeFile(path(name), "x"); }

    void removeLeftovers() const { quib::removeLeftovers(nativePath(path(u"data.json"_s))); }

    QStringList names() const
    {
        return QDir(m_dir.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_dir;
};

} // namespace

class LeftoversTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leftoverOfAProcessThatIsGone_isRemoved();
    void whatWeDidNotName_stays_data();
    void whatWeDidNotName_stays();
    void leftoverOfAProcessThatLives_stays_data();
    void leftoverOfAProcessThatLives_stays();
    void leftoverOfOneThatHadOurNumber_isRemoved();
    void lockedLeftover_stays();
    void saveUnderWay_stays();
    void linksFoldersAndPipes_stay();
    void filesOfOthers_stay();
    void behindALink_areBesideTheTarget();
    void missingFolder_isNoReasonToFail();
    void newNames_areOurs();
};

void LeftoversTest::leftoverOfAProcessThatIsGone_isRemoved()
{
    const Folder folder;
    folder.put(u"data.json"_s);
    folder.put(leftoverOf(Gone));

    folder.removeLeftovers();

    QCOMPARE(folder.names(), QStringList{u"data.json"_s});
}

void LeftoversTest::whatWeDidNotName_stays_data()
{
    QTest::addColumn<QString>("name");

    for (const auto* name : {"data.json",
                             "data.json.MyCopy",
                             "data.json.BackUp",
                             "data.json.OldOne",
                             "data.json.kQzPwe",
                             "data.json~",
                             ".data.json.swp",
                             ".korvel-quib",
                             ".korvel-quib-",
                             ".korvel-quib-2147483647",
                             ".korvel-quib-2147483647-",
                             ".korvel-quib--0123456789abcdef",
                             ".korvel-quib-x-0123456789abcdef",
                             ".korvel-quib-02147483647-0123456789abcdef",
                             ".korvel-quib--2147483647-0123456789abcdef",
                             ".korvel-quib-0-0123456789abcdef",
                             ".korvel-quib-99999999999-0123456789abcdef",
                             ".korvel-quib-+9-0123456789abcdef",
                             ".korvel-quib-2147483647-0123456789abcde",
                             ".korvel-quib-2147483647-0123456789abcdef0",
                             ".korvel-quib-2147483647-0123456789ABCDEF",
                             ".korvel-quib-2147483647-0123456789abcdeg",
                             ".korvel-quib-2147483647_0123456789abcdef",
                             ".korvel-quib-2147483647-0123456789abcdef~",
                             "korvel-quib-2147483647-0123456789abcdef",
                             "a.korvel-quib-2147483647-0123456789abcdef",
                             ".Korvel-quib-2147483647-0123456789abcdef"}) {
        QTest::addRow("%s", name) << QString::fromLatin1(name);
    }
}

void LeftoversTest::whatWeDidNotName_stays()
{
    QFETCH(QString, name);
    const Folder folder;
    folder.put(name);

    folder.removeLeftovers();

    QCOMPARE(folder.names(), QStringList{name});
}

void LeftoversTest::leftoverOfAProcessThatLives_stays_data()
{
    QTest::addColumn<QString>("process");

    QTest::addRow("of this user") << QString::number(::getppid());
    QTest::addRow("of whomever") << u"1"_s;
}

void LeftoversTest::leftoverOfAProcessThatLives_stays()
{
    QFETCH(QString, process);
    const Folder folder;
    folder.put(leftoverOf(process));

    folder.removeLeftovers();

    QCOMPARE(folder.names(), QStringList{leftoverOf(process)});
}

void LeftoversTest::leftoverOfOneThatHadOurNumber_isRemoved()
{
    const Folder folder;
    folder.put(leftoverOf(QString::number(::getpid())));

    folder.removeLeftovers();

    QCOMPARE(folder.names(), QStringList());
}

void LeftoversTest::lockedLeftover_stays()
{
    const Folder folder;
    const auto path = folder.put(leftoverOf(Gone)); // As one of another container may be called.
    const int file = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC);
    QCOMPARE(::flock(file, LOCK_EX | LOCK_NB), 0);

    folder.removeLeftovers();
    QVERIFY(QFile::exists(path));

    ::close(file);
    folder.removeLeftovers();
    QVERIFY(!QFile::exists(path));
}

void LeftoversTest::saveUnderWay_stays()
{
    const Folder folder;
    {
        const quib::TemporaryFile file(nativePath(folder.path({})), 0600);
        QVERIFY(file.write("half of it"));

        folder.removeLeftovers();
        QCOMPARE(folder.names().size(), 1);
    }
    QCOMPARE(folder.names(), QStringList());
}

void LeftoversTest::linksFoldersAndPipes_stay()
{
    const Folder folder;
    const auto name = [](int number) { return leftoverOf(QString::number(2147483640 + number)); };
    folder.put(u"precious"_s);
    QVERIFY(QFile::link(folder.path(u"precious"_s), folder.path(name(1))));
    QVERIFY(QDir().mkpath(folder.path(name(2))));
    QCOMPARE(::mkfifo(QFile::encodeName(folder.path(name(3))).constData(), 0600), 0);
    const auto before = folder.names();

    folder.removeLeftovers();

    QCOMPARE(folder.names(), before);
}

void LeftoversTest::filesOfOthers_stay()
{
    const Folder folder;
    const auto path = folder.put(leftoverOf(Gone));
    if (::chown(QFile::encodeName(path).constData(), 1, 1) != 0) {
        QSKIP(qPrintable(u"no file can be given away here: "_s + qt_error_string()));
    }

    folder.removeLeftovers();

    QVERIFY(QFile::exists(path));
}

void LeftoversTest::behindALink_areBesideTheTarget()
{
    const Folder folder;
    folder.put(leftoverOf(Gone));
    const auto path = folder.put(u"elsewhere/"_s + leftoverOf(Gone));
    QVERIFY(QFile::link(u"elsewhere/real.json"_s, folder.path(u"data.json"_s)));

    folder.removeLeftovers();

    QVERIFY(!QFile::exists(path));
    QCOMPARE(folder.names(), (QStringList{u"data.json"_s, u"elsewhere"_s}));
}

void LeftoversTest::missingFolder_isNoReasonToFail()
{
    const Folder folder;

    quib::removeLeftovers(nativePath(folder.path(u"gone/data.json"_s)));

    QCOMPARE(folder.names(), QStringList());
}

void LeftoversTest::newNames_areOurs()
{
    const auto name = quib::temporaryName();

    QCOMPARE(quib::makerOf(name), std::optional(::getpid()));
    QVERIFY(quib::temporaryName() != name);
}

QTEST_GUILESS_MAIN(LeftoversTest)
#include "tst_leftovers.moc"
