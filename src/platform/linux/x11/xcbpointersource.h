#pragma once

#include "app/shell/pointersource.h"
#include "platform/linux/x11/base/xserver.h"

#include <QAbstractNativeEventFilter>

#include <xcb/xinput.h>

#include <memory>
#include <optional>

namespace quib {

class PressEdge;

/// The pointer of the X server, asked on a connection of its own, which costs half of Qt's. Clicks
/// come from XInput's raw events, which are told whatever window, menu or drag has the pointer.
class XcbPointerSource final : public PointerSource, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    enum class Clicks { FromXInput, FromPolling };

    /// Without XInput clicks are found by polling in any case; short ones are missed then, and
    /// their time is 0.
    explicit XcbPointerSource(Clicks clicks = Clicks::FromXInput);
    ~XcbPointerSource() override;

    /// The last one where the server is gone.
    PointerState state() const override;
    bool needsPolling() const override { return true; }
    bool announceNextChange() override;

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    bool followRawEvents();
    void follow(const xcb_input_raw_button_press_event_t& event);
    bool isLeft(quint32 physicalButton);

    XcbConnection m_connection;
    xcb_window_t m_root;
    mutable PointerState m_last;
    std::unique_ptr<PressEdge> m_edge; ///< Only where clicks are found by polling.
    uint8_t m_xinput = 0; ///< The extension's number in events.
    uint32_t m_changes = 0; ///< What the server can tell of them; nothing without XInput.
    bool m_isAnnouncing = false; ///< Presses are told of all the time, other changes then.
    std::optional<QByteArray> m_mapping; ///< Logical button of each physical; absent when outdated.
};

} // namespace quib
