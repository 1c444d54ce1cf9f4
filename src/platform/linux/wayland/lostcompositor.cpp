#include "platform/linux/wayland/lostcompositor.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSemaphore>
#include <QThread>

#include <atomic>
#include <memory>

#include <wayland-client-core.h>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr int LongestSaveMs = 3000;

std::atomic<wl_display*> watched = nullptr; // Null once the quit has been announced.
QtMessageHandler printer = nullptr;

void announceQuit()
{
    QMetaObject::invokeMethod(qApp, "aboutToQuit", Qt::DirectConnection);
}

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
    const auto isLost = display != nullptr && wl_display_get_error(display) != 0;
    if (isLost && watched.compare_exchange_strong(display, nullptr)) {
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
