#include "model/locale/period.h"

#include "model/locale/icutext.h"
#include "model/time/utc.h"

#include <unicode/calendar.h>

#include <array>
#include <optional>

namespace quib {

namespace {

constexpr int DaysInWeek = 7;
constexpr std::array TimeFields{UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND};

using Calendar = std::unique_ptr<icu::Calendar>;

/// The user's calendar at that moment; null when there is none.
Calendar calendarAt(const QDateTime& moment, const UserLocale& locale)
{
    UErrorCode error = U_ZERO_ERROR;
    Calendar calendar(icu::Calendar::createInstance(icutext::timeZone(locale.zone()).release(),
                                                    icutext::dateLocale(locale), error));
    if (U_FAILURE(error) || !calendar) {
        return {};
    }
    calendar->setTime(icutext::toDate(moment), error);
    return calendar;
}

/// Where clocks are changed at midnight it may come twice, or be skipped.
void goToFirstMomentOfDay(icu::Calendar& calendar)
{
    calendar.setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
    for (const auto field : TimeFields) {
        calendar.set(field, 0);
    }
}

std::optional<QDateTime> momentOf(const icu::Calendar& calendar)
{
    UErrorCode error = U_ZERO_ERROR;
    const auto time = calendar.getTime(error);
    return U_SUCCESS(error)
        ? std::optional(QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(time), Utc))
        : std::nullopt;
}

} // namespace

QDateTime startOfDay(const QDateTime& now, const UserLocale& locale)
{
    const auto calendar = calendarAt(now, locale);
    if (!calendar) {
        const auto zone = locale.zone();
        return now.toTimeZone(zone).date().startOfDay(zone).toUTC();
    }
    goToFirstMomentOfDay(*calendar);
    return momentOf(*calendar).value_or(now);
}

QDateTime startOfWeek(const QDateTime& now, const UserLocale& locale)
{
    const auto calendar = calendarAt(now, locale);
    if (!calendar) {
        return startOfDay(now, locale);
    }
    UErrorCode error = U_ZERO_ERROR;
    const int weekday = calendar->get(UCAL_DAY_OF_WEEK, error);
    const int first = calendar->getFirstDayOfWeek(error);
    calendar->add(UCAL_DAY_OF_MONTH, -((weekday - first + DaysInWeek) % DaysInWeek), error);
    goToFirstMomentOfDay(*calendar);
    const auto start = U_SUCCESS(error) ? momentOf(*calendar) : std::nullopt;
    return start ? *start : startOfDay(now, locale);
}

QDateTime startOfMonth(const QDateTime& now, const UserLocale& locale)
{
    const auto calendar = calendarAt(now, locale);
    if (!calendar) {
        return now;
    }
    calendar->set(UCAL_DATE, 1);
    goToFirstMomentOfDay(*calendar);
    return momentOf(*calendar).value_or(now);
}

} // namespace quib
