#pragma once

#include "platform/linux/bus.h"

namespace quib {

/// The user's session bus.
class SessionBus final : public Bus {
    Q_OBJECT

public:
    /// The one that the environment names. While it does not answer, Qt and GIO are told that there
    /// is none: they would wait for it without end, or start a stray one.
    SessionBus();
    using Bus::Bus;
};

} // namespace quib
