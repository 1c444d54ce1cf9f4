#pragma once

#include <QAbstractNativeEventFilter>
#include <QList>
#include <QRegion>

#include <xcb/xcb.h>

#include <optional>

namespace quib {

/// The two shapes of one native window, in its pixels: where it takes clicks and where it is drawn.
/// Tells the server only what it does not know yet.
class WindowShape final : private QAbstractNativeEventFilter {
public:
    WindowShape();

    /// A window has no shapes at first: it takes clicks, and is drawn, everywhere.
    void setWindow(xcb_window_t window);
    void setInput(const QRegion& region);
    /// Absent: everywhere.
    void setBounding(const std::optional<QRegion>& region);
    /// The same for a frame that is drawn right after. What comes into sight with it is painted
    /// already when the server tells of it, and all of the window need not be painted once more.
    void setBoundingOfFrame(const QRegion& region);

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    xcb_window_t m_window = XCB_NONE;
    std::optional<QRegion> m_input;
    std::optional<QRegion> m_bounding;
    QList<uint32_t> m_frames; ///< The numbers of requests whose events may still come.
};

} // namespace quib
