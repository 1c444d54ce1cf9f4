#pragma once

#include <QByteArray>

#include <simdjson.h>

namespace quib {

/// Reads a whole text, valid to its last byte and nested however deep, into the parser's tree. A
/// byte order mark is skipped. A number beyond any double is an empty object in the tree.
simdjson::simdjson_result<simdjson::dom::element> parseJson(simdjson::dom::parser& parser,
                                                            const QByteArray& bytes);

/// The same bytes with room behind them that a parser may read.
QByteArray withRoomBehind(const QByteArray& bytes);

/// What a parser is to read of bytes with such room; a byte order mark is skipped.
simdjson::padded_string_view withoutMark(const QByteArray& bytes);

} // namespace quib
