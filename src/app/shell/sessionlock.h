#pragma once

#include <QObject>

namespace quib {

/// Whether the user's session is locked, so that somebody else may look at the screen. Implemented
/// once per platform; nothing here blocks.
class SessionLock : public QObject {
    Q_OBJECT

public:
    /// False until the system has answered, and where it does not tell.
    virtual bool isLocked() const = 0;

Q_SIGNALS:
    void isLockedChanged();
};

} // namespace quib
