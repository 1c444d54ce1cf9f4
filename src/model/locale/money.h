#pragma once

#include "model/locale/userlocale.h"

#include <QString>

#include <memory>

namespace quib {

/// Amounts in the currency and manner of the user's country: "£1,234". No fraction digits; halves
/// are rounded to even. Costly to make, cheap to ask: keep one where many amounts are shown.
class MoneyFormatter {
public:
    explicit MoneyFormatter(const UserLocale& locale);
    ~MoneyFormatter();
    Q_DISABLE_COPY_MOVE(MoneyFormatter)

    QString format(double amount) const;

private:
    struct Icu;
    std::unique_ptr<const Icu> m_icu;
};

QString formatMoney(double amount, const UserLocale& locale);

} // namespace quib
