#pragma once

#include "app/shell/pointersource.h"

#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <optional>

class QDrag;
class QSinglePointEvent;
class QTouchEvent;

namespace quib {

/// The pointer as one window is told of it, for desktops that tell no program more: where it goes
/// beyond the window, and what is pressed there, stays unknown. A drag tells of itself.
class WindowPointer final : public PointerSource {
    Q_OBJECT

public:
    WindowPointer();

    /// The window is borrowed and may die first. Until then the pointer is nowhere.
    void watch(QWindow& window);
    /// Where the window lies, in global points, for desktops that do not tell its program.
    void setOrigin(QPointF origin);
    /// The next entering may be long past, and counts once the pointer moves.
    void doubtNextEnter();
    /// For a moment leaving does not count: the window grows under the pointer, and whoever tells
    /// of the pointer may learn of that late.
    void doubtLeaving();

    /// Far away while it is not over the window.
    PointerState state() const override;
    bool needsPolling() const override { return false; }
    bool announceNextChange() override { return true; } // As every other.

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void follow(const QEvent& event);
    void followTouch(const QTouchEvent& event);
    void followDrag(const QEvent& event);
    void endDrag();
    void setLeftHeld(bool isHeld);
    void comeTo(QPointF place);
    void leave();
    QPointF placeOf(const QSinglePointEvent& event) const;
    QPointF origin() const;
    QDrag* latestDrag() const;
    bool isOurDrag() const;

    QPointer<QWindow> m_window;
    std::optional<QPointF> m_origin; ///< Absent where the window knows where it lies.
    QPointF m_place; ///< Where it was last told of: the window may move away from under it.
    bool m_isInside = false;
    bool m_isNextEnterDoubted = false;
    bool m_isLeftHeld = false; ///< As far as the window knows.
    bool m_isDraggedOver = false;
    bool m_isDragOurs = false;
    QPointer<QObject> m_endedDrag; ///< The latest of ours that is known to be over.
    QTimer m_leavingDoubted; ///< Runs while it is.
    QTimer m_afterDrag; ///< Runs until the desktop has found out where a drag has left the pointer.
};

} // namespace quib
