#pragma once

#include <QColor>
#include <QDateTime>
#include <QString>

#include <optional>

namespace quib {

/// An event, or one instance of a recurring one, as the user's calendars have it.
struct CalendarEntry {
    std::optional<QString> id; ///< The same each time the event is read, and no other event's.
    std::optional<QString> title;
    QDateTime start;
    QDateTime end; ///< Where the next thing may start: midnight after the last day of whole days.
    bool isAllDay = false;
    std::optional<QColor> color; ///< Of the event's calendar.

    bool operator==(const CalendarEntry&) const = default;
};

} // namespace quib
