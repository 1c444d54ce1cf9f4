#pragma once

#include "platform/linux/wayland/keyboardreturn.h"
#include "platform/linux/wayland/layershell.h"
#include "platform/linux/wayland/layersurface.h"
#include "platform/linux/window/linuxpanelhost.h"

#include <QPointer>
#include <QWindow>

class QPlatformSurfaceEvent;

namespace quib {

class WindowPointer;

/// A panel in the compositor's layer above all windows. It takes input in the hover's rectangle
/// only, and the keyboard only when asked to. Where its output goes it is made anew on another.
class WaylandPanelHost final : public LinuxPanelHost {
    Q_OBJECT

public:
    /// The pointer is borrowed, outlives this and watches the window that is adopted.
    explicit WaylandPanelHost(WindowPointer& pointer);

    void adopt(QWindow& window) override;
    void place(const QRectF& frame) override;
    void setInputRegion(const QRegion& region) override;
    void setHoverRect(const QRect& rect) override;
    void setVisibleShape(const QPainterPath& /*shape*/) override { } // Compositors blend.
    void orderFront() override;
    bool takeKeyboard() override;
    void giveBackKeyboard(std::optional<quint32> click) override;

    QRect cardFrame() const override;
    void placeBelow(quint32 window) override;

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    enum class Keyboard { NotWanted, Asked, Lent };

    void show();
    void showAnew();
    void setBelowWindows(bool below);
    bool isOn(const QScreen& screen) const;
    void makeSurface(QScreen& screen);
    void applyHoverRect();
    void followKeyboard(bool hasIt);
    void returnWhatWasNotAskedFor();
    void followSurface(const QPlatformSurfaceEvent& event);
    bool isFocused() const;

    LayerShell m_shell;
    WindowPointer& m_pointer;
    QPointer<QWindow> m_window;
    QPointer<QScreen> m_screen; ///< That the surface is on; null while there is no surface.
    std::unique_ptr<LayerSurface> m_surface;
    QRect m_frame; ///< In global points.
    QRegion m_inputRegion;
    QRect m_hoverRect;
    bool m_isShown = false;
    bool m_isBelowWindows = false;
    Keyboard m_keyboard = Keyboard::NotWanted;
    KeyboardReturn m_return{m_shell};
};

} // namespace quib
