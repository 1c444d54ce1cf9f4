#include "views/models/listdiff.h"

#include <iterator>

namespace quib {

namespace {

using Rows = std::vector<int>;
using Kind = RowStep::Kind;

/// How often each number occurs.
class Counts {
public:
    explicit Counts(std::span<const int> numbers, std::span<const int> others)
        : m_counts(static_cast<std::size_t>(1 + std::max(largest(numbers), largest(others))))
    {
        for (const int number : numbers) {
            ++(*this)[number];
        }
    }

    int& operator[](int number) { return m_counts[static_cast<std::size_t>(number)]; }

private:
    static int largest(std::span<const int> numbers)
    {
        return numbers.empty() ? 0 : *std::ranges::max_element(numbers);
    }

    std::vector<int> m_counts;
};

/// From the last to the first, so that no step changes the place of another.
std::vector<RowStep> removeUnwanted(Rows& rows, std::span<const int> wanted)
{
    Counts left(wanted, rows);
    std::vector<RowStep> steps;
    Rows kept;
    for (int row = 0; row < std::ssize(rows); ++row) {
        const int number = rows.begin()[row];
        if (left[number]-- > 0) {
            kept.push_back(number);
        } else {
            steps.push_back({Kind::Remove, row, -1});
        }
    }
    std::ranges::reverse(steps);
    rows = std::move(kept);
    return steps;
}

RowStep move(Rows& rows, int from, int to)
{
    const auto begin = rows.begin();
    if (from < to) {
        std::rotate(begin + from, begin + from + 1, begin + to + 1);
    } else {
        std::rotate(begin + to, begin + from, begin + from + 1);
    }
    return {Kind::Move, to, from};
}

/// The first place behind `row` where the number stands.
int placeBehind(int row, std::span<const int> numbers, int number)
{
    const auto found
        = std::ranges::find(numbers.subspan(static_cast<std::size_t>(row) + 1), number);
    return static_cast<int>(found - numbers.begin());
}

/// Has the wanted number, which stands further down, stand in this row. When it is the next one
/// anyway, the row before it is the one that has moved.
RowStep moveIntoPlace(Rows& rows, int row, std::span<const int> wanted)
{
    const int number = wanted[static_cast<std::size_t>(row)];
    if (rows.begin()[row + 1] != number) {
        return move(rows, placeBehind(row, rows, number), row);
    }
    const auto last = static_cast<int>(rows.size()) - 1;
    return move(rows, row, std::min(placeBehind(row, wanted, rows.begin()[row]), last));
}

} // namespace

std::vector<RowStep> diffRows(std::vector<int> shown, std::span<const int> wanted)
{
    auto steps = removeUnwanted(shown, wanted);
    Counts left(shown, wanted);
    for (int row = 0; row < std::ssize(wanted); ++row) {
        const int number = wanted[static_cast<std::size_t>(row)];
        if (left[number] == 0) {
            shown.insert(shown.begin() + row, number);
            steps.push_back({Kind::Insert, row, row});
            continue;
        }
        --left[number];
        if (shown.begin()[row] != number) {
            steps.push_back(moveIntoPlace(shown, row, wanted));
        }
    }
    return steps;
}

} // namespace quib
