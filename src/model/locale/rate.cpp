#include "model/locale/rate.h"

#include "model/locale/money.h"

#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr double LongestPlain = 1e15; // From here on, and nearer to zero than the other, numbers
constexpr double ShortestPlain = 1e-6; // are shorter as programs write them.

QLocale localeOf(const QByteArray& name)
{
    return QLocale(QString::fromLatin1(name));
}

/// Without the marks that nobody sees and the blanks that slip in, around a number or between its
/// groups. Absent where a blank tells two numbers apart.
std::optional<QString> withoutBlanks(QString text)
{
    static const QRegularExpression between(u"(?<=\\d)\\s+(?=\\d)"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression grouping(u"(?<=\\d)\\s+(?=\\d{3}(?!\\d))"_s,
                                             QRegularExpression::UseUnicodePropertiesOption);
    text.removeIf([](QChar c) { return c.category() == QChar::Other_Format; });
    text.remove(grouping);
    if (text.contains(between)) {
        return std::nullopt;
    }
    return text.removeIf([](QChar c) { return c.isSpace(); });
}

/// With the signs that keyboards and locales write differently in one form.
QString asTyped(QString text, const QLocale& locale)
{
    text.replace(u'\u2212', u'-');
    const auto grouping = locale.groupSeparator();
    const bool isApostrophe = grouping == u"’"_s || grouping == u"'"_s;
    return isApostrophe ? text.replace(u'\'', grouping).replace(u'’', grouping) : text;
}

std::optional<double> numberIn(const QString& text, const QLocale& locale)
{
    bool isNumber = false;
    const auto number = locale.toDouble(text, &isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

/// As programs write numbers.
QLocale plainNumbers()
{
    auto plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    return plain;
}

std::optional<double> numberOf(const QString& text, const UserLocale& locale)
{
    const auto typed = withoutBlanks(text);
    if (!typed) {
        return std::nullopt;
    }
    for (const auto& name : {locale.numbers, locale.money}) {
        const auto numbers = localeOf(name);
        if (const auto number = numberIn(asTyped(*typed, numbers), numbers)) {
            return number;
        }
    }
    return numberIn(asTyped(*typed, QLocale::c()), plainNumbers());
}

/// What stands beside an amount in the user's currency: as we write it, and as others do.
QStringList currencySymbols(const UserLocale& locale)
{
    auto ours = formatMoney(0, locale);
    ours.removeIf(
        [](QChar c) { return c.isDigit() || c.isSpace() || c.category() == QChar::Other_Format; });
    const auto country = localeOf(locale.money);
    return {ours, country.currencySymbol(), country.currencySymbol(QLocale::CurrencyIsoCode)};
}

QString withoutCurrency(const QString& text, const UserLocale& locale)
{
    auto amount = text.trimmed();
    for (const auto& symbol : currencySymbols(locale)) {
        if (!symbol.isEmpty() && amount.startsWith(symbol, Qt::CaseInsensitive)) {
            return amount.mid(symbol.size());
        }
        if (!symbol.isEmpty() && amount.endsWith(symbol, Qt::CaseInsensitive)) {
            return amount.chopped(symbol.size());
        }
    }
    return amount;
}

} // namespace

QString rateText(double rate, const UserLocale& locale)
{
    if (!std::isfinite(rate)) {
        return {};
    }
    const auto size = std::abs(rate);
    if (size != 0 && (size < ShortestPlain || size >= LongestPlain)) {
        return QString::number(rate, 'g', QLocale::FloatingPointShortest);
    }
    auto numbers = localeOf(locale.numbers);
    numbers.setNumberOptions(QLocale::OmitGroupSeparator);
    const auto sign = rate < 0 ? u"-"_s : QString();
    return sign + numbers.toString(size, 'f', QLocale::FloatingPointShortest);
}

std::optional<double> rateOf(const QString& text, const UserLocale& locale)
{
    const auto number = numberOf(text, locale);
    return number ? number : numberOf(withoutCurrency(text, locale), locale);
}

} // namespace quib
