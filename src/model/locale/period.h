#pragma once

#include "model/locale/userlocale.h"

#include <QDateTime>

namespace quib {

/// The first moment of the day in the user's time zone, in UTC like the others below.
QDateTime startOfDay(const QDateTime& now, const UserLocale& locale);

/// The first moment of the week in the user's calendar; where the calendar has no weeks, of the
/// day.
QDateTime startOfWeek(const QDateTime& now, const UserLocale& locale);

/// The first moment of the month in the user's calendar; where the calendar has no months, now.
QDateTime startOfMonth(const QDateTime& now, const UserLocale& locale);

} // namespace quib
