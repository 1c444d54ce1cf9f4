#pragma once

#include "platform/linux/linuxpanelhost.h"
#include "platform/linux/x11/compositorwatch.h"
#include "platform/linux/x11/keyboardloan.h"
#include "platform/linux/x11/keyrepeat.h"
#include "platform/linux/x11/stayabove.h"
#include "platform/linux/x11/windowshape.h"

#include <QPointer>
#include <QWindow>

namespace quib {

/// A panel that no window manager touches: above all windows of theirs, on all desktops, never
/// focused by itself. Clicks pass where the input region ends; without a compositor the window has
/// the shape of what is drawn, or it would show as a black box.
class XcbPanelHost final : public LinuxPanelHost {
    Q_OBJECT

public:
    XcbPanelHost();

    void adopt(QWindow& window) override;
    void place(const QRectF& frame) override;
    void setInputRegion(const QRegion& region) override;
    void setHoverRect(const QRect& /*rect*/) override { } // The pointer is asked wherever it is.
    void setVisibleShape(const QPainterPath& shape) override;
    void orderFront() override;
    bool takeKeyboard() override;
    void giveBackKeyboard(std::optional<quint32> click) override;
    QRect cardFrame() const override;
    void placeBelow(quint32 window) override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void followCompositor();
    void introduceAnew();
    void endRescaling();
    void followSurface(const QEvent& event);
    bool tellRepeat(QKeyEvent& event);
    void applyInputRegion();
    void applyVisibleShape();
    void applyShapes();
    xcb_window_t nativeWindow() const;

    QPointer<QWindow> m_window;
    QRect m_frame; ///< In global points.
    double m_scale = 1; ///< Pixels to a point when the window was last placed.
    bool m_isRescaling = false;
    QRegion m_inputRegion;
    std::optional<QPainterPath> m_visibleShape; ///< Absent until told.
    CompositorWatch m_compositor;
    WindowShape m_shape;
    StayAbove m_stayAbove;
    KeyboardLoan m_keyboard;
    KeyRepeat m_keyRepeat;
};

} // namespace quib
