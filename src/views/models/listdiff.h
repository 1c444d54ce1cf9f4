#pragma once

#include <QHash>
#include <QList>

#include <algorithm>
#include <functional>
#include <iterator>
#include <span>
#include <type_traits>
#include <vector>

namespace quib {

/// One step that turns the rows a view shows into the rows it should show.
/// Steps are applied in order; `row` counts rows as they stand when the step is applied.
struct RowStep {
    enum class Kind { Remove, Insert, Move };

    Kind kind;
    int row; ///< Row removed, row inserted at, or row that a moved one ends at.
    int source; ///< Row moved from; for an insertion, the row in the wanted list; else -1.

    bool operator==(const RowStep&) const = default;
};

/// Steps from `shown` to `wanted`, in which equal numbers are the same row; one that repeats is as
/// many rows, told apart by their order. A row alone that goes, comes or changes its place is one
/// step; where several change places, or others come meanwhile, there may be more than the fewest.
std::vector<RowStep> diffRows(std::vector<int> shown, std::span<const int> wanted);

/// The same for records of which `key` tells which is which.
template <typename Record, typename Key>
std::vector<RowStep> diffRows(const QList<Record>& shown, const QList<Record>& wanted, Key key)
{
    const auto start = std::ranges::mismatch(shown, wanted, {}, key, key).in1 - shown.begin();
    const auto isSame = [&](const Record& one, const Record& other) {
        return std::invoke(key, one) == std::invoke(key, other);
    };
    const auto end = std::mismatch(shown.rbegin(), shown.rend() - start, wanted.rbegin(),
                                   wanted.rend() - start, isSame)
                         .first
        - shown.rbegin();

    QHash<std::decay_t<std::invoke_result_t<Key, const Record&>>, int> numbers;
    const auto numberOf = [&](const Record& record) {
        int& number = numbers[std::invoke(key, record)];
        number = number > 0 ? number : static_cast<int>(numbers.size());
        return number;
    };
    const auto numbersOf = [&](const QList<Record>& records) {
        std::vector<int> found;
        std::transform(records.begin() + start, records.end() - end, std::back_inserter(found),
                       numberOf);
        return found;
    };
    auto steps = diffRows(numbersOf(shown), numbersOf(wanted));
    for (auto& step : steps) {
        step.row += static_cast<int>(start);
        step.source += step.kind == RowStep::Kind::Remove ? 0 : static_cast<int>(start);
    }
    return steps;
}

} // namespace quib
