#include "model/file/callsofasave.h"
#include "model/file/datafile.h"
#include "model/store.h"
#include "model/texts/nativepath.h"
#include "support/datafolderfortest.h"
#include "support/longrun.h"
#include "support/strace.h"

#include <QDir>
#include <QProcess>
#include <QTest>

#include <tuple>

#include <unistd.h>

using namespace Qt::StringLiterals;
using quib::nativePath;

// Each system call of a save is found by listening to one, and is then killed, or told of an error,
// in a save of its own. The program under strace is this test itself, in a life as another program:
// see main().

namespace {

constexpr auto OldNotes = "old"_L1;
constexpr auto NewNotes = "new"_L1;
constexpr auto LaterNotes = "later"_L1;
constexpr auto SaveTwice = "--save-twice";

/// More than one write takes.
quib::QuibData oldData()
{
    return {.clients = {{.name = QString(200'000, u'x')}}, .notes = OldNotes};
}

/// Of a file, which must be whole; "torn" when it is not.
QString notesIn(const std::filesystem::path& file)
{
    const auto data = quib::loadQuibData(file);
    return data && data->clients == oldData().clients ? data->notes : u"torn"_s;
}

/// One save that something happens to, then one that is left in peace. Not 0 where the first one
/// left something else than the old file or the new one.
int saveTwice()
{
    quib::Store store;
    store.setNotes(NewNotes);
    std::ignore = ::access(SaveBegins, F_OK);
    store.saveNow();
    std::ignore = ::access(SaveHasEnded, F_OK);
    const auto notes = notesIn(quib::Store::folder() / "data.json");
    if (notes != OldNotes && notes != NewNotes) {
        return 1;
    }
    store.setNotes(LaterNotes);
    store.saveNow();
    return 0;
}

/// A data folder with a workspace and with what is none of ours, reached by a link or without.
struct Place {
    explicit Place(bool isLink)
        : isLinked(isLink)
    {
        const auto bytes = quib::encodeQuibData(oldData()).value();
        if (isLinked) {
            writeFile(elsewhere.path() + u"/workspace.json"_s, bytes);
            QFile::link(elsewhere.path() + u"/workspace.json"_s, folder.file());
        } else {
            folder.put(bytes);
        }
        writeFile(folder.path() + u"/mine.txt"_s, "mine");
    }

    /// Lets strace interfere. False when it did not run.
    bool save(const QString& injection, QString* trace = nullptr) const
    {
        QStringList arguments{u"-f"_s, u"-q"_s, u"-o"_s, log()};
        if (!injection.isEmpty()) {
            arguments << u"-e"_s << u"inject="_s + injection;
        }
        QProcess strace;
        strace.setStandardErrorFile(
            QProcess::nullDevice()); // Where a program without memory complains.
        strace.start(u"strace"_s,
                     arguments << QCoreApplication::applicationFilePath()
                               << QString::fromLatin1(SaveTwice));
        const bool ran = strace.waitForFinished() && QFile::exists(log());
        QFile file(log());
        if (trace != nullptr && file.open(QIODevice::ReadOnly)) {
            *trace = QString::fromUtf8(file.readAll());
        }
        return ran;
    }

    QString notes() const { return notesIn(nativePath(folder.file())); }

    /// Nothing but ours has changed or come.
    QString harm() const
    {
        const auto isLeftover
            = [](const QString& name) { return name.startsWith(u".korvel-quib-"_s); };
        auto names = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
        names += QDir(elsewhere.path()).entryList(QDir::Files | QDir::Hidden);
        names.removeIf(isLeftover);
        names.sort();
        const QStringList expected{u"data.json"_s, u"mine.txt"_s, u"trace"_s};
        const QStringList expectedLinked{u"data.json"_s, u"mine.txt"_s, u"trace"_s,
                                         u"workspace.json"_s};
        QFile mine(folder.path() + u"/mine.txt"_s);
        if (names != (isLinked ? expectedLinked : expected)) {
            return u"the folder has "_s + names.join(u", "_s);
        }
        if (!mine.open(QIODevice::ReadOnly) || mine.readAll() != "mine") {
            return u"a file that is not ours has changed"_s;
        }
        return QFileInfo(folder.file()).isSymLink() == isLinked ? QString() : u"the link is gone"_s;
    }

    QString log() const { return elsewhere.path() + u"/trace"_s; }

    DataFolderForTest folder;
    QTemporaryDir elsewhere;
    bool isLinked;
};

QStringList injections()
{
    QStringList all{u"signal=SIGKILL"_s, u"error=EIO"_s, u"error=ENOSPC"_s};
    if (rounds(0, 1) > 0) {
        for (const auto* error :
             {"EPERM",      "ENOENT",  "EINTR",  "EAGAIN",       "ENOMEM", "EACCES", "EBUSY",
              "EEXIST",     "ENOTDIR", "EISDIR", "EINVAL",       "ENFILE", "EMFILE", "EFBIG",
              "EROFS",      "EMLINK",  "EDQUOT", "ENAMETOOLONG", "ELOOP",  "ENOLCK", "ENOSYS",
              "EOPNOTSUPP", "ESTALE",  "EXDEV",  "EBADF"}) {
            all << u"error="_s + QLatin1StringView(error);
        }
    }
    return all;
}

} // namespace

class SaveCallsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anyCall_leavesAWholeFileAndTheNextSaveWhole_data();
    void anyCall_leavesAWholeFileAndTheNextSaveWhole();
};

void SaveCallsTest::initTestCase()
{
    if (const auto hindrance = hindranceOfStrace(); !hindrance.isEmpty()) {
        QSKIP(hindrance.constData());
    }
}

void SaveCallsTest::anyCall_leavesAWholeFileAndTheNextSaveWhole_data()
{
    QTest::addColumn<bool>("isLink");
    QTest::addColumn<QString>("injection");

    for (const bool isLink : {false, true}) {
        for (const auto& injection : injections()) {
            QTest::addRow("%s, %s", isLink ? "a link" : "a file", qPrintable(injection))
                << isLink << injection;
        }
    }
}

void SaveCallsTest::anyCall_leavesAWholeFileAndTheNextSaveWhole()
{
    QFETCH(const bool, isLink);
    QFETCH(const QString, injection);
    QString trace;
    QVERIFY(Place(isLink).save({}, &trace));
    const auto calls = callsOfASave(trace);
    QVERIFY(calls.size() > 8);

    for (const auto& call : calls) {
        const bool isKill = injection.startsWith(u"signal"_s);
        if (!isKill && call.name == u"brk"_s) {
            continue; // It knows no errors, and the C library is not ready for one.
        }
        const auto what = u"%1:%2:when=%3"_s.arg(call.name, injection).arg(call.number);
        const Place place(isLink);
        QVERIFY(place.save(what, &trace));

        QVERIFY2(trace.contains(isKill ? u"killed by SIGKILL"_s : u"(INJECTED)"_s),
                 qPrintable(what));
        QVERIFY2(isKill || trace.contains(u"+++ exited with 0 +++"_s), qPrintable(what));
        const auto notes = place.notes();
        const bool isKept = isKill ? notes == OldNotes || notes == NewNotes : notes == LaterNotes;
        QVERIFY2(isKept, qPrintable(what + u": "_s + notes));
        QVERIFY2(place.harm().isEmpty(), qPrintable(what + u": "_s + place.harm()));
    }
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(QLatin1StringView(SaveTwice))) {
        return saveTwice();
    }
    SaveCallsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_savecalls.moc"
