#include "model/locale/money.h"

#include "model/locale/icutext.h"

#include <unicode/numberformatter.h>
#include <unicode/ucurr.h>

namespace quib {

namespace {

constexpr std::size_t CodeLength = 3;
using CurrencyCode = std::array<char16_t, CodeLength + 1>;

/// That of the locale's country; without one, the pound.
CurrencyCode currencyOf(const icu::Locale& locale)
{
    CurrencyCode code{};
    UErrorCode error = U_ZERO_ERROR;
    const auto length = ucurr_forLocale(locale.getName(), code.data(), CodeLength + 1, &error);
    return U_SUCCESS(error) && length == CodeLength ? code : CurrencyCode{u"GBP"};
}

icu::number::LocalizedNumberFormatter formatterFor(const icu::Locale& locale)
{
    UErrorCode error = U_ZERO_ERROR;
    return icu::number::NumberFormatter::withLocale(locale)
        .unit(icu::CurrencyUnit(currencyOf(locale).data(), error))
        .precision(icu::number::Precision::integer())
        .sign(UNUM_SIGN_NEGATIVE) // None before a zero.
        .roundingMode(UNUM_ROUND_HALFEVEN);
}

} // namespace

struct MoneyFormatter::Icu {
    icu::number::LocalizedNumberFormatter formatter;
};

MoneyFormatter::MoneyFormatter(const UserLocale& locale)
    : m_icu(new Icu{formatterFor(icu::Locale(locale.money.constData()))})
{
}

MoneyFormatter::~MoneyFormatter() = default;

QString MoneyFormatter::format(double amount) const
{
    UErrorCode error = U_ZERO_ERROR;
    return icutext::toQString(m_icu->formatter.formatDouble(amount, error).toString(error));
}

QString formatMoney(double amount, const UserLocale& locale)
{
    return MoneyFormatter(locale).format(amount);
}

} // namespace quib
