#pragma once

#include "integrations/calendar/calendarentry.h"
#include "model/records/quibdata.h"
#include "model/time/utc.h"

#include <QByteArrayList>

#include <optional>

/// The moment of every picture, a Wednesday.
inline const QDateTime Now{QDate(2026, 11, 18), QTime(14, 37, 12), quib::Utc};

/// What a panel has to show.
struct Day {
    quib::QuibData data;
    QByteArrayList shortcuts{R"({"groups": []})"}; ///< The file in its versions, the last one last.
    QString playing; ///< What Spotify replies. Empty while no player runs.
    /// Absent while the calendars have not been asked for.
    std::optional<QList<quib::CalendarEntry>> events;
};

/// Each keeps its files in that folder.
using DayMaker = Day (*)(const QString& folder);

/// Nothing is recorded, plays or is connected.
Day emptyDay(const QString& folder);
/// A freelancer in the middle of the week.
Day richDay(const QString& folder);
/// What no one would type, and what files hold nonetheless.
Day hostileDay(const QString& folder);
/// A freelancer in Cairo.
Day arabicDay(const QString& folder);
