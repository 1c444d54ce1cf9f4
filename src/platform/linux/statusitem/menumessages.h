#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QStringList>
#include <QVariantMap>

namespace quib {

// The records of com.canonical.dbusmenu, their members in the order of the bus.

/// A line of the menu, or the menu itself, with what lies in it: a MenuNode in each variant.
struct MenuNode {
    int id = 0;
    QVariantMap properties;
    QList<QDBusVariant> children;
};

struct MenuProperties {
    int id = 0;
    QVariantMap properties;
};

struct MenuPropertyNames {
    int id = 0;
    QStringList names;
};

/// What the user did with a line.
struct MenuEvent {
    int id = 0;
    QString kind;
    QDBusVariant data;
    uint time = 0;
};

QDBusArgument& operator<<(QDBusArgument& out, const MenuNode& node);
QDBusArgument& operator<<(QDBusArgument& out, const MenuProperties& item);
QDBusArgument& operator<<(QDBusArgument& out, const MenuPropertyNames& item);
QDBusArgument& operator<<(QDBusArgument& out, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& in, MenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& in, MenuProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& in, MenuPropertyNames& item);
const QDBusArgument& operator>>(const QDBusArgument& in, MenuEvent& event);

/// Needed once before any of them goes over a bus.
void registerMenuMessages();

} // namespace quib
