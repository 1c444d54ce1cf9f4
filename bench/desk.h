#pragma once

#include "desktop/desk/places.h"
#include "screen.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

using Milliseconds = std::chrono::duration<double, std::milli>;
using Samples = std::vector<double>;

// Where things are on a screen of 1600 pixels, at scale 1.
constexpr Point Notch = places::Notch;
constexpr Point InTheNotch = places::InTheNotch;
constexpr Point BelowTheNotch{800, 26};
constexpr Point LowInTheCard{800, 280};
constexpr Point FarAway = places::FarAway;
constexpr Point Field = places::TaskField;
constexpr Point FieldCorner{460, 50};
constexpr int TabCount = 7;
constexpr int TasksTab = 3;

/// Nothing is left of starting by then.
constexpr std::chrono::seconds Settled{3};
/// Nor of what is put away some seconds after the panel has closed.
constexpr std::chrono::seconds PutAway{5};
/// Nor of a spring.
constexpr std::chrono::milliseconds SprungBack{400};

inline double percentile(Samples samples, double share)
{
    std::ranges::sort(samples);
    const auto last = static_cast<double>(samples.size() - 1);
    return samples.at(static_cast<std::size_t>(share * last + 0.5));
}
