#include "platform/linux/sessionbus.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

const auto NoBus = u"none"_s;

} // namespace

bool hasSessionBus()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) {
        return true;
    }
    const auto runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + u"/bus"_s);
}

QDBusConnection sessionBus()
{
    return hasSessionBus() ? QDBusConnection::sessionBus() : QDBusConnection(NoBus);
}

QDBusConnection ownSessionBus(const QString& connectionName)
{
    return hasSessionBus()
        ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName)
        : QDBusConnection(NoBus);
}

} // namespace quib
