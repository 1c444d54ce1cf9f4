#pragma once

#include "platform/linux/x11/keyboard/keywindow.h"
#include "platform/linux/x11/x11panelhost.h"

#include <QTimer>

namespace quib {

class WindowPointer;

/// A panel on the X server of a Wayland desktop. Compositors know nothing of where such a window
/// takes clicks but its size, so it is no larger than it has to be.
class XwaylandPanelHost final : public X11PanelHost {
    Q_OBJECT

public:
    /// The pointer is borrowed and outlives this.
    explicit XwaylandPanelHost(WindowPointer& pointer);

    void adopt(QWindow& window) override;
    void setHoverRect(const QRect& rect) override;
    void setVisibleShape(const QPainterPath& shape) override;
    bool takeKeyboard() override;
    void giveBackKeyboard(std::optional<quint32> click) override;
    /// Compositors keep such a window above all windows that they look after.
    void placeBelow(quint32 /*window*/) override { }

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    QRect extent() const override;
    void setGeometry(const QRect& geometry) override;
    void follow(xcb_window_t native) override;
    void apply() override;

private:
    QRect needed() const;
    bool isDrawnWithin(const QRect& rect) const;
    void shrink();
    void goOn();

    WindowPointer& m_pointer;
    QRect m_hoverRect; ///< In points of the whole window, as are the others.
    QRect m_extent;
    QSizeF m_drawn;
    QTimer m_beforeShrinking;
    QTimer m_beforeDrawing; ///< Runs until the server has answered.
    bool m_isFrameDue = false;
    KeyWindow m_keys;
};

} // namespace quib
