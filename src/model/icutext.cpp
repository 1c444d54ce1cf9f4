#include "model/icutext.h"

#include <unicode/simpletz.h>

namespace quib::icutext {

std::unique_ptr<icu::TimeZone> timeZone(const UserLocale& locale)
{
    const auto name = icu::UnicodeString::fromUTF8(locale.timeZone.id().constData());
    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(name));
    if (*zone != icu::TimeZone::getUnknown()) {
        return zone;
    }
    const auto offset = locale.timeZone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(0, Qt::UTC));
    return std::make_unique<icu::SimpleTimeZone>(offset * U_MILLIS_PER_SECOND, name);
}

} // namespace quib::icutext
