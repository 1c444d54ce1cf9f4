#include "platform/linux/base/busanswer.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>

namespace quib {

void whenAnswered(const QDBusPendingCall& call, QObject* context, const QLoggingCategory& log,
                  const char* what, std::function<void(const QDBusPendingCall& answer)> take)
{
    auto* watcher = new QDBusPendingCallWatcher(call, context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [watcher, &log, what, take = std::move(take)] {
                         watcher->deleteLater();
                         qCDebug(log) << what
                                      << (watcher->isError() ? qPrintable(watcher->error().name())
                                                             : "is answered");
                         take(*watcher);
                     });
}

} // namespace quib
