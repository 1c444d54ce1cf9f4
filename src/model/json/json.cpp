#include "model/json/json.h"

#include "model/json/largenumbers.h"
#include "model/texts/utf8.h"
#include "model/texts/uuidtext.h"
#include "model/time/isodate.h"

#include <algorithm>

namespace quib {

namespace {

namespace dom = simdjson::dom;
namespace ondemand = simdjson::ondemand;

constexpr auto Padding = static_cast<qsizetype>(simdjson::SIMDJSON_PADDING);
constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

/// The parser reads beyond the text: without room behind it, it takes a copy.
auto parseAsItStands(simdjson::dom::parser& parser, const QByteArray& bytes)
{
    const bool mustCopy = bytes.capacity() - bytes.size() < Padding;
    const auto marked = bytes.startsWith(ByteOrderMark) ? ByteOrderMark.size() : 0;
    return parser.parse(bytes.constData() + marked, static_cast<std::size_t>(bytes.size() - marked),
                        mustCopy);
}

/// Since version 4 an integer beyond 64 bits is an error of its own.
template <typename Error>
bool isOfANumber(Error error)
{
    if constexpr (requires { Error::BIGINT_ERROR; }) {
        return error == Error::BIGINT_ERROR || error == Error::NUMBER_ERROR;
    }
    return error == Error::NUMBER_ERROR;
}

/// In brackets: at the start of a whole text a byte order mark would be skipped.
auto parseAlone(dom::parser& parser, std::string_view json)
{
    const QByteArrayView bytes(json.data(), static_cast<qsizetype>(json.size()));
    return parseJson(parser, '[' + bytes.toByteArray() + ']');
}

} // namespace

simdjson::simdjson_result<simdjson::dom::element> parseJson(simdjson::dom::parser& parser,
                                                            const QByteArray& bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    const auto deepest = std::max(size, simdjson::DEFAULT_MAX_DEPTH); // Takes no memory until used.
    if (const auto error = parser.allocate(size, deepest)) {
        return error;
    }
    const auto tree = parseAsItStands(parser, bytes);
    const auto other = isOfANumber(tree.error()) ? withoutLargeNumbers(bytes) : std::nullopt;
    return other ? parseAsItStands(parser, *other) : tree;
}

QByteArray withRoomBehind(const QByteArray& bytes)
{
    auto roomy = bytes;
    if (bytes.capacity() - bytes.size() < Padding) {
        roomy.reserve(bytes.size() + Padding);
    }
    return roomy;
}

simdjson::padded_string_view withoutMark(const QByteArray& bytes)
{
    const auto marked = bytes.startsWith(ByteOrderMark) ? ByteOrderMark.size() : 0;
    return simdjson::padded_string_view(bytes.constData() + marked,
                                        static_cast<std::size_t>(bytes.size() - marked),
                                        static_cast<std::size_t>(bytes.capacity() - marked));
}

/// A text that has nothing escaped is read where it stands.
bool readValue(ondemand::value value, std::string_view& out)
{
    const auto token = value.raw_json_token();
    if (token.find('\\') != std::string_view::npos) {
        return !value.get_string().get(out);
    }
    out = token.substr(1, token.rfind('"') - 1);
    return !value.get_raw_json_string().error();
}

bool readValue(ondemand::value value, bool& out)
{
    return !value.get_bool().get(out);
}

bool readValue(ondemand::value value, double& out)
{
    dom::parser parser;
    return !parseAlone(parser, value.raw_json_token()).at(0).get_double().get(out);
}

bool readValue(ondemand::value value, QString& out)
{
    std::string_view text;
    const bool isText = readValue(value, text);
    out = isText ? utf8Text(text) : QString();
    return isText;
}

bool readValue(ondemand::value value, QUuid& out)
{
    std::string_view text;
    return readValue(value, text) && take(parseUuid(text), out);
}

bool readValue(ondemand::value value, QDateTime& out)
{
    std::string_view text;
    return readValue(value, text) && take(parseIsoDate(text), out);
}

bool readKey(ondemand::field& field, std::string_view& out)
{
    const auto* const start = field.key().raw();
    const auto* end = start;
    while (*end != '"' && *end != '\\') {
        ++end;
    }
    out = {start, static_cast<std::size_t>(end - start)};
    return *end == '"' || !field.unescaped_key().get(out);
}

bool passOver(ondemand::value value)
{
    auto type = ondemand::json_type::null;
    std::string_view json;
    if (value.type().get(type)) {
        return false;
    }
    if (type == ondemand::json_type::string) {
        return readValue(value, json);
    }
    dom::parser parser;
    return !simdjson::to_json_string(value).get(json) && !parseAlone(parser, json).error();
}

} // namespace quib
