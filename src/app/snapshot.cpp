#include "app/snapshot.h"

#include "app/appdelegate.h"
#include "app/notchpanel.h"
#include "app/offscreenpanel.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quib::Snapshot {

namespace {

constexpr auto SettlingTime = 400ms;
constexpr auto LookingTime = 20ms;
constexpr std::chrono::milliseconds LongestWait = 3s; // For all tabs together.

/// The main loop of this mode: there is no other.
void runLoop(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(time);
    loop.exec();
}

/// Icons and events come when others have answered. Patience ends before the user's does.
void awaitAnswers(const AppDelegate& delegate, const QDeadlineTimer& deadline)
{
    const auto& platform = delegate.platform();
    while ((platform.files->isBusy() || platform.icons->isBusy() || delegate.calendar().isWaiting())
           && !deadline.hasExpired()) {
        runLoop(LookingTime);
    }
}

} // namespace

void run(const QString& folder, AppDelegate& delegate)
{
    delegate.model().setMotionReduced(true);
    const QDeadlineTimer deadline(SettlingTime * AllTabs.size() + LongestWait);
    for (const auto tab : AllTabs) {
        delegate.model().setTab(tab);
        delegate.model().setExpanded(true);
        OffscreenPanel panel(delegate.viewContext());
        runLoop(SettlingTime);
        awaitAnswers(delegate, deadline);
        panel.picture().save(QDir(folder).filePath(rawText(tab) + u".png"_s), "PNG");
    }
}

} // namespace quib::Snapshot
