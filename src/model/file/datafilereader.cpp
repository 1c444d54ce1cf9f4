#include "model/file/datafile.h"
#include "model/file/json.h"
#include "model/file/wholefile.h"
#include "model/texts/utf8.h"
#include "model/texts/uuidtext.h"
#include "model/time/isodate.h"

#include <new>

namespace quib {

namespace {

namespace dom = simdjson::dom;
namespace ondemand = simdjson::ondemand;

constexpr auto LargestFile = qsizetype(512) * 1024 * 1024; // Two million entries.

// The file is read in one pass, without a tree of it in between. Such a reader checks nothing but
// what it is asked for: numbers, and all that is unknown, are read from their text by the strict
// one.

/// In brackets: at the start of a whole text a byte order mark would be skipped.
auto parseAlone(dom::parser& parser, std::string_view json)
{
    const QByteArrayView bytes(json.data(), static_cast<qsizetype>(json.size()));
    return parseJson(parser, '[' + bytes.toByteArray() + ']');
}

// Each readValue() puts a value of exactly its type into the last argument, or says false.

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

template <typename T>
bool take(const std::optional<T>& parsed, T& out)
{
    out = parsed.value_or(T());
    return parsed.has_value();
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

bool readValue(ondemand::value value, ClientStatus& out)
{
    QString text;
    return readValue(value, text) && take(clientStatus(text), out);
}

/// Null is absent.
template <typename T>
bool readValue(ondemand::value value, std::optional<T>& out)
{
    bool isNull = false;
    return (!value.is_null().get(isNull) && isNull) || readValue(value, out.emplace());
}

template <typename Record>
bool readValue(ondemand::value value, QList<Record>& out);

/// What nobody asks for must be JSON nevertheless.
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

template <typename T>
constexpr bool IsOptional = false;

template <typename T>
constexpr bool IsOptional<std::optional<T>> = true;

/// A member that an object is asked for. Of repeated ones the first counts.
template <typename T>
struct Member {
    std::string_view key;
    T& value;
    bool isRead = false;

    bool isMeant(std::string_view other) const { return !isRead && key == other; }
    bool read(ondemand::value from)
    {
        isRead = true;
        return readValue(from, value);
    }
    bool mayBeMissing() const { return IsOptional<T>; }
};

template <typename T>
Member<T> member(std::string_view key, T& value)
{
    return {key, value};
}

/// A key that has nothing escaped is read where it stands, too.
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

template <typename... T>
bool readMember(std::string_view key, ondemand::value value, Member<T>&... members)
{
    bool isRead = false;
    const bool isMeant = ((members.isMeant(key) && (isRead = members.read(value), true)) || ...);
    return isMeant ? isRead : passOver(value);
}

/// Reads a whole object: these members, each there unless it is optional, and all others.
template <typename... T>
bool readMembers(ondemand::object object, Member<T>... members)
{
    for (auto next : object) {
        ondemand::field field;
        std::string_view key;
        if (std::move(next).get(field) || !readKey(field, key)
            || !readMember(key, field.value(), members...)) {
            return false;
        }
    }
    return ((members.isRead || members.mayBeMissing()) && ...);
}

bool readRecord(ondemand::object object, Client& out)
{
    return readMembers(object, member("id", out.id), member("name", out.name),
                       member("status", out.status), member("siteURL", out.siteURL),
                       member("folderPath", out.folderPath), member("hourlyRate", out.hourlyRate),
                       member("notes", out.notes));
}

bool readRecord(ondemand::object object, TaskItem& out)
{
    return readMembers(object, member("id", out.id), member("title", out.title),
                       member("clientID", out.clientID), member("done", out.done),
                       member("created", out.created));
}

bool readRecord(ondemand::object object, TimeEntry& out)
{
    return readMembers(object, member("id", out.id), member("clientID", out.clientID),
                       member("start", out.start), member("end", out.end),
                       member("note", out.note));
}

bool readRecord(ondemand::object object, ShelfItem& out)
{
    return readMembers(object, member("id", out.id), member("path", out.path));
}

bool readRecord(ondemand::object object, LaunchItem& out)
{
    return readMembers(object, member("id", out.id), member("name", out.name),
                       member("target", out.target));
}

template <typename Record>
bool readValue(ondemand::value value, QList<Record>& out)
{
    ondemand::array array;
    if (value.get_array().get(array)) {
        return false;
    }
    for (auto element : array) {
        ondemand::object object;
        if (element.get_object().get(object) || !readRecord(object, out.emplaceBack())) {
            return false;
        }
    }
    return true;
}

bool readWorkspace(ondemand::object object, QuibData& out)
{
    return readMembers(object, member("clients", out.clients), member("tasks", out.tasks),
                       member("entries", out.entries), member("shelf", out.shelf),
                       member("launch", out.launch), member("notes", out.notes));
}

} // namespace

std::optional<QuibData> decodeQuibData(const QByteArray& bytes)
{
    const auto roomy = withRoomBehind(bytes);
    ondemand::parser parser;
    ondemand::document document;
    ondemand::object object;
    QuibData data;
    if (parser.iterate(withoutMark(roomy)).get(document) || document.get_object().get(object)
        || !readWorkspace(object, data)) {
        return std::nullopt;
    }
    const bool isAtEnd = document.current_location().error() == simdjson::OUT_OF_BOUNDS;
    return isAtEnd ? std::optional(std::move(data)) : std::nullopt;
}

std::optional<QuibData> loadQuibData(const std::filesystem::path& path)
{
    try {
        const auto bytes = wholeFile(path, LargestFile);
        return bytes ? decodeQuibData(*bytes) : std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt; // Less memory is to be had than the file needs.
    }
}

} // namespace quib
