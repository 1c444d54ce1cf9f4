#pragma once

#include <QAccessible>
#include <QAccessibleInterface>
#include <QQuickItem>

/// What somebody is told of an item who does not see it: its name, unless asked for another text.
inline QString toldOf(QQuickItem* item, QAccessible::Text kind = QAccessible::Name)
{
    const auto* interface = QAccessible::queryAccessibleInterface(item);
    return interface ? interface->text(kind) : QString();
}
