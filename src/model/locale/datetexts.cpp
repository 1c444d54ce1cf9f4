#include "model/locale/datetexts.h"

#include "model/locale/icutext.h"

#include <unicode/dtptngen.h>
#include <unicode/measfmt.h>
#include <unicode/measunit.h>
#include <unicode/measure.h>
#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace quib {

namespace {

constexpr double LongestSpan = 1e15; // Seconds; what is longer does not fit an integer for ever.

struct SpanUnit {
    qint64 seconds;
    icu::MeasureUnit* (*create)(UErrorCode&);
};

constexpr std::array SpanUnits{
    SpanUnit{86400, icu::MeasureUnit::createDay}, SpanUnit{3600, icu::MeasureUnit::createHour},
    SpanUnit{60, icu::MeasureUnit::createMinute}, SpanUnit{1, icu::MeasureUnit::createSecond}};

icu::Measure measure(qint64 amount, const SpanUnit& unit)
{
    UErrorCode error = U_ZERO_ERROR;
    auto* const adopted = unit.create(error);
    return {icu::Formattable(static_cast<int64_t>(amount)), adopted, error};
}

/// The largest unit that the length fills, and the next smaller one.
std::vector<icu::Measure> partsOf(qint64 seconds)
{
    const auto* largest = std::ranges::find_if(
        SpanUnits, [&](const SpanUnit& unit) { return seconds >= unit.seconds; });
    if (largest == SpanUnits.end()) {
        return {measure(0, SpanUnits.back())};
    }
    std::vector<icu::Measure> parts{measure(seconds / largest->seconds, *largest)};
    const auto* next = largest + 1;
    const auto rest = seconds % largest->seconds;
    if (next != SpanUnits.end() && rest >= next->seconds) {
        parts.push_back(measure(rest / next->seconds, *next));
    }
    return parts;
}

} // namespace

/// Formats are made when first asked for: a start shows one of them.
struct DateTexts::Icu {
    using Format = std::unique_ptr<icu::SimpleDateFormat>;

    struct Formats {
        QTimeZone zone;
        Format weekdayAndDay;
        Format dayAndTime;
        Format timeOfDay;
        Format numericDay;
    };

    UserLocale user;
    icu::Locale locale;
    std::unique_ptr<icu::DateTimePatternGenerator> patterns;
    std::unique_ptr<icu::MeasureFormat> measures;
    Formats made;

    /// Those of the time zone as it is now.
    Formats& formats()
    {
        if (const auto zone = user.zone(); made.zone != zone) {
            made = {.zone = zone};
        }
        return made;
    }

    icu::UnicodeString best(const char16_t* skeleton)
    {
        UErrorCode error = U_ZERO_ERROR;
        if (!patterns) {
            patterns.reset(icu::DateTimePatternGenerator::createInstance(locale, error));
        }
        return patterns ? patterns->getBestPattern(skeleton, error) : icu::UnicodeString();
    }

    /// "d MMM y 'at' HH:mm": the day and the time in the words that join them in a long date.
    icu::UnicodeString dayAndTimePattern()
    {
        const auto day = best(u"yMMMd");
        const auto time = best(u"jmm");
        UErrorCode error = U_ZERO_ERROR;
        auto joined
            = patterns ? patterns->getDateTimeFormat(UDAT_LONG, error) : icu::UnicodeString();
        return joined.findAndReplace(u"{1}", day).findAndReplace(u"{0}", time);
    }

    Format formatFor(const icu::UnicodeString& pattern, const icu::Locale& spokenIn) const
    {
        UErrorCode error = U_ZERO_ERROR;
        auto format = std::make_unique<icu::SimpleDateFormat>(pattern, spokenIn, error);
        if (U_FAILURE(error)) {
            return {};
        }
        format->adoptTimeZone(icutext::timeZone(made.zone).release());
        return format;
    }

    static QString textOf(const Format& format, const QDateTime& moment)
    {
        icu::UnicodeString text;
        return format ? icutext::toQString(format->format(icutext::toDate(moment), text))
                      : QString();
    }
};

DateTexts::DateTexts(const UserLocale& locale)
    : m_icu(new Icu{.user = locale, .locale = icutext::dateLocale(locale)})
{
}

DateTexts::~DateTexts() = default;

QString DateTexts::weekdayAndDay(const QDateTime& moment) const
{
    auto& format = m_icu->formats().weekdayAndDay;
    if (!format) {
        format = m_icu->formatFor(m_icu->best(u"EEEMMMd"), m_icu->locale);
    }
    return Icu::textOf(format, moment);
}

QString DateTexts::dayAndTime(const QDateTime& moment) const
{
    auto& format = m_icu->formats().dayAndTime;
    if (!format) {
        format = m_icu->formatFor(m_icu->dayAndTimePattern(), m_icu->locale);
    }
    return Icu::textOf(format, moment);
}

QString DateTexts::timeOfDay(const QDateTime& moment) const
{
    auto& format = m_icu->formats().timeOfDay;
    if (!format) {
        format = m_icu->formatFor(m_icu->best(u"jmm"), m_icu->locale);
    }
    return Icu::textOf(format, moment);
}

QString DateTexts::numericDay(const QDateTime& moment) const
{
    auto& format = m_icu->formats().numericDay;
    if (!format) {
        auto plainDigits = m_icu->locale;
        UErrorCode error = U_ZERO_ERROR;
        plainDigits.setKeywordValue("numbers", "latn", error);
        format = m_icu->formatFor(u"yyyy-MM-dd", plainDigits);
    }
    return Icu::textOf(format, moment);
}

QString DateTexts::timeSpan(double seconds) const
{
    UErrorCode error = U_ZERO_ERROR;
    if (!m_icu->measures) {
        m_icu->measures
            = std::make_unique<icu::MeasureFormat>(m_icu->locale, UMEASFMT_WIDTH_SHORT, error);
    }
    const auto distance = std::isfinite(seconds) ? std::min(std::abs(seconds), LongestSpan) : 0;
    const auto parts = partsOf(static_cast<qint64>(distance));
    icu::UnicodeString text;
    icu::FieldPosition nowhere;
    return icutext::toQString(m_icu->measures->formatMeasures(
        parts.data(), static_cast<int32_t>(parts.size()), text, nowhere, error));
}

} // namespace quib
