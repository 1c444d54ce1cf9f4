#pragma once

#include "integrations/calendar/calendarentry.h"

namespace quib {

/// From one moment to another.
struct Span {
    QDateTime from;
    QDateTime to;

    bool operator==(const Span&) const = default;

    /// Also in part. What takes no time counts at its moment.
    bool has(const CalendarEntry& entry) const
    {
        return entry.start < to && (entry.end > from || entry.start >= from);
    }

    /// With a day before and after. The service takes times of no zone, and whole days, to be in
    /// UTC when it searches: they may lie up to 14 hours elsewhere.
    Span widened() const { return {.from = from.addDays(-1), .to = to.addDays(1)}; }
};

} // namespace quib
