#include "platform/linux/base/log.h"

namespace quib {

Q_LOGGING_CATEGORY(calendarLog, "quib.calendar", QtWarningMsg)
Q_LOGGING_CATEGORY(instanceLog, "quib.instance", QtWarningMsg)
Q_LOGGING_CATEGORY(mediaLog, "quib.media", QtWarningMsg)
Q_LOGGING_CATEGORY(openingLog, "quib.opening", QtWarningMsg)
Q_LOGGING_CATEGORY(sessionLog, "quib.session", QtWarningMsg)
Q_LOGGING_CATEGORY(statusItemLog, "quib.statusitem", QtWarningMsg)
Q_LOGGING_CATEGORY(windowLog, "quib.window", QtWarningMsg)

} // namespace quib
