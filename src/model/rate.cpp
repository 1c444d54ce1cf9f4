#include "model/rate.h"

#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr double LongestPlain = 1e15; // From here on, and nearer to zero than the other, numbers
constexpr double ShortestPlain = 1e-6; // are shorter as programs write them.

QLocale numbersOf(const UserLocale& locale)
{
    return QLocale(QString::fromLatin1(locale.money));
}

/// Of spaces, which group to some and slip in for others, and of marks that nobody sees.
QString withoutBlanks(QString text)
{
    return text.removeIf(
        [](QChar c) { return c.isSpace() || c.category() == QChar::Other_Format; });
}

/// With the signs that keyboards and locales write differently in one form.
QString asTyped(const QString& text, const QLocale& locale)
{
    auto typed = withoutBlanks(text);
    typed.replace(u'\u2212', u'-');
    return locale.groupSeparator() == u"’"_s ? typed.replace(u'\'', u'’') : typed;
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
    auto numbers = numbersOf(locale);
    numbers.setNumberOptions(QLocale::OmitGroupSeparator);
    const auto sign = rate < 0 ? u"-"_s : QString();
    return sign + numbers.toString(size, 'f', QLocale::FloatingPointShortest);
}

std::optional<double> rateOf(const QString& text, const UserLocale& locale)
{
    const auto numbers = numbersOf(locale);
    const auto typed = asTyped(text, numbers);
    const auto number = numberIn(typed, numbers);
    return number ? number : numberIn(typed, plainNumbers());
}

} // namespace quib
