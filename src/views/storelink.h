#pragma once

#include "model/store.h"

#include <QPointer>

namespace quib {

/// Lets `follower` follow another store, or none: `follow` is called now, and after each of the
/// signals. False when it is the same store as before. The store is borrowed and may die first.
template <typename Follower, typename... Signals>
bool followStore(QPointer<Store>& current, Store* next, Follower* follower,
                 void (Follower::*follow)(), Signals... changes)
{
    if (current == next) {
        return false;
    }
    if (current) {
        current->disconnect(follower);
    }
    current = next;
    if (current) {
        (QObject::connect(current, changes, follower, follow), ...);
    }
    (follower->*follow)();
    return true;
}

} // namespace quib
