#include "workspace.h"

#include "model/file/datafile.h"
#include "model/texts/utf8.h"
#include "model/texts/uuidtext.h"
#include "model/time/isodate.h"

#include <QFile>
#include <QTemporaryDir>

#include <simdjson.h>

#include <sys/resource.h>

namespace {

/// A workspace on disk, in the system's memory too.
struct Place {
    QTemporaryDir folder;
    std::string path
        = QFile::encodeName(folder.filePath(QStringLiteral("data.json"))).toStdString();
    qsizetype size = 0;

    explicit Place(const benchmark::State& state)
    {
        QFile file(QFile::decodeName(path.c_str()));
        const auto bytes = quib::encodeQuibData(workspaceOf(state.range(0))).value();
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("no file can be written here");
        }
        size = bytes.size();
    }
};

long pageFaults()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt;
}

/// From the file to the workspace and back to nothing, as often as asked; says what it took.
template <typename Read>
void readAgainAndAgain(benchmark::State& state, Read read)
{
    const Place place(state);
    const auto before = pageFaults();
    for (auto _ : state) {
        read(place.path);
    }
    state.SetBytesProcessed(state.iterations() * place.size);
    state.counters["faults"] = benchmark::Counter(static_cast<double>(pageFaults() - before),
                                                  benchmark::Counter::kAvgIterations);
}

void read(benchmark::State& state)
{
    readAgainAndAgain(
        state, [](const std::string& path) { benchmark::DoNotOptimize(quib::loadQuibData(path)); });
}
BENCHMARK(read)->Apply(entryCounts);

/// The same file as a tree, before any of it means anything.
void readBaseline(benchmark::State& state)
{
    readAgainAndAgain(state, [](const std::string& path) {
        simdjson::dom::parser parser;
        benchmark::DoNotOptimize(parser.load(path));
    });
}
BENCHMARK(readBaseline)->Apply(entryCounts);

void load(benchmark::State& state)
{
    const auto bytes = quib::encodeQuibData(workspaceOf(state.range(0))).value();
    for (auto _ : state) {
        benchmark::DoNotOptimize(quib::decodeQuibData(bytes));
    }
    state.SetBytesProcessed(state.iterations() * bytes.size());
}
BENCHMARK(load)->Apply(entryCounts);

/// What the same bytes cost before any of them means anything.
void loadBaseline(benchmark::State& state)
{
    const auto bytes = quib::encodeQuibData(workspaceOf(state.range(0))).value();
    for (auto _ : state) {
        simdjson::dom::parser parser;
        benchmark::DoNotOptimize(
            parser.parse(bytes.data(), static_cast<std::size_t>(bytes.size())));
    }
    state.SetBytesProcessed(state.iterations() * bytes.size());
}
BENCHMARK(loadBaseline)->Apply(entryCounts);

/// As a save does it, piece by piece; the file takes no time here.
void encode(benchmark::State& state)
{
    const auto data = workspaceOf(state.range(0));
    const auto file = [](QByteArrayView piece) {
        benchmark::DoNotOptimize(piece.data());
        return true;
    };
    for (auto _ : state) {
        benchmark::DoNotOptimize(quib::writeQuibData(data, file));
    }
}
BENCHMARK(encode)->Apply(entryCounts);

/// The lines of an entry, without care for what a text may hold.
void appendEntry(std::string& out, const quib::TimeEntry& entry)
{
    const auto append = [&](const char* key, const auto& text) {
        out.append(key).append(text.data(), static_cast<std::size_t>(text.size()));
    };
    append("    {\n      \"clientID\": \"", quib::uuidText(*entry.clientID));
    append("\",\n      \"end\": \"", *quib::isoDate(*entry.end));
    append("\",\n      \"id\": \"", quib::uuidText(entry.id));
    append("\",\n      \"note\": \"", entry.note.toUtf8());
    append("\",\n      \"start\": \"", *quib::isoDate(entry.start));
    out.append("\"\n    },\n");
}

void encodeBaseline(benchmark::State& state)
{
    const auto data = workspaceOf(state.range(0));
    for (auto _ : state) {
        std::string out;
        for (const auto& entry : data.entries) {
            appendEntry(out, entry);
        }
        benchmark::DoNotOptimize(out);
    }
}
BENCHMARK(encodeBaseline)->Apply(entryCounts);

} // namespace

BENCHMARK_MAIN();
