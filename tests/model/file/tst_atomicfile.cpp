#include "model/file/atomicfile.h"
#include "model/texts/nativepath.h"
#include "support/bytesof.h"
#include "support/modeof.h"
#include "support/othergroup.h"
#include "support/smalldisk.h"
#include "support/umask.h"
#include "support/writefile.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using quib::nativePath;
using quib::NewFile;

namespace {

bool replaceFile(const QString& path, const QByteArray& bytes)
{
    return quib::replaceFile(nativePath(path), bytes, NewFile::Private);
}

/// A folder with files, read and written by name.
class Files {
public:
    QString path(const QString& name) const { return m_dir.filePath(name); }

    void put(const QString& name, const QByteArray& bytes) const { writeFile(path(name), bytes); }

    QByteArray bytes(const QString& name) const { return bytesOf(path(name)); }

    QStringList names() const
    {
        return QDir(m_dir.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_dir;
};

} // namespace

class AtomicFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void replaceFile_writesAllBytes_data();
    void replaceFile_writesAllBytes();
    void replaceFile_leavesNothingBeside();
    void replaceFile_missingFolder_saysFalse();
    void replaceFile_folderInTheWay_saysFalse();
    void newFile_hasItsMode_data();
    void newFile_hasItsMode();
    void replaceFile_keepsTheMode_data();
    void replaceFile_keepsTheMode();
    void replaceFile_keepsTheGroup();
    void replaceFile_whatIsNoFile_saysFalse();
    void replaceFile_writesThroughALink();
    void replaceFile_writesThroughALinkToNothing();
    void replaceFile_fullDisk_leavesTheOldFile();
};

void AtomicFileTest::replaceFile_writesAllBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::addRow("none") << QByteArray();
    QTest::addRow("a few") << "abc"_ba;
    QTest::addRow("many") << QByteArray(5'000'000, 'x');
}

void AtomicFileTest::replaceFile_writesAllBytes()
{
    QFETCH(QByteArray, bytes);
    const Files files;
    files.put(u"data.json"_s, "old and longer than abc");

    QVERIFY(replaceFile(files.path(u"data.json"_s), bytes));

    QCOMPARE(files.bytes(u"data.json"_s), bytes);
}

void AtomicFileTest::replaceFile_leavesNothingBeside()
{
    const Files files;

    QVERIFY(replaceFile(files.path(u"data.json"_s), "new"));

    QCOMPARE(files.names(), QStringList{u"data.json"_s});
}

void AtomicFileTest::replaceFile_missingFolder_saysFalse()
{
    const Files files;

    QVERIFY(!replaceFile(files.path(u"gone/data.json"_s), "new"));
}

void AtomicFileTest::replaceFile_folderInTheWay_saysFalse()
{
    const Files files;
    QVERIFY(QDir().mkpath(files.path(u"data.json"_s)));

    QVERIFY(!replaceFile(files.path(u"data.json"_s), "new"));

    QCOMPARE(files.names(), QStringList{u"data.json"_s});
}

void AtomicFileTest::newFile_hasItsMode_data()
{
    QTest::addColumn<int>("umask");
    QTest::addColumn<QByteArray>("ifPrivate");
    QTest::addColumn<QByteArray>("asUsual");

    QTest::addRow("lets everybody") << 0 << "0600"_ba
                                    << "0666"_ba;
    QTest::addRow("as is usual") << 022 << "0600"_ba
                                 << "0644"_ba;
    QTest::addRow("lets nobody else") << 077 << "0600"_ba
                                      << "0600"_ba;
    QTest::addRow("lets nobody at all") << 0777 << "0600"_ba
                                        << "00"_ba;
}

void AtomicFileTest::newFile_hasItsMode()
{
    QFETCH(int, umask);
    const Files files;
    {
        const Umask strict(static_cast<mode_t>(umask));
        QVERIFY(quib::replaceFile(nativePath(files.path(u"a"_s)), "x", NewFile::Private));
        QVERIFY(quib::replaceFile(nativePath(files.path(u"b"_s)), "x", NewFile::Usual));
    }

    QTEST(modeOf(files.path(u"a"_s)), "ifPrivate");
    QTEST(modeOf(files.path(u"b"_s)), "asUsual");
}

