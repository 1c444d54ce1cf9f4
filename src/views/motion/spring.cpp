#include "views/motion/spring.h"

#include <cmath>
#include <numbers>

namespace quib {

namespace {

constexpr double SettledDistance = 0.0005;

double angularFrequency(SpringShape shape)
{
    return 2 * std::numbers::pi / shape.response;
}

SpringState stepCriticallyDamped(SpringState away, double frequency, double seconds)
{
    const double fading = std::exp(-frequency * seconds);
    const double slope = away.velocity + frequency * away.value;
    return {.value = (away.value + slope * seconds) * fading,
            .velocity = (away.velocity - frequency * slope * seconds) * fading};
}

SpringState stepUnderdamped(SpringState away, double frequency, double damping, double seconds)
{
    const double swing = frequency * std::sqrt(1 - damping * damping);
    const double drag = damping * frequency;
    const double fading = std::exp(-drag * seconds);
    const double cosine = std::cos(swing * seconds);
    const double sine = std::sin(swing * seconds);
    const double pull = drag * away.velocity + frequency * frequency * away.value;
    return {.value
            = fading * (away.value * cosine + (away.velocity + drag * away.value) / swing * sine),
            .velocity = fading * (away.velocity * cosine - pull / swing * sine)};
}

} // namespace

SpringState stepSpring(SpringState state, double target, SpringShape shape, double seconds)
{
    const SpringState away{.value = state.value - target, .velocity = state.velocity};
    const double frequency = angularFrequency(shape);
    const auto later = shape.damping < 1 ? stepUnderdamped(away, frequency, shape.damping, seconds)
                                         : stepCriticallyDamped(away, frequency, seconds);
    return {.value = target + later.value, .velocity = later.velocity};
}

bool hasSettled(SpringState state, double target, SpringShape shape)
{
    return std::abs(state.value - target) < SettledDistance
        && std::abs(state.velocity) < SettledDistance * angularFrequency(shape);
}

} // namespace quib
