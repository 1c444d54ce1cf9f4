#include "platform/linux/calendar/eds/occurrence.h"

#include "platform/linux/base/gowned.h"

#include <algorithm>

namespace quib {

namespace {

/// Of "#rrggbbaa", which others write too, the opaque part: Qt reads "#aarrggbb".
std::optional<QColor> colorNamed(const QString& name)
{
    const bool hasOpacity = name.size() == 9 && name.startsWith(u'#');
    const QColor color(hasOpacity ? name.first(7) : name);
    return color.isValid() ? std::optional(color) : std::nullopt;
}

/// Where the user is; kept so, it would be another moment once that changes.
QDateTime localMomentOf(ICalTime* time, ICalTimezone* floatingZone)
{
    const QDate day(i_cal_time_get_year(time), i_cal_time_get_month(time),
                    i_cal_time_get_day(time));
    if (i_cal_time_is_date(time)) {
        return day.startOfDay();
    }
    auto* const own = i_cal_time_get_timezone(time);
    auto* const zone = own != nullptr ? own : floatingZone;
    if (zone == nullptr) {
        return {day,
                QTime(i_cal_time_get_hour(time), i_cal_time_get_minute(time),
                      i_cal_time_get_second(time))};
    }
    return QDateTime::fromSecsSinceEpoch(i_cal_time_as_timet_with_zone(time, zone));
}

QDateTime momentOf(ICalTime* time, ICalTimezone* floatingZone)
{
    return localMomentOf(time, floatingZone).toUTC();
}

std::optional<QString> titleOf(ICalComponent* event)
{
    const auto title = QString::fromUtf8(i_cal_component_get_summary(event));
    return title.isEmpty() ? std::nullopt : std::optional(title);
}

/// The instances of a recurring event share its UID. Which one it is says the time that it was
/// meant for, also when it has been moved.
QString idOf(ICalComponent* event, const QString& calendar)
{
    auto id = calendar + u'/' + QString::fromUtf8(i_cal_component_get_uid(event));
    const GOwned<ICalTime> meantFor(i_cal_component_get_recurrenceid(event));
    if (meantFor && !i_cal_time_is_null_time(meantFor.get())) {
        const GText time(i_cal_time_as_ical_string(meantFor.get()));
        id += u'/' + QString::fromUtf8(time.get());
    }
    return id;
}

} // namespace

CalendarFacts factsOf(ESource* calendar, ICalTimezone* floatingZone)
{
    auto* extension = e_source_get_extension(calendar, E_SOURCE_EXTENSION_CALENDAR);
    const GText color(e_source_selectable_dup_color(E_SOURCE_SELECTABLE(extension)));
    return {.id = QString::fromUtf8(e_source_get_uid(calendar)),
            .color = colorNamed(QString::fromUtf8(color.get())),
            .floatingZone = floatingZone};
}

std::optional<CalendarEntry> entryOf(const Occurrence& occurrence, const CalendarFacts& facts)
{
    if (i_cal_component_get_status(occurrence.event) == I_CAL_STATUS_CANCELLED) {
        return std::nullopt;
    }
    const auto start = momentOf(occurrence.start, facts.floatingZone);
    const auto end = momentOf(occurrence.end, facts.floatingZone);
    if (!start.isValid() || !end.isValid()) {
        return std::nullopt;
    }
    return CalendarEntry{.id = idOf(occurrence.event, facts.id),
                         .title = titleOf(occurrence.event),
                         .start = start,
                         .end = std::max(start, end),
                         .isAllDay = i_cal_time_is_date(occurrence.start) != FALSE,
                         .color = facts.color};
}

} // namespace quib
