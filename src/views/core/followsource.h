#pragma once

#include <QObject>
#include <QPointer>

#include <type_traits>
#include <vector>

namespace quib {

/// A signal that says no more than that something is different now.
template <typename Source>
using Change = void (Source::*)();

/// Lets `follower` follow another source, or none: `follow` is called now, after each of the
/// changes, and when the source dies, which it may do first: it is borrowed. False when it is the
/// same source as before.
template <typename Source, typename Follower>
bool followSource(QPointer<Source>& current, std::type_identity_t<Source>* next, Follower* follower,
                  void (Follower::*follow)(), const std::vector<Change<Source>>& changes)
{
    if (current == next) {
        return false;
    }
    if (current) {
        current->disconnect(follower);
    }
    current = next;
    if (current) {
        for (const auto changed : changes) {
            QObject::connect(current, changed, follower, follow);
        }
        QObject::connect(current, &QObject::destroyed, follower, follow);
    }
    (follower->*follow)();
    return true;
}

} // namespace quib
