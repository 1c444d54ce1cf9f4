#include "shortcuts/shortcutconfig.h"

#include "model/json/jsonrecord.h"

#include <QHashFunctions>

namespace quib {

template <>
inline constexpr std::tuple Members<ShortcutButton>{
    Member{"icon", &ShortcutButton::icon},
    Member{"name", &ShortcutButton::name},
    Member{"url", &ShortcutButton::url},
};

template <>
inline constexpr std::tuple Members<ShortcutGroup>{
    Member{"buttons", &ShortcutGroup::buttons},
    Member{"color", &ShortcutGroup::color},
    Member{"title", &ShortcutGroup::title},
};

template <>
inline constexpr std::tuple Members<ShortcutConfig>{Member{"groups", &ShortcutConfig::groups}};

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
    return decodeRecord<ShortcutConfig>(json);
}

} // namespace quib
