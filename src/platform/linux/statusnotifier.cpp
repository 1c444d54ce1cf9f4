#include "platform/linux/statusnotifier.h"

namespace quib {

void StatusNotifier::install(const StatusIcon& /*icon*/) { }

void StatusNotifier::setMenu(const QList<MenuItem>& /*menu*/) { }

} // namespace quib
