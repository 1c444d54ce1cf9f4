#pragma once

#include <QKeyEvent>

namespace quib {

/// Finds the repeats of a key that is held down. Qt takes one for a press of its own whenever the
/// server's next event has not come yet; but only a repeat is a press at the moment of the release
/// before it.
class KeyRepeat final {
public:
    /// Sees every event of a key, in turn.
    bool isRepeat(const QKeyEvent& event);

private:
    quint32 m_key = 0; ///< The key's number, of the last release.
    quint64 m_released = 0; ///< The server's time, in milliseconds.
};

} // namespace quib
