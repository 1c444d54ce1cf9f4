#pragma once

#include "model/records/quibdata.h"
#include "model/time/utc.h"

#include <benchmark/benchmark.h>

/// A workspace of a busy year or ten: twenty clients, and as many entries as asked for.
inline quib::QuibData workspaceOf(qsizetype entryCount)
{
    quib::QuibData data;
    for (int number = 0; number < 20; ++number) {
        data.clients.append({.id = QUuid::createUuid(),
                             .name = QStringLiteral("Client %1").arg(number),
                             .hourlyRate = 30.0 + number});
    }
    const QDateTime last(QDate(2026, 3, 2), QTime(9, 0), quib::Utc);
    for (qsizetype row = 0; row < entryCount; ++row) {
        const auto start = last.addSecs(-3600 * row);
        data.entries.append({.id = QUuid::createUuid(),
                             .clientID = data.clients.at(row % 20).id,
                             .start = start,
                             .end = start.addSecs(1800 + row % 1800),
                             .note = QStringLiteral("Homepage, round %1").arg(row)});
    }
    return data;
}

/// How many entries: a new user's, a busy one's, and what nobody should ever feel.
inline void entryCounts(benchmark::internal::Benchmark* bench)
{
    bench->RangeMultiplier(10)->Range(1'000, 100'000)->Unit(benchmark::kMillisecond);
}
