#include "workspace.h"

#include "model/billing/timesheet.h"
#include "model/time/isodate.h"

#include <charconv>

namespace {

/// As an export does it, piece by piece; the file takes no time here.
void timesheet(benchmark::State& state)
{
    const auto data = workspaceOf(state.range(0));
    const auto now = data.entries.front().start;
    const auto file = [](QByteArrayView piece) {
        benchmark::DoNotOptimize(piece.data());
        return true;
    };
    for (auto _ : state) {
        benchmark::DoNotOptimize(quib::writeTimesheet(data, now, file));
    }
}
BENCHMARK(timesheet)->Apply(entryCounts);

void appendDecimals(std::string& out, double value)
{
    std::array<char, 32> text{};
    const auto end
        = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 2);
    out.append(text.data(), end.ptr).append(",");
}

/// The same lines, all for one client and with no care for quotes.
void timesheetBaseline(benchmark::State& state)
{
    const auto data = workspaceOf(state.range(0));
    for (auto _ : state) {
        std::string out;
        for (const auto& entry : data.entries) {
            const auto start = *quib::isoDate(entry.start);
            const auto end = *quib::isoDate(*entry.end);
            const auto hours = static_cast<double>(entry.start.msecsTo(*entry.end)) / 3'600'000;
            out.append("\"Client 0\",").append(start.data(), start.size()).append(",");
            out.append(end.data(), end.size()).append(",");
            appendDecimals(out, hours);
            appendDecimals(out, 30);
            appendDecimals(out, hours * 30);
            out.append("\"").append(entry.note.toStdString()).append("\"\n");
        }
        benchmark::DoNotOptimize(out);
    }
}
BENCHMARK(timesheetBaseline)->Apply(entryCounts);

} // namespace

BENCHMARK_MAIN();
