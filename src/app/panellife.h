#pragma once

#include "app/notch/geometry.h"
#include "app/notch/hover.h"
#include "app/notch/notchmodel.h"
#include "app/shell/pointerpoll.h"
#include "model/store.h"
#include "model/time/scheduler.h"
#include "platform/platform.h"

#include <QObject>

#include <memory>
#include <optional>

namespace quib {

/// Where the panel is and when its card opens and closes. It reads the screens and the pointer
/// through the seams, asks the pure functions of app/notch what to do, and does it.
class PanelLife : public QObject {
    Q_OBJECT

public:
    /// All are borrowed.
    PanelLife(const Platform& platform, NotchModel& model, const Store& store, Scheduler schedule);

    /// Where the pointer opens the card, in global points.
    QRectF collapsedRect() const;

    /// Shows the panel, there is one now, and follows screens, pointer and clicks.
    void begin();
    /// Measures the notch and places the panel. Without any screen the last geometry stays.
    void layout();
    /// One look at the pointer.
    void checkHover();
    /// Nothing while the screen is locked.
    void expand(bool toShelf);
    /// After 0.06 s, or at the next turn of the main loop. The tab stays.
    void collapse(bool immediately);
    /// Closes the card at once, unless it is kept open.
    void dismiss();
    /// Opens the panel and pins it, or it would collapse at once: the pointer is elsewhere.
    void openQuib();
    /// The same, with the keyboard.
    void activate();
    /// A locked screen shows nothing; what was kept open is so again after the unlocking.
    void setLocked(bool isLocked);
    /// To whom it was taken from. A click that closes the card counts as theirs.
    void giveBackKeyboard();

Q_SIGNALS:
    /// On something else than the card, which is kept open.
    void clickedElsewhere();

private:
    void installMouseMonitors();
    void followWhatDecides();
    void followExpansion();
    void followHoverRect();
    void globalClick(quint32 time);
    void cancelCollapse();
    bool isKeptOpen() const;
    QRectF hoverRect() const;
    HoverTick tickAt(const PointerState& pointer) const;

    const Platform& m_platform;
    NotchModel& m_model;
    const Store& m_store;
    Scheduler m_schedule;
    PointerPoll m_poll;
    Screen m_screen; ///< As of the last layout.
    std::unique_ptr<QObject> m_collapseWork; ///< Present while a collapse is pending.
    std::optional<quint32> m_endingClick; ///< The click that the pending collapse is due to.
};

} // namespace quib
