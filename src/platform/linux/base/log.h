#pragma once

#include <QLoggingCategory>

/// What the desktop answered, for a user's report: QT_LOGGING_RULES="quib.*=true" turns it on. Only
/// debug messages go in, and never a text, name or path of the user's.
namespace quib {

Q_DECLARE_LOGGING_CATEGORY(calendarLog)
Q_DECLARE_LOGGING_CATEGORY(instanceLog)
Q_DECLARE_LOGGING_CATEGORY(mediaLog)
Q_DECLARE_LOGGING_CATEGORY(openingLog)
Q_DECLARE_LOGGING_CATEGORY(sessionLog)
Q_DECLARE_LOGGING_CATEGORY(statusItemLog)
Q_DECLARE_LOGGING_CATEGORY(windowLog)

} // namespace quib
