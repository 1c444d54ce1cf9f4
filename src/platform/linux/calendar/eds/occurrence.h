#pragma once

#include "integrations/calendar/calendarentry.h"

#include <libecal/libecal.h>

namespace quib {

/// What the events of one calendar have in common.
struct CalendarFacts {
    QString id;
    std::optional<QColor> color;
    ICalTimezone* floatingZone = nullptr; ///< Of times without one; null stands for the local one.
};

CalendarFacts factsOf(ESource* calendar, ICalTimezone* floatingZone);

/// An event when it happens. Borrowed.
struct Occurrence {
    ICalComponent* event = nullptr;
    ICalTime* start = nullptr;
    ICalTime* end = nullptr;
};

/// Absent where the event is cancelled or has no time.
std::optional<CalendarEntry> entryOf(const Occurrence& occurrence, const CalendarFacts& facts);

} // namespace quib
