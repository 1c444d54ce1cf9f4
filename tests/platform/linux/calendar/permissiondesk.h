#pragma once

#include "platform/linux/base/connectedbus.h"
#include "platform/linux/calendar/calendardesk.h"
#include "platform/linux/calendar/calendarpermission.h"
#include "platform/linux/calendar/fakedialog.h"

#include <QTest>

#include <memory>
#include <optional>

/// A session of its own, a dialog that it may show, and the one who asks for the calendars.
struct PermissionDesk {
    CalendarDesk desk;
    std::unique_ptr<FakeDialog> dialog = std::make_unique<FakeDialog>();
    std::shared_ptr<quib::SessionBus> bus; ///< None before that one.
    std::unique_ptr<quib::CalendarPermission> permission; ///< None before the bus.

    PermissionDesk()
    {
        qputenv("XDG_CONFIG_HOME", desk.path(QStringLiteral("config")).toUtf8());
        qunsetenv("XDG_CURRENT_DESKTOP");
    }

    void startBus(const QStringList& services = {CalendarDesk::PermissionStore})
    {
        desk.startBus(services);
        startAgain();
    }

    void startAgain()
    {
        if (!bus) {
            bus = connectedBus(address());
        }
        permission = std::make_unique<quib::CalendarPermission>(bus);
    }

    QString address() const
    {
        return desk.environment.value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    }

    std::optional<quib::CalendarAuthorization> read() const
    {
        std::optional<quib::CalendarAuthorization> answer;
        permission->read([&answer](auto authorization) { answer = authorization; });
        return QTest::qWaitFor([&answer] { return answer.has_value(); }) ? answer : std::nullopt;
    }

    std::optional<bool> ask() const
    {
        std::optional<bool> answer;
        permission->ask([&answer](bool isGranted) { answer = isGranted; });
        return QTest::qWaitFor([&answer] { return answer.has_value(); }) ? answer : std::nullopt;
    }
};
