#include "model/datafile.h"
#include "model/isodate.h"
#include "model/json.h"
#include "model/utf8.h"
#include "model/uuidtext.h"
#include "model/wholefile.h"

#include <new>

namespace quib {

namespace {

namespace dom = simdjson::dom;

constexpr auto LargestFile = qsizetype(512) * 1024 * 1024; // Two million entries.

// Each readValue() puts a value of exactly its type into the last argument, or says false.

bool readValue(dom::element value, std::string_view& out)
{
    return !value.get_string().get(out);
}

bool readValue(dom::element value, bool& out)
{
    return !value.get_bool().get(out);
}

bool readValue(dom::element value, double& out)
{
    return !value.get_double().get(out);
}

bool readValue(dom::element value, QString& out)
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

bool readValue(dom::element value, QUuid& out)
{
    std::string_view text;
    return readValue(value, text) && take(parseUuid(text), out);
}

bool readValue(dom::element value, QDateTime& out)
{
    std::string_view text;
    return readValue(value, text) && take(parseIsoDate(text), out);
}

bool readValue(dom::element value, ClientStatus& out)
{
    QString text;
    return readValue(value, text) && take(clientStatus(text), out);
}

template <typename Record>
bool readValue(dom::element value, QList<Record>& out);

template <typename T>
bool readMember(const dom::object& object, std::string_view key, T& out)
{
    dom::element value;
    return !object.at_key(key).get(value) && readValue(value, out);
}

/// Absent when the member is missing or null.
template <typename T>
bool readMember(const dom::object& object, std::string_view key, std::optional<T>& out)
{
    dom::element value;
    if (object.at_key(key).get(value) || value.is_null()) {
        out.reset();
        return true;
    }
    return readValue(value, out.emplace());
}

bool readRecord(const dom::object& object, Client& out)
{
    return readMember(object, "id", out.id) && readMember(object, "name", out.name)
        && readMember(object, "status", out.status) && readMember(object, "siteURL", out.siteURL)
        && readMember(object, "folderPath", out.folderPath)
        && readMember(object, "hourlyRate", out.hourlyRate)
        && readMember(object, "notes", out.notes);
}

bool readRecord(const dom::object& object, TaskItem& out)
{
    return readMember(object, "id", out.id) && readMember(object, "title", out.title)
        && readMember(object, "clientID", out.clientID) && readMember(object, "done", out.done)
        && readMember(object, "created", out.created);
}

bool readRecord(const dom::object& object, TimeEntry& out)
{
    return readMember(object, "id", out.id) && readMember(object, "clientID", out.clientID)
        && readMember(object, "start", out.start) && readMember(object, "end", out.end)
        && readMember(object, "note", out.note);
}

bool readRecord(const dom::object& object, ShelfItem& out)
{
    return readMember(object, "id", out.id) && readMember(object, "path", out.path);
}

bool readRecord(const dom::object& object, LaunchItem& out)
{
    return readMember(object, "id", out.id) && readMember(object, "name", out.name)
        && readMember(object, "target", out.target);
}

template <typename Record>
bool readValue(dom::element value, QList<Record>& out)
{
    dom::array array;
    if (value.get_array().get(array)) {
        return false;
    }
    out.reserve(static_cast<qsizetype>(array.size()));
    for (const auto element : array) {
        dom::object object;
        if (element.get_object().get(object) || !readRecord(object, out.emplaceBack())) {
            return false;
        }
    }
    return true;
}

bool readWorkspace(const dom::object& object, QuibData& out)
{
    return readMember(object, "clients", out.clients) && readMember(object, "tasks", out.tasks)
        && readMember(object, "entries", out.entries) && readMember(object, "shelf", out.shelf)
        && readMember(object, "launch", out.launch) && readMember(object, "notes", out.notes);
}

} // namespace

std::optional<QuibData> decodeQuibData(const QByteArray& bytes)
{
    dom::parser parser;
    dom::object object;
    QuibData data;
    const bool isRead
        = !parseJson(parser, bytes).get_object().get(object) && readWorkspace(object, data);
    return isRead ? std::optional(std::move(data)) : std::nullopt;
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
