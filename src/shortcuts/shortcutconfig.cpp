#include "shortcuts/shortcutconfig.h"

#include "model/file/json.h"
#include "model/texts/utf8.h"

#include <QHashFunctions>

namespace quib {

namespace {

namespace dom = simdjson::dom;

std::optional<QString> textOf(dom::element value)
{
    std::string_view text;
    return value.get_string().get(text) ? std::nullopt : std::optional(utf8Text(text));
}

bool readText(const dom::object& object, std::string_view key, QString& out)
{
    dom::element value;
    const auto text = object.at_key(key).get(value) ? std::nullopt : textOf(value);
    out = text.value_or(QString());
    return text.has_value();
}

/// Missing or null is no text.
bool readText(const dom::object& object, std::string_view key, std::optional<QString>& out)
{
    dom::element value;
    if (object.at_key(key).get(value) || value.is_null()) {
        return true;
    }
    out = textOf(value);
    return out.has_value();
}

template <typename Record>
bool readList(const dom::object& object, std::string_view key, QList<Record>& out,
              bool (*read)(const dom::object&, Record&))
{
    dom::array array;
    if (object.at_key(key).get_array().get(array)) {
        return false;
    }
    for (const auto element : array) {
        dom::object record;
        if (element.get_object().get(record) || !read(record, out.emplaceBack())) {
            return false;
        }
    }
    return true;
}

bool readButton(const dom::object& object, ShortcutButton& out)
{
    return readText(object, "name", out.name) && readText(object, "icon", out.icon)
        && readText(object, "url", out.url);
}

bool readGroup(const dom::object& object, ShortcutGroup& out)
{
    return readText(object, "title", out.title) && readText(object, "color", out.color)
        && readList(object, "buttons", out.buttons, readButton);
}

} // namespace

size_t qHash(const ShortcutButton& button, size_t seed)
{
    return qHashMulti(seed, button.name, button.icon.value_or(QString()), button.url);
}

size_t qHash(const ShortcutGroup& group, size_t seed)
{
    return qHashMulti(seed, group.title, group.color.value_or(QString()),
                      qHashRange(group.buttons.cbegin(), group.buttons.cend()));
}

std::optional<ShortcutConfig> decodeShortcuts(const QByteArray& json)
{
    dom::parser parser;
    dom::object object;
    ShortcutConfig config;
    const bool isRead = !parseJson(parser, json).get_object().get(object)
        && readList(object, "groups", config.groups, readGroup);
    return isRead ? std::optional(config) : std::nullopt;
}

} // namespace quib
