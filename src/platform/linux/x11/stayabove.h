#pragma once

#include <QAbstractNativeEventFilter>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <xcb/xcb.h>

#include <array>
#include <chrono>

namespace quib {

/// How long to wait before the next rise. Who rises again and again has somebody against him who
/// does so too.
std::chrono::milliseconds waitAfter(int risesInARow);

/// Keeps a window that no window manager touches above all those that one looks after, whichever
/// way a window manager raises them. What others keep above by themselves stays above it.
class StayAbove final : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    StayAbove();

    /// None while there is none.
    void setWindow(xcb_window_t window);
    /// Lets others come above, or does so no longer.
    void setResting(bool resting);

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    bool mayHaveCovered(const xcb_generic_event_t& event) const;
    void stir();
    void rise();

    xcb_window_t m_window = XCB_NONE;
    xcb_window_t m_root = XCB_NONE;
    std::array<xcb_atom_t, 3> m_lists{}; ///< Of the root: they change once a window is managed.
    bool m_isResting = false;
    QTimer m_wait;
    QElapsedTimer m_sinceRise;
    int m_risesInARow = 0;
};

} // namespace quib
