#include "model/json/largenumbers.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <string_view>

using namespace std::string_view_literals;

namespace quib {

namespace {

constexpr std::size_t SafeLength = 18; // As many digits always fit in 64 bits.
constexpr auto StartOfNumber = "+-.0123456789"sv;
constexpr auto PartOfNumber = "+-.0123456789eE"sv;
constexpr auto StartOfNumberOrText = R"("+-.0123456789)"sv;
constexpr auto QuoteOrBackslash = R"("\)"sv;
constexpr auto Nowhere = std::string_view::npos;

QByteArrayView bytesOf(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// Takes the digits off the start of the text; false when there are none.
bool takeDigits(std::string_view& text)
{
    const auto digits = std::min(text.find_first_not_of("0123456789"sv), text.size());
    text.remove_prefix(digits);
    return digits > 0;
}

bool takeOneOf(std::string_view& text, std::string_view characters)
{
    const bool isThere = text.find_first_of(characters) == 0;
    text.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

/// By the grammar of JSON, whatever its value.
bool isNumber(std::string_view text)
{
    takeOneOf(text, "-"sv);
    const bool hasWhole = takeOneOf(text, "0"sv) || takeDigits(text);
    const bool isFractionWhole = !takeOneOf(text, "."sv) || takeDigits(text);
    if (takeOneOf(text, "eE"sv)) {
        takeOneOf(text, "+-"sv);
        return hasWhole && isFractionWhole && takeDigits(text) && text.empty();
    }
    return hasWhole && isFractionWhole && text.empty();
}

bool isLongInteger(std::string_view number)
{
    return number.size() > SafeLength && number.find_first_not_of("-0123456789"sv) == Nowhere;
}

/// Absent when the number can stay as it is.
std::optional<QByteArray> replacementOf(std::string_view number)
{
    if (!isNumber(number)) {
        return std::nullopt;
    }
    if (std::isinf(QString::fromLatin1(bytesOf(number)).toDouble())) {
        return "{}";
    }
    return isLongInteger(number) ? std::optional(bytesOf(number).toByteArray() + "e0")
                                 : std::nullopt;
}

/// The text that the first quote opens, to its closing quote or to the end.
std::string_view textAtStart(std::string_view json)
{
    auto at = json.find_first_of(QuoteOrBackslash, 1);
    while (at != Nowhere && json[at] == '\\') {
        at = json.find_first_of(QuoteOrBackslash, at + 2);
    }
    return at == Nowhere ? json : json.substr(0, at + 1);
}

/// A text, what may be a number, or what lies between such.
std::string_view pieceAtStart(std::string_view json)
{
    if (json.front() == '"') {
        return textAtStart(json);
    }
    const bool mayBeNumber = StartOfNumber.find(json.front()) != Nowhere;
    return json.substr(0,
                       mayBeNumber ? json.find_first_not_of(PartOfNumber)
                                   : json.find_first_of(StartOfNumberOrText));
}

} // namespace

std::optional<QByteArray> withoutLargeNumbers(const QByteArray& json)
{
    std::string_view rest(json.constData(), static_cast<std::size_t>(json.size()));
    QByteArray result;
    bool isChanged = false;
    while (!rest.empty()) {
        const auto piece = pieceAtStart(rest);
        const auto replacement = replacementOf(piece);
        result.append(replacement ? QByteArrayView(*replacement) : bytesOf(piece));
        isChanged = isChanged || replacement;
        rest.remove_prefix(piece.size());
    }
    return isChanged ? std::optional(result) : std::nullopt;
}

} // namespace quib
