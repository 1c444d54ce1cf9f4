#pragma once

#include "model/locale/userlocale.h"
#include "model/records/quibdata.h"
#include "model/texts/bytesink.h"

#include <QByteArray>

#include <optional>

namespace quib {

/// Writes all entries of all time as CSV in UTF-8, a line each under a heading; running ones end
/// now. Quotes are doubled in notes but, by choice, not in clients' names. False when the sink says
/// so.
bool writeTimesheet(const QuibData& data, const QDateTime& now, const ByteSink& sink);

/// The same as a whole.
QByteArray timesheetCsv(const QuibData& data, const QDateTime& now);

/// "Korvel-timesheet-2026-03-02.csv", dated by the user's calendar and time zone.
QString timesheetName(const QDateTime& now, const UserLocale& locale);

/// Where the user's downloads go, whether or not there is such a folder; absent when unknown.
std::optional<QString> downloadsFolder();

} // namespace quib
