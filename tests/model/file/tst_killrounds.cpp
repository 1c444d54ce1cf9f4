#include "model/file/datafile.h"
#include "model/file/datasaver.h"
#include "support/datafolderfortest.h"
#include "support/longrun.h"
#include "support/randomworkspace.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <cstdio>

#include <unistd.h>

using namespace Qt::StringLiterals;

// A program that changes its workspace at random and saves all the time is killed at random
// instants. The program is this test itself, in a life as another program: see main().

namespace {

constexpr auto SaveOnAndOn = "--save-on-and-on";

/// The workspace of that revision; its notes begin with the number.
quib::QuibData workspaceOf(quint32 revision)
{
    auto data = RandomWorkspace(revision).make();
    data.notes = u"%1 %2"_s.arg(revision).arg(data.notes);
    return data;
}

quint32 revisionOf(const quib::QuibData& data)
{
    return data.notes.section(u' ', 0, 0).toUInt();
}

/// On this thread, or on the one in the background; has been done when it returns.
void save(const quib::QuibData& data, bool isInBackground)
{
    const auto later = [](auto, auto) { return std::make_unique<QObject>(); };
    const auto atOnce = [](auto, const std::function<void()>& write) {
        write();
        return std::make_unique<QObject>();
    };
    quib::DataSaver saver(isInBackground ? quib::Scheduler(atOnce) : later, [] {});
    saver.scheduleSave(data);
    if (!isInBackground) {
        saver.saveNow(data);
    }
}

/// Saves one revision after the other, and says which have been saved.
int saveOnAndOn(quint32 first)
{
    for (auto revision = first;; ++revision) {
        save(workspaceOf(revision), revision % 2 == 0);
        const auto told = QByteArray::number(revision) + '\n';
        if (::write(STDOUT_FILENO, told.constData(), std::size_t(told.size())) != told.size()) {
            return 1;
        }
    }
}

} // namespace

class KillRoundsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void killedAtAnyMoment_theFileIsWholeAndNoOlderThanTheLastSave();
};

void KillRoundsTest::killedAtAnyMoment_theFileIsWholeAndNoOlderThanTheLastSave()
{
    const DataFolderForTest folder;
    const auto seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    qInfo("instants of the seed %u", seed);
    quint32 last = 0;
    int between = 0; // Kills of a save that was under way.

    for (quint32 round = 0; round < rounds(100, 1000); ++round) {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(),
                      {QString::fromLatin1(SaveOnAndOn), QString::number(last + 1)});
        QVERIFY(program.waitForReadyRead());
        const auto instant = std::chrono::microseconds(random.bounded(20'000));
        ::usleep(useconds_t(instant.count()));
        program.kill();
        QVERIFY(program.waitForFinished());
        const auto told = program.readAllStandardOutput().trimmed();
        const auto finished = told.mid(told.lastIndexOf('\n') + 1).toUInt();

        const auto data = quib::decodeQuibData(folder.bytes());
        QVERIFY2(data, "the file is torn");
        const auto kept = revisionOf(*data);
        QVERIFY2(kept == finished || kept == finished + 1,
                 qPrintable(u"%1 after %2"_s.arg(kept).arg(finished)));
        QVERIFY(*data == workspaceOf(kept));
        last = kept;
        between += QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size() > 1 ? 1 : 0;
        for (const auto& name :
             QDir(folder.path()).entryList({u".korvel-quib-*"_s}, QDir::Files | QDir::Hidden)) {
            QVERIFY(QFile::remove(folder.path() + u'/' + name));
        }
    }
    qInfo("%u saves, %d killed in their midst", last, between);
    QVERIFY(between > 0);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1StringView(SaveOnAndOn)) {
        return saveOnAndOn(arguments.value(2).toUInt());
    }
    KillRoundsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_killrounds.moc"
