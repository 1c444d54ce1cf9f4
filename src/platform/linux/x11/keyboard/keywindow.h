#pragma once

#include <QAbstractNativeEventFilter>
#include <QWindow>

#include <xcb/xcb.h>

namespace quib {

/// Has the keyboard in place of a panel that no window manager touches, since the compositors of
/// Wayland desktops give it to no such window. It is theirs to look after and never seen: a pixel
/// that lies under the panel. What it hears counts as heard by the panel.
class KeyWindow final : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    KeyWindow();

    /// None while there is none.
    void setPanel(xcb_window_t panel) { m_panel = panel; }
    /// Asks for the keyboard: it comes later, or never. False where it is here or was asked for.
    bool take(QPoint under);
    /// To whoever had it before.
    void giveBack();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    enum class Keyboard { Elsewhere, AskedFor, Here };

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void note(const xcb_generic_event_t& event);
    void noteFocus(const xcb_focus_in_event_t& event);
    void askForTime();
    void show();

    QWindow m_window;
    xcb_window_t m_native = XCB_NONE;
    xcb_window_t m_panel = XCB_NONE;
    xcb_atom_t m_time = XCB_ATOM_NONE;
    Keyboard m_keyboard = Keyboard::Elsewhere;
};

} // namespace quib
