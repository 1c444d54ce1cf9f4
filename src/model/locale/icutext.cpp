#include "model/locale/icutext.h"

#include "model/time/utc.h"

#include <unicode/simpletz.h>

namespace quib::icutext {

std::unique_ptr<icu::TimeZone> timeZone(const QTimeZone& zone)
{
    const auto name = icu::UnicodeString::fromUTF8(zone.id().constData());
    std::unique_ptr<icu::TimeZone> known(icu::TimeZone::createTimeZone(name));
    if (*known != icu::TimeZone::getUnknown()) {
        return known;
    }
    const auto offset = zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(0, Utc));
    return std::make_unique<icu::SimpleTimeZone>(offset * U_MILLIS_PER_SECOND, name);
}

} // namespace quib::icutext
