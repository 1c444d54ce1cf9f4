#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QUuid>

#include <simdjson.h>

#include <optional>
#include <string_view>

/// JSON as every file of ours is read: strictly.
namespace quib {

/// Reads a whole text, valid to its last byte and nested however deep, into the parser's tree. A
/// byte order mark is skipped. A number beyond any double is an empty object in the tree.
simdjson::simdjson_result<simdjson::dom::element> parseJson(simdjson::dom::parser& parser,
                                                            const QByteArray& bytes);

/// The same bytes with room behind them that a parser may read.
QByteArray withRoomBehind(const QByteArray& bytes);

/// What a parser is to read of bytes with such room; a byte order mark is skipped.
simdjson::padded_string_view withoutMark(const QByteArray& bytes);

// A file is read in one pass, without a tree of it in between. Such a reader checks nothing but
// what it is asked for: numbers, and all that is unknown, are read from their text by the strict
// one. Each readValue() puts a value of exactly its type into the last argument, or says false.

bool readValue(simdjson::ondemand::value value, std::string_view& out);
bool readValue(simdjson::ondemand::value value, bool& out);
bool readValue(simdjson::ondemand::value value, double& out);
bool readValue(simdjson::ondemand::value value, QString& out);
bool readValue(simdjson::ondemand::value value, QUuid& out);
bool readValue(simdjson::ondemand::value value, QDateTime& out);

/// A key that has nothing escaped is read where it stands.
bool readKey(simdjson::ondemand::field& field, std::string_view& out);

/// What nobody asks for must be JSON nevertheless.
bool passOver(simdjson::ondemand::value value);

/// Puts what was parsed from a text into the last argument, or says false.
template <typename T>
bool take(const std::optional<T>& parsed, T& out)
{
    out = parsed.value_or(T());
    return parsed.has_value();
}

} // namespace quib
