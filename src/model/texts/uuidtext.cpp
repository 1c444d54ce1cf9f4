#include "model/texts/uuidtext.h"

#include <QtEndian>

#include <charconv>

namespace quib {

namespace {

constexpr std::string_view Form = "00000000-0000-0000-0000-000000000000";
constexpr std::string_view Digits = "0123456789ABCDEF";

template <typename Number>
bool readHex(std::string_view digits, Number& out)
{
    const auto* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, out, 16);
    return read.ec == std::errc() && read.ptr == end;
}

bool hasHyphens(std::string_view text)
{
    return text[8] == '-' && text[13] == '-' && text[18] == '-' && text[23] == '-';
}

} // namespace

UuidText uuidText(const QUuid& id)
{
    UuidText out{};
    Form.copy(out.data(), out.size());
    std::size_t at = 0;
    for (const char each : id.toRfc4122()) {
        const auto byte = static_cast<unsigned char>(each);
        at += Form[at] == '-' ? 1U : 0U;
        out[at++] = Digits[byte / 16U];
        out[at++] = Digits[byte % 16U];
    }
    return out;
}

std::optional<QUuid> parseUuid(std::string_view text)
{
    if (text.size() != Form.size() || !hasHyphens(text)) {
        return {};
    }
    QUuid id;
    quint16 clock = 0;
    quint64 node = 0;
    const bool isRead = readHex(text.substr(0, 8), id.data1) && readHex(text.substr(9, 4), id.data2)
        && readHex(text.substr(14, 4), id.data3) && readHex(text.substr(19, 4), clock)
        && readHex(text.substr(24), node);
    qToBigEndian<quint64>(quint64(clock) << 48U | node, id.data4);
    return isRead ? std::optional(id) : std::nullopt;
}

} // namespace quib
