#include "bytes.h"
#include "platform/linux/base/gowned.h"
#include "platform/linux/calendar/eds/occurrence.h"

using namespace quib;

/// An event as a calendar has it comes out with a start and an end after it, or not at all.
int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    const QByteArray text = Bytes(bytes, size).rest();
    const GOwned<ICalComponent> event(i_cal_component_new_from_string(text.constData()));
    if (!event) {
        return 0;
    }
    const GOwned<ICalTime> start(i_cal_component_get_dtstart(event.get()));
    const GOwned<ICalTime> end(i_cal_component_get_dtend(event.get()));
    for (auto* const zone :
         {static_cast<ICalTimezone*>(nullptr), i_cal_timezone_get_utc_timezone()}) {
        const auto entry = entryOf({.event = event.get(), .start = start.get(), .end = end.get()},
                                   {.id = QStringLiteral("id"), .color = {}, .floatingZone = zone});
        demand(!entry
               || (entry->start.isValid() && entry->end.isValid() && entry->start <= entry->end));
        demand(!entry || !entry->title || !entry->title->isEmpty());
    }
    return 0;
}
