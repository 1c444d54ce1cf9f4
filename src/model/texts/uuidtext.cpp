#include "model/texts/uuidtext.h"

#include <QtEndian>

#include <algorithm>

namespace quib {

namespace {

constexpr std::string_view Form = "00000000-0000-0000-0000-000000000000";
constexpr std::string_view Digits = "0123456789ABCDEF";
constexpr quint8 NoDigit = 0xFF;

/// The value of each character as a hexadecimal digit.
constexpr auto DigitValues = [] {
    std::array<quint8, 256> values{};
    values.fill(NoDigit);
    for (std::size_t value = 0; value < Digits.size(); ++value) {
        const auto upper = static_cast<unsigned char>(Digits[value]);
        values[upper] = static_cast<quint8>(value);
        values[upper | 0x20U] = static_cast<quint8>(value); // The digits have that bit already.
    }
    return values;
}();

/// Where in the text the two digits of each of the 16 bytes stand.
constexpr auto BytePlaces = [] {
    std::array<std::size_t, 16> places{};
    std::size_t at = 0;
    for (auto& place : places) {
        at += Form[at] == '-' ? 1U : 0U;
        place = at;
        at += 2;
    }
    return places;
}();

using Bytes = std::array<uchar, BytePlaces.size()>;

Bytes bytesOf(const QUuid& id)
{
    Bytes bytes{};
    qToBigEndian<quint32>(id.data1, bytes.data());
    qToBigEndian<quint16>(id.data2, &bytes[4]);
    qToBigEndian<quint16>(id.data3, &bytes[6]);
    std::ranges::copy(id.data4, &bytes[8]);
    return bytes;
}

QUuid idOf(const Bytes& bytes)
{
    QUuid id;
    id.data1 = qFromBigEndian<quint32>(bytes.data());
    id.data2 = qFromBigEndian<quint16>(&bytes[4]);
    id.data3 = qFromBigEndian<quint16>(&bytes[6]);
    std::copy(&bytes[8], bytes.data() + bytes.size(), id.data4);
    return id;
}

quint8 digitAt(std::string_view text, std::size_t at)
{
    return DigitValues[static_cast<unsigned char>(text[at])];
}

bool hasHyphens(std::string_view text)
{
    return text[8] == '-' && text[13] == '-' && text[18] == '-' && text[23] == '-';
}

} // namespace

UuidText uuidText(const QUuid& id)
{
    const auto bytes = bytesOf(id);
    UuidText out{};
    Form.copy(out.data(), out.size());
    for (std::size_t byte = 0; byte < BytePlaces.size(); ++byte) {
        const auto value = bytes[byte];
        out[BytePlaces[byte]] = Digits[value / 16];
        out[BytePlaces[byte] + 1] = Digits[value % 16];
    }
    return out;
}

std::optional<QUuid> parseUuid(std::string_view text)
{
    if (text.size() != Form.size() || !hasHyphens(text)) {
        return {};
    }
    Bytes bytes{};
    unsigned allDigits = 0; // One that is none leaves bits that no digit has.
    for (std::size_t byte = 0; byte < BytePlaces.size(); ++byte) {
        const unsigned high = digitAt(text, BytePlaces[byte]);
        const unsigned low = digitAt(text, BytePlaces[byte] + 1);
        allDigits |= high | low;
        bytes[byte] = static_cast<uchar>(high << 4U | low);
    }
    return allDigits < Digits.size() ? std::optional(idOf(bytes)) : std::nullopt;
}

} // namespace quib
