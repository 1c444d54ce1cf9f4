#include "views/models/listdiff.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <utility>

namespace quib {

namespace {

using Ids = std::span<const QUuid>;
using Rows = std::vector<int>;

int sizeOf(Ids ids)
{
    return static_cast<int>(ids.size());
}

int& at(Rows& rows, int row)
{
    return rows[static_cast<std::size_t>(row)];
}

int commonStart(Ids shown, Ids wanted)
{
    const auto differ = std::ranges::mismatch(shown, wanted);
    return static_cast<int>(differ.in1 - shown.begin());
}

int commonEnd(Ids shown, Ids wanted)
{
    const auto differ = std::mismatch(shown.rbegin(), shown.rend(), wanted.rbegin(), wanted.rend());
    return static_cast<int>(differ.first - shown.rbegin());
}

/// How many values below a bound a growing and shrinking collection of rows holds.
class RowCounter {
public:
    explicit RowCounter(int size)
        : m_sums(static_cast<std::size_t>(size) + 1)
    {
    }

    void add(int row, int count)
    {
        for (auto node = static_cast<std::size_t>(row) + 1; node < m_sums.size();
             node += lowest(node)) {
            m_sums[node] += count;
        }
    }

    int below(int row) const
    {
        int count = 0;
        for (auto node = static_cast<std::size_t>(row); node > 0; node -= lowest(node)) {
            count += m_sums[node];
        }
        return count;
    }

private:
    static std::size_t lowest(std::size_t node) { return node & (~node + 1); }

    std::vector<int> m_sums; ///< Each node sums as many rows as its lowest bit says.
};

/// Which shown row each wanted row takes over.
struct Matching {
    Rows removed; ///< Shown rows that nobody wants.
    Rows kept; ///< For each shown row that stays, in order, the wanted row that it becomes.
    std::vector<bool> isNew; ///< For each wanted row.
};

Matching matchRows(Ids shown, Ids wanted)
{
    QHash<QUuid, std::optional<int>> firstFree; // Wanted rows that nobody has taken over.
    std::vector<std::optional<int>> nextOfSameId(wanted.size());
    for (int row = sizeOf(wanted) - 1; row >= 0; --row) {
        auto& first = firstFree[wanted[static_cast<std::size_t>(row)]];
        nextOfSameId[static_cast<std::size_t>(row)] = std::exchange(first, row);
    }
    Matching matching{.isNew = std::vector<bool>(wanted.size(), true)};
    for (int row = 0; row < sizeOf(shown); ++row) {
        auto& free = firstFree[shown[static_cast<std::size_t>(row)]];
        if (!free) {
            matching.removed.push_back(row);
            continue;
        }
        matching.kept.push_back(*free);
        const auto taken = static_cast<std::size_t>(*free);
        matching.isNew[taken] = false;
        free = nextOfSameId[taken];
    }
    return matching;
}

/// The most rows whose order is right already: a longest increasing subsequence.
std::vector<bool> rowsThatRest(const Rows& kept)
{
    Rows tails; // Of the best run of each length, the row in `kept` that ends it.
    Rows before(kept.size(), -1); // Its predecessor in that run.
    const auto value = [&](int row) { return kept[static_cast<std::size_t>(row)]; };
    for (int row = 0; row < static_cast<int>(kept.size()); ++row) {
        const auto tail = std::ranges::lower_bound(tails, value(row), {}, value);
        at(before, row) = tail == tails.begin() ? -1 : *std::prev(tail);
        if (tail == tails.end()) {
            tails.push_back(row);
        } else {
            *tail = row;
        }
    }
    std::vector<bool> rest(kept.size(), false);
    for (int row = tails.empty() ? -1 : tails.back(); row >= 0; row = at(before, row)) {
        rest[static_cast<std::size_t>(row)] = true;
    }
    return rest;
}

/// Appends the moves that sort `kept`. Goes through the rows as they shall be, and puts each one
/// that has to move behind its predecessor; what waits for its move stays where it was.
void appendMoves(std::vector<RowStep>& steps, const Rows& kept, int offset)
{
    const auto size = static_cast<int>(kept.size());
    const auto rests = rowsThatRest(kept);
    Rows inOrder(kept.size());
    std::ranges::generate(inOrder, [row = 0]() mutable { return row++; });
    std::ranges::sort(inOrder, {}, [&](int row) { return kept[static_cast<std::size_t>(row)]; });

    RowCounter unmoved(size); // By the row where they stand.
    RowCounter moved(size); // By the resting row that they stand behind.
    for (int row = 0; row < size; ++row) {
        unmoved.add(row, 1);
    }
    int frontMoved = 0; // Those behind no resting row at all.
    int anchor = -1; // The last resting row so far.
    for (int done = 0; done < size; ++done) {
        const int row = at(inOrder, done);
        if (rests[static_cast<std::size_t>(row)]) {
            anchor = row;
            continue;
        }
        const int from = unmoved.below(row) + moved.below(row) + frontMoved;
        const int behind = anchor < 0
            ? frontMoved
            : unmoved.below(anchor + 1) + moved.below(anchor + 1) + frontMoved;
        const int to = from < behind ? behind - 1 : behind;
        if (from != to) {
            steps.push_back({RowStep::Kind::Move, offset + to, offset + from});
        }
        unmoved.add(row, -1);
        if (anchor < 0) {
            ++frontMoved;
        } else {
            moved.add(anchor, 1);
        }
    }
}

} // namespace

std::vector<RowStep> diffRows(Ids shown, Ids wanted)
{
    const int start = commonStart(shown, wanted);
    shown = shown.subspan(static_cast<std::size_t>(start));
    wanted = wanted.subspan(static_cast<std::size_t>(start));
    const auto end = static_cast<std::size_t>(commonEnd(shown, wanted));
    const auto matching
        = matchRows(shown.first(shown.size() - end), wanted.first(wanted.size() - end));

    std::vector<RowStep> steps;
    std::ranges::transform(matching.removed.rbegin(), matching.removed.rend(),
                           std::back_inserter(steps), [&](int row) {
                               return RowStep{RowStep::Kind::Remove, start + row, -1};
                           });
    appendMoves(steps, matching.kept, start);
    for (int row = 0; row < static_cast<int>(matching.isNew.size()); ++row) {
        if (matching.isNew[static_cast<std::size_t>(row)]) {
            steps.push_back({RowStep::Kind::Insert, start + row, start + row});
        }
    }
    return steps;
}

} // namespace quib
