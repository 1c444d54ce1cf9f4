#pragma once

#include <QObject>

#include <qqmlintegration.h>

namespace quib {

/// How a spring moves: the period of its free swing in seconds, and the fraction of critical
/// damping, above 0 and up to 1, which never overshoots.
struct SpringShape {
    Q_GADGET
    QML_VALUE_TYPE(springShape)
    Q_PROPERTY(double response MEMBER response)
    Q_PROPERTY(double damping MEMBER damping)

public:
    double response = 0.28;
    double damping = 0.82;

    bool operator==(const SpringShape&) const = default;
};

struct SpringState {
    double value = 0;
    double velocity = 0; ///< Per second.
};

/// The state that much later, solved exactly: one long step ends where many short ones do.
SpringState stepSpring(SpringState state, double target, SpringShape shape, double seconds);

/// Whether what is left to move can no longer be seen, for values of about 0 to 1.
bool hasSettled(SpringState state, double target, SpringShape shape);

} // namespace quib
