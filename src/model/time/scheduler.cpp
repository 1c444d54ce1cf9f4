#include "model/time/scheduler.h"

#include <QTimer>

#include <utility>

namespace quib {

std::unique_ptr<QObject> scheduleOnMainLoop(std::chrono::milliseconds delay,
                                            std::function<void()> work)
{
    auto timer = std::make_unique<QTimer>();
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    timer->callOnTimeout(std::move(work));
    timer->start(delay);
    return timer;
}

} // namespace quib
