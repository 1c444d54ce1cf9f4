#include "platform/linux/statusitem/menumessages.h"

#include <QDBusMetaType>

namespace quib {

namespace {

template <typename... Members>
QDBusArgument& write(QDBusArgument& out, const Members&... members)
{
    out.beginStructure();
    (out << ... << members);
    out.endStructure();
    return out;
}

template <typename... Members>
const QDBusArgument& read(const QDBusArgument& in, Members&... members)
{
    in.beginStructure();
    (in >> ... >> members);
    in.endStructure();
    return in;
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& out, const MenuNode& node)
{
    return write(out, node.id, node.properties, node.children);
}

QDBusArgument& operator<<(QDBusArgument& out, const MenuProperties& item)
{
    return write(out, item.id, item.properties);
}

QDBusArgument& operator<<(QDBusArgument& out, const MenuPropertyNames& item)
{
    return write(out, item.id, item.names);
}

QDBusArgument& operator<<(QDBusArgument& out, const MenuEvent& event)
{
    return write(out, event.id, event.kind, event.data, event.time);
}

const QDBusArgument& operator>>(const QDBusArgument& in, MenuNode& node)
{
    return read(in, node.id, node.properties, node.children);
}

const QDBusArgument& operator>>(const QDBusArgument& in, MenuProperties& item)
{
    return read(in, item.id, item.properties);
}

const QDBusArgument& operator>>(const QDBusArgument& in, MenuPropertyNames& item)
{
    return read(in, item.id, item.names);
}

const QDBusArgument& operator>>(const QDBusArgument& in, MenuEvent& event)
{
    return read(in, event.id, event.kind, event.data, event.time);
}

void registerMenuMessages()
{
    qDBusRegisterMetaType<MenuNode>();
    qDBusRegisterMetaType<MenuProperties>();
    qDBusRegisterMetaType<QList<MenuProperties>>();
    qDBusRegisterMetaType<MenuPropertyNames>();
    qDBusRegisterMetaType<QList<MenuPropertyNames>>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    qDBusRegisterMetaType<QList<QStringList>>(); // Shortcuts.
}

} // namespace quib
