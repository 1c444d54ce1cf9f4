#include "model/file/datafile.h"
#include "model/store.h"
#include "support/bytesof.h"
#include "support/datafolderfortest.h"
#include "support/modeof.h"
#include "support/strace.h"
#include "support/umask.h"

#include <QDir>
#include <QProcess>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

// A save is killed, or told of an error, at some of its system calls; at all of them in
// tst_savecalls. The program under strace is this test itself, in a life as another program: see
// main().

namespace {

constexpr auto OldNotes = "old"_L1;
constexpr auto NewNotes = "new"_L1;
constexpr auto SaveOnce = "--save-once"_L1;
constexpr auto SaveInTheBackground = "--save-in-the-background"_L1;
constexpr auto Undisturbed = "rename:error=EIO:when=1000"_L1; // There is none so late.

/// Starts on the data folder in the environment, changes the notes and saves.
int saveOnce()
{
    quib::Store store;
    store.setNotes(NewNotes);
    store.saveNow();
    return 0;
}

/// As well, but in the background as soon as they have changed; tells whether they were on disk
/// before the end.
int saveInTheBackground()
{
    quib::Store store({.schedule = [](auto, const std::function<void()>& save) {
        save();
        return std::make_unique<QObject>();
    }});
    store.setNotes(NewNotes);
    const bool wasSaved = bytesOf(qEnvironmentVariable("QUIB_DATA_DIR") + u"/data.json"_s)
                              .contains(NewNotes.data());
    store.saveNow();
    return wasSaved ? 0 : 1;
}

/// Notes large enough to need more than one write.
quib::QuibData oldData()
{
    return {.clients = {{.name = QString(200'000, u'x')}}, .notes = OldNotes};
}

/// The notes in the file, which must be whole; "torn" when it is not.
QString notesIn(const DataFolderForTest& folder)
{
    const auto data = quib::decodeQuibData(folder.bytes());
    const bool whole = data && data->clients == oldData().clients;
    return whole ? data->notes : u"torn"_s;
}

QStringList leftoversIn(const DataFolderForTest& folder)
{
    return QDir(folder.path()).entryList({u".korvel-quib-*"_s}, QDir::Files | QDir::Hidden);
}

/// Lets strace interfere; the life's answer, -1 when it does not end.
int underStrace(const QString& injection, const QString& log, QLatin1StringView life)
{
    QProcess strace;
    strace.start(u"strace"_s,
                 {u"-f"_s, u"-qq"_s, u"-o"_s, log, u"-e"_s, u"inject=%1"_s.arg(injection),
                  QCoreApplication::applicationFilePath(), life});
    return strace.waitForFinished() ? strace.exitCode() : -1;
}

/// False when strace cannot trace here.
bool saveUnderStrace(const QString& injection, const QString& log)
{
    return underStrace(injection, log, SaveOnce) >= 0 && QFile::exists(log);
}

QStringList linesOf(const QString& log)
{
    QFile file(log);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n')
                                          : QStringList();
}

/// Interferes with a call of that name, from 1, of those since the new file is there: calls before
/// that read the old one, or wake threads.
QString injectionInSave(const QString& call, int number, const QString& what)
{
    const DataFolderForTest folder;
    const auto log = folder.path() + u"/log"_s;
    saveUnderStrace(Undisturbed, log);
    const auto lines = linesOf(log);
    const auto isOfNewFile = [](const QString& line) { return line.contains(u".korvel-quib-"_s); };
    const auto isCall = [&](const QString& line) { return line.contains(u" %1("_s.arg(call)); };
    const auto created = std::ranges::find_if(lines, isOfNewFile);
    if (created == lines.end()) {
        return {}; // Which strace does not take.
    }
    const auto before = std::count_if(lines.begin(), created, isCall);
    return u"%1:%2:when=%3"_s.arg(call, what).arg(before + number);
}

} // namespace

class SaveKilledTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void undisturbed_isSaved();
    void bytes_areSyncedAfterTheyAreWritten();
    void failingCall_leavesTheOldFile_data();
    void failingCall_leavesTheOldFile();
    void noThread_isSavedWithoutOne();
    void leftover_isTheUsersAlone_data();
    void leftover_isTheUsersAlone();
    void nextStart_removesWhatAKilledSaveLeft();
};

void SaveKilledTest::initTestCase()
{
    if (const auto hindrance = hindranceOfStrace(); !hindrance.isEmpty()) {
        QSKIP(hindrance.constData());
    }
}

void SaveKilledTest::undisturbed_isSaved()
{
    const DataFolderForTest folder;
    folder.put(quib::encodeQuibData(oldData()).value());

    QVERIFY(saveUnderStrace(Undisturbed, folder.path() + u"/log"_s));

    QCOMPARE(notesIn(folder), NewNotes);
}

void SaveKilledTest::bytes_areSyncedAfterTheyAreWritten()
{
    const DataFolderForTest folder;
    folder.put(quib::encodeQuibData({}).value()); // Few enough to wait in a buffer.

    QVERIFY(saveUnderStrace(Undisturbed, folder.path() + u"/log"_s));

    QFile file(folder.path() + u"/log"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto log = file.readAll();
    const auto written = log.lastIndexOf(R"("{\n  \"clients\")"); // It was read before.
    const auto synced = log.indexOf("fsync(");
    const auto renamed = log.indexOf("rename(");
    QVERIFY(written >= 0 && written < synced && synced < renamed);
}

void SaveKilledTest::failingCall_leavesTheOldFile_data()
{
    QTest::addColumn<QString>("injection");

    QTest::addRow("disk full") << u"write:error=ENOSPC"_s;
    QTest::addRow("disk broken") << u"write:error=EIO"_s;
    QTest::addRow("not synced") << u"fsync:error=EIO:when=1"_s;
    QTest::addRow("not renamed") << u"rename:error=EACCES"_s;
}

void SaveKilledTest::failingCall_leavesTheOldFile()
{
    QFETCH(QString, injection);
    const DataFolderForTest folder;
    folder.put(quib::encodeQuibData(oldData()).value());

    QVERIFY(saveUnderStrace(injection, folder.path() + u"/log"_s));

    QCOMPARE(notesIn(folder), OldNotes);
}

void SaveKilledTest::noThread_isSavedWithoutOne()
{
    const DataFolderForTest folder;
    folder.put(quib::encodeQuibData(oldData()).value());

    const auto answer = underStrace(u"clone,clone3:error=EAGAIN"_s, folder.path() + u"/log"_s,
                                    SaveInTheBackground);

    QCOMPARE(answer, 0);
    QCOMPARE(notesIn(folder), NewNotes);
}

void SaveKilledTest::leftover_isTheUsersAlone_data()
{
    QTest::addColumn<QString>("call");

    for (const auto* call : {"flock", "fchmod", "write", "fsync", "rename"}) {
        QTest::addRow("%s", call) << QString::fromLatin1(call);
    }
}

void SaveKilledTest::leftover_isTheUsersAlone()
{
    QFETCH(const QString, call);
    const auto kill = injectionInSave(call, 1, u"signal=SIGKILL"_s);
    const DataFolderForTest folder; // Without a file in it: there is no mode to keep.
    {
        const Umask lax(0);
        QVERIFY(saveUnderStrace(kill, folder.path() + u"/log"_s));
    }

    const auto left = leftoversIn(folder);
    QCOMPARE(left.size(), 1);
    QCOMPARE(modeOf(folder.path() + u'/' + left.first()), "0600"_ba);
}

void SaveKilledTest::nextStart_removesWhatAKilledSaveLeft()
{
    const DataFolderForTest folder;
    folder.put(quib::encodeQuibData(oldData()).value());
    QVERIFY(saveUnderStrace(u"rename:signal=SIGKILL:when=1"_s, folder.path() + u"/log"_s));
    QCOMPARE(leftoversIn(folder).size(), 1);

    quib::Store::removeLeftovers();

    QCOMPARE(leftoversIn(folder), QStringList());
    QCOMPARE(notesIn(folder), OldNotes);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(SaveOnce)) {
        return saveOnce();
    }
    if (QCoreApplication::arguments().contains(SaveInTheBackground)) {
        return saveInTheBackground();
    }
    SaveKilledTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_savekilled.moc"
