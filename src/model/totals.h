#pragma once

#include "model/client.h"
#include "model/timeentry.h"

#include <QList>

namespace quib {

/// The time worked for one client.
struct ClientTotal {
    std::optional<Client> client; ///< Absent for unassigned time, and where the client is gone.
    double seconds = 0;

    bool operator==(const ClientTotal&) const = default;
};

} // namespace quib
