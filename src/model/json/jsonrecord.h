#pragma once

#include "model/json/json.h"
#include "model/json/member.h"

#include <QList>

#include <utility>

/// Records as files hold them: objects of which Members tells the members.
namespace quib {

/// Null is absent.
template <typename T>
bool readValue(simdjson::ondemand::value value, std::optional<T>& out)
{
    bool isNull = false;
    return (!value.is_null().get(isNull) && isNull) || readValue(value, out.emplace());
}

template <typename Record>
bool readValue(simdjson::ondemand::value value, QList<Record>& out);

/// A member that an object is asked for. Of repeated ones the first counts.
template <typename T>
struct AskedMember {
    std::string_view key;
    T& value;
    bool isRead = false;

    bool isMeant(std::string_view other) const { return !isRead && key == other; }
    bool read(simdjson::ondemand::value from)
    {
        isRead = true;
        return readValue(from, value);
    }
    static constexpr bool mayBeMissing()
    {
        return requires(T given)
        {
            given.has_value();
        };
    }
};

template <typename T>
AskedMember<T> ask(std::string_view key, T& value)
{
    return {key, value};
}

template <typename... T>
bool readMember(std::string_view key, simdjson::ondemand::value value, AskedMember<T>&... members)
{
    bool isRead = false;
    const bool isMeant = ((members.isMeant(key) && (isRead = members.read(value), true)) || ...);
    return isMeant ? isRead : passOver(value);
}

/// Reads a whole object: these members, each there unless it is optional, and all others.
template <typename... T>
bool readMembers(simdjson::ondemand::object object, AskedMember<T>... members)
{
    for (auto next : object) {
        simdjson::ondemand::field field;
        std::string_view key;
        if (std::move(next).get(field) || !readKey(field, key)
            || !readMember(key, field.value(), members...)) {
            return false;
        }
    }
    return ((members.isRead || members.mayBeMissing()) && ...);
}

template <HasMembers Record, std::size_t... Place>
bool readRecord(simdjson::ondemand::object object, Record& out, std::index_sequence<Place...> /**/)
{
    const auto& members = Members<Record>;
    return readMembers(object,
                       ask(std::get<Place>(members).key, out.*(std::get<Place>(members).value))...);
}

template <HasMembers Record>
bool readRecord(simdjson::ondemand::object object, Record& out)
{
    constexpr auto Count = std::tuple_size_v<std::remove_cvref_t<decltype(Members<Record>)>>;
    return readRecord(object, out, std::make_index_sequence<Count>());
}

template <typename Record>
bool readValue(simdjson::ondemand::value value, QList<Record>& out)
{
    simdjson::ondemand::array array;
    if (value.get_array().get(array)) {
        return false;
    }
    for (auto element : array) {
        simdjson::ondemand::object object;
        if (element.get_object().get(object) || !readRecord(object, out.emplaceBack())) {
            return false;
        }
    }
    return true;
}

/// The record that a whole text stands for; absent when that is not valid JSON of exactly that
/// form. Members that the record does not have are passed over.
template <HasMembers Record>
std::optional<Record> decodeRecord(const QByteArray& bytes)
{
    const auto roomy = withRoomBehind(bytes);
    simdjson::ondemand::parser parser;
    simdjson::ondemand::document document;
    simdjson::ondemand::object object;
    Record record;
    if (parser.iterate(withoutMark(roomy)).get(document) || document.get_object().get(object)
        || !readRecord(object, record)) {
        return std::nullopt;
    }
    const bool isAtEnd = document.current_location().error() == simdjson::OUT_OF_BOUNDS;
    return isAtEnd ? std::optional(std::move(record)) : std::nullopt;
}

} // namespace quib
