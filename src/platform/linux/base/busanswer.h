#pragma once

#include <QDBusPendingCall>
#include <QLoggingCategory>

#include <functional>

namespace quib {

/// Has `take` called on this thread with the answer to a call, or with what went wrong with it,
/// unless `context` dies first. The log is told how the call named `what` went, not what came.
void whenAnswered(const QDBusPendingCall& call, QObject* context, const QLoggingCategory& log,
                  const char* what, std::function<void(const QDBusPendingCall& answer)> take);

} // namespace quib
