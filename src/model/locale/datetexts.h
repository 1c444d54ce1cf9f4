#pragma once

#include "model/locale/userlocale.h"

#include <QDateTime>
#include <QString>

#include <memory>

namespace quib {

/// Moments and lengths of time in the user's words, and in the time zone that is the user's when
/// they are asked for. Costly to make, cheap to ask: keep one where texts are made often.
class DateTexts {
public:
    explicit DateTexts(const UserLocale& locale);
    ~DateTexts();
    Q_DISABLE_COPY_MOVE(DateTexts)

    QString weekdayAndDay(const QDateTime& moment) const; ///< "Sun, 15 Nov".
    QString dayAndTime(const QDateTime& moment) const; ///< "15 Nov 2026 at 09:41".
    QString timeOfDay(const QDateTime& moment) const; ///< "09:41".
    QString numericDay(const QDateTime& moment) const; ///< "2026-11-15", for the names of files.

    /// The distance from zero in its two largest units: "2 hrs, 1 min". A part that is zero is
    /// left out.
    QString timeSpan(double seconds) const;

private:
    struct Icu;
    std::unique_ptr<Icu> m_icu;
};

} // namespace quib
