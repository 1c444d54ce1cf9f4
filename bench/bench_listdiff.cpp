#include "views/models/listdiff.h"

#include <QUuid>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

namespace {

using Ids = QList<QUuid>;

Ids someIds(const benchmark::State& state)
{
    Ids ids(state.range(0));
    std::ranges::generate(ids, &QUuid::createUuid);
    return ids;
}

void measure(benchmark::State& state, const Ids& shown, const Ids& wanted)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(quib::diffRows(shown, wanted, std::identity()));
    }
    state.SetComplexityN(state.range(0));
}

void rowCounts(benchmark::internal::Benchmark* bench)
{
    bench->RangeMultiplier(10)->Range(10, 100'000)->Complexity();
}

/// The floor of this run: both lists are looked at once, and nothing else is done.
void baselineCompare(benchmark::State& state)
{
    const auto shown = someIds(state);
    const Ids wanted(shown.begin(), shown.end());
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::ranges::equal(shown, wanted));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(baselineCompare)->Apply(rowCounts);

void prependOne(benchmark::State& state)
{
    const auto shown = someIds(state);
    auto wanted = shown;
    wanted.insert(wanted.begin(), QUuid::createUuid());
    measure(state, shown, wanted);
}
BENCHMARK(prependOne)->Apply(rowCounts);

void moveFirstToLast(benchmark::State& state)
{
    const auto shown = someIds(state);
    auto wanted = shown;
    std::rotate(wanted.begin(), wanted.begin() + 1, wanted.end());
    measure(state, shown, wanted);
}
BENCHMARK(moveFirstToLast)->Apply(rowCounts);

void reverse(benchmark::State& state)
{
    const auto shown = someIds(state);
    measure(state, shown, Ids(shown.rbegin(), shown.rend()));
}
BENCHMARK(reverse)->Apply(rowCounts);

void shuffle(benchmark::State& state)
{
    const auto shown = someIds(state);
    auto wanted = shown;
    std::ranges::shuffle(wanted, std::minstd_rand(1));
    measure(state, shown, wanted);
}
BENCHMARK(shuffle)->Apply(rowCounts);

} // namespace

BENCHMARK_MAIN();
