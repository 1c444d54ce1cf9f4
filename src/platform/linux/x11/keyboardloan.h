#pragma once

#include <QtGlobal>

#include <xcb/xcb.h>

#include <optional>

namespace quib {

/// The keyboard, taken from whoever has it and given back there. The server is asked each time:
/// what Qt knows of the focus is late.
class KeyboardLoan {
public:
    void take(xcb_window_t window);
    /// To the window that had it, if `window` took it and still has it. `click` is the stamp of the
    /// click that ended the loan; 0 where its time is not known.
    void giveBack(xcb_window_t window, std::optional<quint32> click);
    /// To be told when the window may have lost the keyboard to another.
    void checkStillOurs(xcb_window_t window);

private:
    std::optional<xcb_window_t> m_lender; ///< Present from taking until the keyboard has gone on.
};

} // namespace quib
