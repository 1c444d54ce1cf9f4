#pragma once

#include "platform/linux/window/linuxpanelhost.h"
#include "platform/linux/x11/base/xserver.h"
#include "platform/linux/x11/keyboard/keyrepeat.h"

#include <QPointer>
#include <QWindow>

namespace quib {

/// A panel that no window manager touches: above all windows of theirs, on all desktops, never
/// focused by itself. How clicks beside it reach what lies beneath, and how it gets the keyboard,
/// differs with who composes the screen.
class X11PanelHost : public LinuxPanelHost {
    Q_OBJECT

public:
    void adopt(QWindow& window) override;
    void place(const QRectF& frame) override;
    void setInputRegion(const QRegion& region) override;
    void orderFront() override;
    QRect cardFrame() const override;

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    QWindow* window() const { return m_window; } ///< Null once it is gone.
    const QRect& frame() const { return m_frame; } ///< In global points.
    const QRegion& inputRegion() const { return m_inputRegion; }
    /// Does not make one; none while there is none.
    xcb_window_t nativeWindow() const { return nativeOf(m_window); }

    /// Puts the window where it belongs now.
    void arrange();
    QRect wantedGeometry() const;
    /// The part of the frame that the window takes up.
    virtual QRect extent() const { return m_frame; }
    virtual void setGeometry(const QRect& geometry) { m_window->setGeometry(geometry); }
    /// Qt may give the window a new native one at any time.
    virtual void follow(xcb_window_t native) = 0;
    /// Tells the server what it does not know yet.
    virtual void apply() = 0;

private:
    void endRescaling();
    void followSurface(const QEvent& event);
    bool tellRepeat(QKeyEvent& event);

    QPointer<QWindow> m_window;
    QRect m_frame;
    double m_scale = 1; ///< Pixels to a point when the window was last placed.
    bool m_isRescaling = false;
    QRegion m_inputRegion;
    KeyRepeat m_keyRepeat;
};

} // namespace quib
