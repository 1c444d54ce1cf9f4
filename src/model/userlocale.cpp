#include "model/userlocale.h"

#include "model/systemtimezone.h"

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

/// "de_DE" from "de_DE.UTF-8@euro"; plain English where nothing is chosen.
QByteArray localeName(const QByteArray& value)
{
    const auto end = std::ranges::find_if(value, [](char c) { return c == '.' || c == '@'; });
    const auto name = value.first(end - value.begin());
    const bool nothingChosen = name.isEmpty() || name == "C" || name == "POSIX";
    return nothingChosen ? QByteArrayLiteral("en") : name;
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
