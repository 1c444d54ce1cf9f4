#include "model/texts/duration.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr double LongestShown = 1e15; // Seconds; what is longer does not fit an integer for ever.

QString twoDigits(qint64 value)
{
    return u"%1"_s.arg(value, 2, 10, QLatin1Char('0'));
}

QString clockText(qint64 hours, qint64 minutes, qint64 seconds)
{
    if (hours == 0) {
        return u"%1:%2"_s.arg(minutes).arg(twoDigits(seconds));
    }
    return u"%1:%2:%3"_s.arg(hours).arg(twoDigits(minutes), twoDigits(seconds));
}

QString roughText(qint64 hours, qint64 minutes)
{
    return hours == 0 ? u"%1m"_s.arg(minutes) : u"%1h %2m"_s.arg(hours).arg(minutes);
}

} // namespace

QString formatDuration(double seconds, bool withSeconds)
{
    const bool counts = seconds > 0; // False for what is no number, too.
    const auto total = counts ? static_cast<qint64>(std::min(seconds, LongestShown)) : 0;
    const auto hours = total / 3600;
    const auto minutes = total % 3600 / 60;
    return withSeconds ? clockText(hours, minutes, total % 60) : roughText(hours, minutes);
}

} // namespace quib
