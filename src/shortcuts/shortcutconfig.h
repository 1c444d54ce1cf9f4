#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace quib {

/// One button: its name, the name of its symbol, and where it leads, as the user wrote it.
struct ShortcutButton {
    QString name;
    std::optional<QString> icon;
    QString url;

    bool operator==(const ShortcutButton&) const = default;
};

/// A box of buttons in one colour; no word means the usual one.
struct ShortcutGroup {
    QString title;
    std::optional<QString> color;
    QList<ShortcutButton> buttons;

    bool operator==(const ShortcutGroup&) const = default;
};

size_t qHash(const ShortcutButton& button, size_t seed = 0);
size_t qHash(const ShortcutGroup& group, size_t seed = 0);

/// The whole of shortcuts.json.
struct ShortcutConfig {
    QList<ShortcutGroup> groups;
};

/// Absent when the bytes are not valid JSON of exactly that form. Other members are passed over.
std::optional<ShortcutConfig> decodeShortcuts(const QByteArray& json);

} // namespace quib
