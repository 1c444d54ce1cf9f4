#include "platform/linux/wayland/lostcompositor.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSemaphore>
#include <QThread>

#include <atomic>
#include <memory>
#include <utility>

#include <wayland-client-core.h>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr int LongestSaveMs = 3000;

std::atomic<wl_display*> watched = nullptr;
QtMessageHandler printer = nullptr;
bool isAnnounced = false; // Of the main thread, as the announcing is.

void announceQuit()
{
    if (!std::exchange(isAnnounced, true)) {
        QMetaObject::invokeMethod(qApp, "aboutToQuit", Qt::DirectConnection);
    }
}

/// Any thread may be the first to notice, and the main one may notice too while another waits.
void announceQuitOnItsThread()
{
    if (QThread::currentThread() == qApp->thread()) {
        announceQuit();
        return;
    }
    const auto isDone = std::make_shared<QSemaphore>();
    const auto announce = [isDone] {
        announceQuit();
        isDone->release();
    };
    QMetaObject::invokeMethod(qApp, announce, Qt::QueuedConnection);
    isDone->tryAcquire(1, LongestSaveMs);
}

/// What the console is spared.
bool isDefaultWarning(QtMsgType type, const QMessageLogContext& context)
{
    return type == QtWarningMsg
        && (context.category == nullptr || QLatin1StringView(context.category) == "default"_L1);
}

void hear(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    auto* display = watched.load();
    if (display != nullptr && wl_display_get_error(display) != 0) {
        announceQuitOnItsThread();
    }
    if (!isDefaultWarning(type, context)) {
        printer(type, context, text);
    }
}

} // namespace

LostCompositor::LostCompositor(wl_display* display, QObject* parent)
    : QObject(parent)
    , m_wereWarningsShown(QLoggingCategory::defaultCategory()->isWarningEnabled())
{
    watched = display;
    isAnnounced = false;
    // Qt's word is one of them.
    QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, true);
    printer = qInstallMessageHandler(hear);
}

LostCompositor::~LostCompositor()
{
    watched = nullptr;
    qInstallMessageHandler(printer);
    QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, m_wereWarningsShown);
}

} // namespace quib
