#pragma once

#include "model/locale/userlocale.h"

#include <QDateTime>
#include <QString>

#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <memory>

/// What our files with ICU inside share: its values for ours. Included by them alone.
namespace quib::icutext {

inline QString toQString(const icu::UnicodeString& text)
{
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

inline UDate toDate(const QDateTime& moment)
{
    return static_cast<UDate>(moment.toMSecsSinceEpoch());
}

inline icu::Locale dateLocale(const UserLocale& locale)
{
    return {locale.dates.constData()};
}

/// A zone without a name that ICU knows, such as "UTC+05:30", is its distance from UTC.
std::unique_ptr<icu::TimeZone> timeZone(const QTimeZone& zone);

} // namespace quib::icutext
