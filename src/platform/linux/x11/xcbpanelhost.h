#pragma once

#include "platform/linux/x11/compositorwatch.h"
#include "platform/linux/x11/keyboard/keyboardloan.h"
#include "platform/linux/x11/stayabove.h"
#include "platform/linux/x11/windowshape.h"
#include "platform/linux/x11/x11panelhost.h"

namespace quib {

/// A panel on an X server of its own. Clicks pass where the input region ends; without a compositor
/// the window has the shape of what is drawn, or it would show as a black box.
class XcbPanelHost final : public X11PanelHost {
    Q_OBJECT

public:
    XcbPanelHost();

    void setHoverRect(const QRect& /*rect*/) override { } // The pointer is asked wherever it is.
    void setVisibleShape(const QPainterPath& shape) override;
    void orderFront() override;
    bool takeKeyboard() override;
    void giveBackKeyboard(std::optional<quint32> click) override;
    void placeBelow(quint32 window) override;

protected:
    void follow(xcb_window_t native) override;
    void apply() override;

private:
    void followCompositor();
    void introduceAnew();
    void applyVisibleShape();

    std::optional<QPainterPath> m_visibleShape; ///< Absent until told.
    CompositorWatch m_compositor;
    WindowShape m_shape;
    StayAbove m_stayAbove;
    KeyboardLoan m_keyboard;
};

} // namespace quib
