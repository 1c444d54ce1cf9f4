#pragma once

#include "platform/linux/statusitem/itemonbus.h"

#include <QStringList>

namespace quib {

// What a status bar reads of the menu.

/// Of the first layout.
constexpr int QuitId = QuitRow + 1;
constexpr int PinId = PinRow + 1;

/// What comes with an event.
inline QVariant noData()
{
    return QVariant::fromValue(QDBusVariant(0));
}

inline MenuNode nodeIn(const QDBusVariant& variant)
{
    return qdbus_cast<MenuNode>(variant.variant());
}

/// A line as its reader sees it.
inline QString lineOf(const MenuNode& node)
{
    using namespace Qt::StringLiterals;
    const auto& properties = node.properties;
    if (properties.value(u"type"_s) == u"separator"_s) {
        return u"--"_s;
    }
    auto line = properties.value(u"label"_s).toString();
    if (properties.value(u"toggle-type"_s) == u"checkmark"_s) {
        line += properties.value(u"toggle-state"_s) == 1 ? u" [x]"_s : u" [ ]"_s;
    }
    const auto shortcuts = qdbus_cast<QList<QStringList>>(properties.value(u"shortcut"_s));
    for (const auto& keys : shortcuts) {
        line += u" "_s + keys.join(u'+');
    }
    return line;
}

inline QStringList linesOf(const MenuNode& menu)
{
    QStringList lines;
    for (const auto& child : menu.children) {
        lines << lineOf(nodeIn(child));
    }
    return lines;
}

inline MenuNode layoutOf(const ItemOnBus& item, int parent = 0, int depth = -1,
                         const QStringList& names = {})
{
    const auto reply = item.callMenu(QStringLiteral("GetLayout"), {parent, depth, names});
    return qdbus_cast<MenuNode>(reply.arguments().value(1));
}

} // namespace quib
