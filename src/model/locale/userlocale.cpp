#include "model/locale/userlocale.h"

#include "model/time/systemtimezone.h"

#include <unicode/uchar.h>
#include <unicode/uloc.h>
#include <unicode/uscript.h>

#include <algorithm>
#include <array>

namespace quib {

namespace {

/// The first of the variables that says anything, in the order in which they outrank one another.
QByteArray firstSet(const std::array<const char*, 3>& variables)
{
    for (const auto* variable : variables) {
        if (auto value = qgetenv(variable); !value.isEmpty()) {
            return value;
        }
    }
    return {};
}

bool isKnown(const QByteArray& locale)
{
    int number = uloc_countAvailable() - 1;
    while (number >= 0 && locale != uloc_getAvailable(number)) {
        --number;
    }
    return number >= 0;
}

/// "sr_Latn_RS" for "sr_RS" in "latin"; as it is where the language is not written so.
QByteArray inScript(const QByteArray& name, const QByteArray& script)
{
    const auto code = u_getPropertyValueEnum(UCHAR_SCRIPT, script.constData());
    const auto language = name.split('_').front();
    const auto written = language + '_' + uscript_getShortName(UScriptCode(code));
    return isKnown(written) ? written + name.mid(language.size()) : name;
}

/// "de_DE" from "de_DE.UTF-8@euro"; plain English where nothing is chosen.
QByteArray localeName(const QByteArray& value)
{
    const auto end = std::ranges::find_if(value, [](char c) { return c == '.' || c == '@'; });
    const auto name = value.first(end - value.begin());
    const bool nothingChosen = name.isEmpty() || name == "C" || name == "POSIX";
    if (nothingChosen) {
        return QByteArrayLiteral("en");
    }
    const auto modifier = value.indexOf('@');
    return modifier < 0 ? name : inScript(name, value.mid(modifier + 1));
}

} // namespace

UserLocale UserLocale::fromEnvironment()
{
    return {.money = localeName(firstSet({"LC_ALL", "LC_MONETARY", "LANG"})),
            .numbers = localeName(firstSet({"LC_ALL", "LC_NUMERIC", "LANG"})),
            .dates = localeName(firstSet({"LC_ALL", "LC_TIME", "LANG"})),
            .timeZone = std::nullopt};
}

QTimeZone UserLocale::zone() const
{
    return timeZone ? *timeZone : systemTimeZone();
}

} // namespace quib
