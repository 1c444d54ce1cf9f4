#pragma once

#include <QByteArray>
#include <QTimeZone>

namespace quib {

/// The user's conventions for texts, as names that ICU understands. Injected; formatters never
/// read the environment.
struct UserLocale {
    QByteArray money = "en"; ///< "en_GB". Without a country its currency is the pound.
    QByteArray numbers = "en"; ///< For numbers that are typed and shown as such.
    QByteArray dates = "en"; ///< For dates, times, the calendar and the first day of the week.
    QTimeZone timeZone = QTimeZone::utc();

    /// From LC_ALL, LC_MONETARY, LC_NUMERIC, LC_TIME and LANG as they stand now, and the system's
    /// time zone.
    static UserLocale fromEnvironment();

    bool operator==(const UserLocale&) const = default;
};

} // namespace quib
