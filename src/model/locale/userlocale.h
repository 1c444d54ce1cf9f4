#pragma once

#include <QByteArray>
#include <QTimeZone>

#include <optional>

namespace quib {

/// The user's conventions for texts, as names that ICU understands. Injected; formatters never
/// read the environment.
struct UserLocale {
    QByteArray money = "en"; ///< "en_GB". Without a country its currency is the pound.
    QByteArray numbers = "en"; ///< For numbers that are typed and shown as such.
    QByteArray dates = "en"; ///< For dates, times, the calendar and the first day of the week.
    /// Without one, the system's at the moment it is asked for.
    std::optional<QTimeZone> timeZone = QTimeZone::utc();

    /// From LC_ALL, LC_MONETARY, LC_NUMERIC, LC_TIME and LANG as they stand now, in the system's
    /// time zone.
    static UserLocale fromEnvironment();

    /// In which the user is now.
    QTimeZone zone() const;

    bool operator==(const UserLocale&) const = default;
};

} // namespace quib
