#pragma once

#include "model/locale/datetexts.h"
#include "model/locale/money.h"
#include "model/locale/userlocale.h"
#include "model/texts/duration.h"

#include <QDateTime>
#include <QObject>

#include <qqmlintegration.h>

namespace quib {

/// The model's formatters for bindings, in the user's locale: views build no texts of their own.
class Format : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static QString formatDuration(double seconds, bool withSeconds)
    {
        return quib::formatDuration(seconds, withSeconds);
    }

    /// In the user's currency, without fractions.
    Q_INVOKABLE QString formatMoney(double amount) const { return m_money.format(amount); }

    /// Of the tab bar: abbreviated weekday, month and day.
    Q_INVOKABLE QString weekdayAndDay(const QDateTime& moment) const
    {
        return m_dates.weekdayAndDay(moment);
    }

    /// Bindings ask anew with each `now`: the user may have come to another time zone.
    Q_INVOKABLE QString timeOfDay(const QDateTime& moment, const QDateTime& /*now*/) const
    {
        return m_dates.timeOfDay(moment);
    }

    /// How far a moment is from another, before or after.
    Q_INVOKABLE QString timeBetween(const QDateTime& from, const QDateTime& to) const
    {
        return m_dates.timeSpan(static_cast<double>(from.msecsTo(to)) / 1000);
    }

private:
    DateTexts m_dates{UserLocale::fromEnvironment()};
    MoneyFormatter m_money{UserLocale::fromEnvironment()};
};

} // namespace quib
