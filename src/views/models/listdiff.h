#pragma once

#include <QUuid>

#include <span>
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

/// The fewest steps from `shown` to `wanted`: each row that goes, comes or changes its place among
/// the others costs one. An id may repeat: its rows are told apart by their order.
std::vector<RowStep> diffRows(std::span<const QUuid> shown, std::span<const QUuid> wanted);

} // namespace quib
