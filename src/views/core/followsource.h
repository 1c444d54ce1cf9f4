#pragma once

#include <QObject>
#include <QPointer>

#include <type_traits>

namespace quib {

/// Lets `follower` follow another source, or none: `follow` is called now, after each of the
/// signals, and when the source dies, which it may do first: it is borrowed. False when it is the
/// same source as before.
template <typename Source, typename Follower, typename... Signals>
bool followSource(QPointer<Source>& current, std::type_identity_t<Source>* next, Follower* follower,
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
        QObject::connect(current, &QObject::destroyed, follower, follow);
    }
    (follower->*follow)();
    return true;
}

} // namespace quib
