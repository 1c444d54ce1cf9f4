#pragma once

#include "platform/linux/bus.h"

namespace quib {

/// Hides a session bus that does not answer from this process, as long as what it gives is there.
/// Null where there is nothing to hide. Needs no application object.
std::unique_ptr<QObject> hideHungSessionBus();

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