void AtomicFileTest::replaceFile_keepsTheMode_data()
{
    QTest::addColumn<int>("mode");

    for (const auto mode : {0600, 0644, 0640, 0664, 0666, 0700, 0755}) {
        QTest::addRow("%o", static_cast<unsigned>(mode)) << mode;
    }
}

void AtomicFileTest::replaceFile_keepsTheMode()
{
    QFETCH(int, mode);
    const Files files;
    const auto path = files.path(u"data.json"_s);
    files.put(u"data.json"_s, "old");
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), static_cast<mode_t>(mode)), 0);

    for (const auto kind : {NewFile::Private, NewFile::Usual}) {
        const Umask strict(027);
        QVERIFY(quib::replaceFile(nativePath(path), "new", kind));

        QCOMPARE(modeOf(path), '0' + QByteArray::number(mode, 8));
    }
}

void AtomicFileTest::replaceFile_keepsTheGroup()
{
    const auto group = otherGroup();
    if (!group) {
        QSKIP("a user of one group alone can't give a file to another group");
    }
    const Files files;
    const auto path = files.path(u"data.json"_s);
    files.put(u"data.json"_s, "old");
    QCOMPARE(::chown(QFile::encodeName(path).constData(), ::geteuid(), *group), 0);

    QVERIFY(replaceFile(path, "new"));

    QCOMPARE(QFileInfo(path).groupId(), *group);
}

void AtomicFileTest::replaceFile_whatIsNoFile_saysFalse()
{
    const Files files;
    const auto path = files.path(u"data.json"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QVERIFY(QFile::link(path, files.path(u"link"_s)));
    QVERIFY(QFile::link(u"circle"_s, files.path(u"circle"_s)));

    QVERIFY(!replaceFile(path, "new"));
    QVERIFY(!replaceFile(files.path(u"link"_s), "new"));
    QVERIFY(!replaceFile(files.path(u"circle"_s), "new"));

    QCOMPARE(files.names(), (QStringList{u"circle"_s, u"data.json"_s, u"link"_s}));
}

void AtomicFileTest::replaceFile_writesThroughALink()
{
    const Files files;
    QVERIFY(QDir().mkpath(files.path(u"elsewhere"_s)));
    files.put(u"elsewhere/real.json"_s, "old");
    QVERIFY(QFile::link(u"elsewhere/real.json"_s, files.path(u"data.json"_s)));

    QVERIFY(replaceFile(files.path(u"data.json"_s), "new"));

    QVERIFY(QFileInfo(files.path(u"data.json"_s)).isSymLink());
    QCOMPARE(files.bytes(u"elsewhere/real.json"_s), "new"_ba);
}

void AtomicFileTest::replaceFile_writesThroughALinkToNothing()
{
    const Files files;
    QVERIFY(QFile::link(files.path(u"real.json"_s), files.path(u"data.json"_s)));

    QVERIFY(replaceFile(files.path(u"data.json"_s), "new"));

    QVERIFY(QFileInfo(files.path(u"data.json"_s)).isSymLink());
    QCOMPARE(files.bytes(u"real.json"_s), "new"_ba);
}

void AtomicFileTest::replaceFile_fullDisk_leavesTheOldFile()
{
    const SmallDisk disk;
    if (!disk.isMounted()) {
        QSKIP(disk.hindrance().constData()); // As for a user and in some containers.
    }
    const auto path = disk.path(u"data.json"_s);
    const QByteArray old(10'000, 'o');
    QVERIFY(replaceFile(path, old));

    QVERIFY(!replaceFile(path, QByteArray(4'000'000, 'x')));

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), old);
    QCOMPARE(QDir(disk.path({})).entryList(QDir::Files | QDir::Hidden),
             QStringList{u"data.json"_s});
    QVERIFY(replaceFile(path, "fits again"));
}

QTEST_GUILESS_MAIN(AtomicFileTest)
#include "tst_atomicfile.moc"
