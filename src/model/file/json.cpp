#include "model/file/json.h"

#include "model/file/largenumbers.h"

#include <algorithm>

namespace quib {

namespace {

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

} // namespace quib
