#pragma once

#include <QAbstractNativeEventFilter>
#include <QtGlobal>

#include <xcb/xcb.h>

#include <optional>

namespace quib {

/// The keyboard, taken from whoever has it and given back there. The server is asked each time:
/// what Qt knows of the focus is late.
class KeyboardLoan final : private QAbstractNativeEventFilter {
public:
    KeyboardLoan();

    /// False where the window has it already, or can not have it.
    bool take(xcb_window_t window);
    /// Where `window` has it, however that came about: other programs give the keyboard back to
    /// whom they took it from. It goes to the last lender, or to where the pointer is once that has
    /// gone. `click` is the stamp of the click that ended the loan; 0 where its time is not known.
    void giveBack(xcb_window_t window, std::optional<quint32> click) const;
    /// The window that gives the keyboard back as soon as it gets it; none where none does.
    void setRefusing(xcb_window_t window);

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    xcb_window_t m_lender = XCB_NONE; ///< The last known one.
    xcb_window_t m_refusing = XCB_NONE;
};

} // namespace quib
