#include "workspace.h"

#include "model/file/atomicfile.h"
#include "model/file/datafile.h"
#include "model/store.h"
#include "model/texts/nativepath.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

QByteArray bytesOf(const benchmark::State& state)
{
    return quib::encodeQuibData(workspaceOf(state.range(0))).value();
}

/// A store on such a workspace, in a folder of its own. Nothing it schedules is ever run.
class Workplace {
public:
    explicit Workplace(const benchmark::State& state)
    {
        qputenv("QUIB_DATA_DIR", QFile::encodeName(m_folder.path()));
        store = std::make_unique<quib::Store>(quib::StoreSurroundings{
            .schedule = [](auto&&...) { return std::make_unique<QObject>(); }});
        store->setData(workspaceOf(state.range(0)));
    }

    std::unique_ptr<quib::Store> store;

private:
    QTemporaryDir m_folder;
};

void replace(benchmark::State& state)
{
    const QTemporaryDir folder(QStringLiteral("./bench_store"));
    const auto path = quib::nativePath(folder.filePath(QStringLiteral("data.json")));
    const auto bytes = bytesOf(state);
    for (auto _ : state) {
        quib::replaceFile(path, bytes, quib::NewFile::Private);
    }
}
BENCHMARK(replace)->Apply(entryCounts)->UseRealTime();

/// Write, sync and rename, and no more.
void replaceBaseline(benchmark::State& state)
{
    const QTemporaryDir folder(QStringLiteral("./bench_store"));
    const auto bytes = bytesOf(state);
    const auto path = QFile::encodeName(folder.filePath(QStringLiteral("data.json")));
    const auto temporary = path + ".new";
    for (auto _ : state) {
        const int file = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        benchmark::DoNotOptimize(
            ::write(file, bytes.data(), static_cast<std::size_t>(bytes.size())));
        ::fdatasync(file);
        ::close(file);
        std::rename(temporary.constData(), path.constData());
    }
}
BENCHMARK(replaceBaseline)->Apply(entryCounts)->UseRealTime();

/// What a typed letter costs the main thread while a save of the letter before is pending.
void keystroke(benchmark::State& state)
{
    const Workplace work(state);
    QString notes(1'000, QLatin1Char('x'));
    for (auto _ : state) {
        notes.append(QLatin1Char('y'));
        work.store->setNotes(notes);
    }
}
BENCHMARK(keystroke)->Apply(entryCounts);

/// What pressing start costs: the list is taken apart from the copy that waits to be saved.
void startTimer(benchmark::State& state)
{
    const Workplace work(state);
    for (auto _ : state) {
        work.store->startTimer({}, {});
    }
}
BENCHMARK(startTimer)->Apply(entryCounts);

void totalsFirst(benchmark::State& state)
{
    const auto data = workspaceOf(state.range(0));
    const auto since = data.entries.back().start;
    const auto now = data.entries.front().start;
    for (auto _ : state) {
        benchmark::DoNotOptimize(quib::Tally(data.entries, since).totals(data.clients, now));
    }
}
BENCHMARK(totalsFirst)->Apply(entryCounts);

void totalsAtATick(benchmark::State& state)
{
    const Workplace work(state);
    const auto since = work.store->data().entries.back().start;
    for (auto _ : state) {
        benchmark::DoNotOptimize(work.store->totals(since));
    }
}
BENCHMARK(totalsAtATick)->Apply(entryCounts);

/// Every entry is looked at, and nothing made of it.
void totalsBaseline(benchmark::State& state)
{
    const auto data = workspaceOf(state.range(0));
    for (auto _ : state) {
        qint64 sum = 0;
        for (const auto& entry : data.entries) {
            sum += entry.end->toMSecsSinceEpoch() - entry.start.toMSecsSinceEpoch();
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(totalsBaseline)->Apply(entryCounts);

} // namespace

BENCHMARK_MAIN();
