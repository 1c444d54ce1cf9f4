#pragma once

namespace quib {

/// Whether the program starts with the user's session. Implemented once per platform; on the main
/// thread.
class LoginItem {
public:
    LoginItem() = default;
    virtual ~LoginItem() = default;
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;

    /// As the desktop will act on it, read anew each time.
    virtual bool isEnabled() const = 0;
    virtual bool enable() = 0; ///< False when it could not be done.
    virtual bool disable() = 0; ///< False when it could not be done.
};

} // namespace quib
