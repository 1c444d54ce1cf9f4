#pragma once

#include "app/shell/pointersource.h"
#include "model/time/scheduler.h"

#include <memory>

namespace quib {

/// When to look where the pointer is. A source that has to be asked is asked sixty times a second
/// while anything goes on and for a second longer, then only now and then until something does.
class PointerPoll final : public QObject {
    Q_OBJECT

public:
    /// The source is borrowed. Without one, as where nothing is shown, there is nothing to call
    /// here.
    PointerPoll(PointerSource* pointer, Scheduler schedule);

    /// Asks the source on behalf of whoever decides. What it says sets the pace.
    PointerState look();

    void begin();
    /// Something else that decides has changed: a look is due now, and the pace is fast again.
    void wake();
    /// Though the pointer rests.
    void setKeptAwake(bool isKeptAwake) { m_isKeptAwake = isKeptAwake; }

Q_SIGNALS:
    void due();

private:
    void tick();
    std::chrono::milliseconds pause() const;

    PointerSource* m_pointer;
    Scheduler m_schedule;
    PointerState m_last;
    bool m_isKeptAwake = false;
    int m_quietTicks = 0; ///< Since anything went on; no more of them are counted than matter.
    std::unique_ptr<QObject> m_next;
};

} // namespace quib
