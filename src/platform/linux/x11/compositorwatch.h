#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <xcb/xcb.h>

namespace quib {

/// Whether a compositor blends windows with what lies beneath them. It may come and go at any time.
class CompositorWatch final : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    CompositorWatch();

    bool isRunning() const { return m_owner != XCB_NONE; }
    /// xfwm4 never shows a window that looks after itself if that is older than its composing, not
    /// even when it is mapped again.
    bool overlooksOldWindows() const;

Q_SIGNALS:
    /// One went, or came: perhaps in place of another.
    void changed();

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void setOwner(xcb_window_t owner);

    xcb_atom_t m_selection = XCB_ATOM_NONE; ///< Whoever owns it composes this screen.
    int m_eventKind = 0; ///< 0, which no event has, where the server cannot tell.
    xcb_window_t m_owner = XCB_NONE;
};

} // namespace quib
